#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "core/language.h"
#include "tests/data/language_files.h"
#include "tests/language/program_rows.h"
#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

struct FinestraSpiegata : Form {
    FinestraSpiegata() : Form("frmConfMetro") {}
    Casella Text1{*this, "Text1"};
};

}  // namespace

TEST(TabelleLingua, AnIdBelongsToOneWindowOnly) {
    Insieme tutti;
    for (const auto& [finestra, insieme] : IdDiFinestra())
        for (const int id : insieme)
            EXPECT_TRUE(tutti.insert(id).second) << id;
}

TEST(TabelleLingua, NoControlTakesItsTextFromTwoIds) {
    for (const auto& [finestra, insieme] : IdDiFinestra()) {
        std::set<std::tuple<std::string_view, Cosa, int>> visti;
        for (const Bersaglio& b : BersagliDiFinestra(finestra)) {
            if (b.cosa == Cosa::Stringa) continue;
            EXPECT_TRUE(visti.insert({b.controllo, b.cosa, b.elemento}).second)
                << finestra << ' ' << b.controllo;
        }
    }
}

TEST(TabelleLingua, EveryStringVariableIsFilledByOneId) {
    std::vector<std::string TestiLingua::*> visti;
    for (const Bersaglio& b : BersagliDi(Cosa::Stringa)) {
        ASSERT_NE(b.stringa, nullptr) << b.id;
        EXPECT_EQ(std::count(visti.begin(), visti.end(), b.stringa), 0) << b.id;
        visti.push_back(b.stringa);
    }
    EXPECT_EQ(visti.size() * sizeof(std::string), sizeof(TestiLingua));
}

TEST(TabelleLingua, TheExplanationOfTheMetronomeStandsInTwoParagraphs) {
    for (const std::string& lingua : lingue) {
        Banco banco;
        FinestraSpiegata finestra;
        banco.globali.PercorsoLingua = "/" + lingua;
        banco.file.contenuti["/" + lingua] = ContenutoLingua(lingua);
        UpdateString(banco.Tutto(), finestra, BersagliDiFinestra(finestra.Name));
        const Testi testi = PerId(lingua);
        EXPECT_EQ(finestra.Caption(), testi.at(69));
        EXPECT_EQ(finestra.Text1.Text(), testi.at(73) + "\r\n\r\n" + testi.at(74));
        EXPECT_TRUE(banco.riquadri.messaggi.empty());
    }
}

TEST(TabelleLingua, EveryStringVariableIsFilledAfterAllWindowsHaveRead) {
    for (const std::string& lingua : lingue) {
        Banco banco;
        banco.globali.PercorsoLingua = "/" + lingua;
        banco.file.contenuti["/" + lingua] = ContenutoLingua(lingua);
        for (const auto& [nome, insieme] : IdDiFinestra()) {
            Form finestra(nome);
            UpdateString(banco.Tutto(), finestra, BersagliDiFinestra(finestra.Name));
        }
        const Testi testi = PerId(lingua);
        for (const Bersaglio& b : BersagliDi(Cosa::Stringa))
            EXPECT_EQ(banco.globali.testi.*b.stringa, testi.at(b.id)) << b.id;
    }
}

}  // namespace corvana::prova
