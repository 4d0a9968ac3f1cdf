// The texts of both language files: each stands in the row that it is for.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "core/text.h"
#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

using TestiPerId = std::map<int, std::string>;

struct Lingua {
    const char* file;
    std::string_view RigaAttesa::*parola;
};

constexpr Lingua lingue[] = {{"langit.csv", &RigaAttesa::italiano},
                             {"langen.csv", &RigaAttesa::inglese}};

TestiPerId TestiDi(const Lingua& lingua, const std::string& finestra) {
    std::ifstream file(std::string(CORVANA_DATA_SOURCE "/") + lingua.file, std::ios::binary);
    TestiPerId testi;
    for (std::string linea; std::getline(file, linea);) {
        const auto campi = Dividi(linea, ';');
        if (campi.at(1) == finestra) testi[std::stoi(campi.at(0))] = campi.at(2);
    }
    return testi;
}

bool Contiene(const std::string& testo, std::string_view parola) {
    return testo.find(parola) != std::string::npos;
}

/// Calls `controlla` with the rows of a window, their texts, and the words of that language.
template <class F>
void PerOgniFinestra(F controlla) {
    for (const Lingua& lingua : lingue)
        for (const FinestraAttesa& finestra : FinestreAttese()) {
            SCOPED_TRACE(lingua.file + (' ' + finestra.nome));
            controlla(finestra.righe, TestiDi(lingua, finestra.nome), lingua.parola);
        }
}

}  // namespace

TEST(TestiDelleRighe, EachHoldsTheWordsThatBelongToItsRow) {
    PerOgniFinestra([](RigheAttese righe, const TestiPerId& testi, auto parola) {
        EXPECT_EQ(testi.size(), righe.size());
        for (const RigaAttesa& riga : righe)
            EXPECT_TRUE(Contiene(testi.at(riga.id), riga.*parola)) << riga.id;
    });
}

TEST(TestiDelleRighe, NoTwoOfAWindowThatDifferCouldChangePlaces) {
    PerOgniFinestra([](RigheAttese righe, const TestiPerId& testi, auto parola) {
        for (const RigaAttesa& a : righe)
            for (const RigaAttesa& b : righe) {
                const std::string& di_a = testi.at(a.id);
                const std::string& di_b = testi.at(b.id);
                EXPECT_TRUE(di_a == di_b || !Contiene(di_a, b.*parola) ||
                            !Contiene(di_b, a.*parola))
                    << a.id << " and " << b.id;
            }
    });
}

}  // namespace corvana::prova
