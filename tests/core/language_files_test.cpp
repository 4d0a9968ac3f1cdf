// The language files that lie beside the program, and the tables of what their rows set.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>

#include "core/language_targets.h"
#include "core/text.h"

namespace corvana::prova {

namespace {

using Ids = std::set<int>;

/// The ids from `da` to `a`, but for those listed.
Ids Tra(int da, int a, const Ids& senza = {}) {
    Ids ids;
    for (int id = da; id <= a; ++id)
        if (!senza.contains(id)) ids.insert(id);
    return ids;
}

Ids Con(Ids ids, const Ids& altri) {
    ids.insert(altri.begin(), altri.end());
    return ids;
}

const std::map<std::string, Ids> attesi = {
    {"corvanamainf", Con(Tra(0, 57, {27}), {78, 167, 380, 381, 382})},
    {"frmconfmetro", Tra(69, 74)},
    {"frmmiditest", Tra(75, 77)},
    {"frmabout", Tra(79, 82)},
    {"frmoptions", Tra(83, 156, {143})},
    {"frminto", Tra(157, 244, {167})},
    {"frmcomposer", Con(Tra(245, 374), {379})},
    {"frmcopyfroma", Tra(375, 378)},
};

/// The ids of a file's rows, by the window's name in lower case.
std::map<std::string, Ids> Letti(const char* nome) {
    std::ifstream file(std::string(CORVANA_DATA) + nome);
    std::map<std::string, Ids> ids;
    for (std::string linea; std::getline(file, linea);) {
        const auto campi = Dividi(linea, ';');
        EXPECT_EQ(campi.size(), 3U) << linea;
        if (campi.size() < 3) continue;
        const int id = static_cast<int>(NumeroIntero(campi[0], 0, 1000));
        EXPECT_TRUE(ids[Minuscolo(campi[1])].insert(id).second) << "twice: " << id;
    }
    return ids;
}

}  // namespace

TEST(Bersagli, EachWindowHasTheIdsOfItsRange) {
    for (const auto& [finestra, ids] : attesi) {
        Ids trovati;
        for (const Bersaglio& bersaglio : Bersagli(finestra))
            trovati.insert(bersaglio.id);
        EXPECT_EQ(trovati, ids) << finestra;
    }
}

TEST(Bersagli, AnUnknownWindowHasNone) {
    EXPECT_TRUE(Bersagli("").empty());
    EXPECT_TRUE(Bersagli("frmniente").empty());
    EXPECT_TRUE(Bersagli("frmstrum").empty());
}

TEST(FileLinguaDelProgramma, HaveARowForEachTargetOfEachWindowAndNoOther) {
    EXPECT_EQ(Letti("/langit.csv"), attesi);
    EXPECT_EQ(Letti("/langen.csv"), attesi);
}

}  // namespace corvana::prova
