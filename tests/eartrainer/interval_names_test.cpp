#include "core/interval_names.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

TEST(NomiIntervalli, EachNumberOfSemitonesHasItsSpellingsAboveAndBelow) {
    // By semitones: name and label above, name and label below; -1 for none.
    struct Riga {
        const char* sopra;
        int etichettaSopra;
        const char* sotto;
        int etichettaSotto;
    };
    const std::vector<Riga> righe = {
        {"", -1, "2 Dim", 19},      {"", -1, "2 Min", 18},      {"2 Mag", 20, "3 Dim", 17},
        {"2 Ecc", 21, "3 Min", 16}, {"3 Mag", 22, "4 Dim", 15}, {"3 Ecc", 23, "4 Gius", 14},
        {"4 Ecc", 24, "5 Dim", 13}, {"5 Gius", 0, "6 Dim", 12}, {"5 Ecc", 1, "6 Min", 11},
        {"6 Mag", 2, "7 Dim", 10},  {"6 Ecc", 3, "7 Min", 9},   {"7 Mag", 4, "8 Dim", 8},
        {"7 Ecc", 5, "8 Gius", 7},  {"8 Ecc", 6, "", -1},
    };
    for (std::size_t n = 0; n < righe.size(); ++n)
        for (const auto& [nome, quale, sopra] :
             {std::tuple{righe[n].sopra, righe[n].etichettaSopra, true},
              {righe[n].sotto, righe[n].etichettaSotto, false}}) {
            if (quale < 0) continue;
            const NomeIntervallo& riga = nomiIntervalli.at(static_cast<std::size_t>(quale));
            EXPECT_EQ(riga.nome, nome);
            EXPECT_EQ(riga.semitoni, static_cast<int>(n)) << nome;
            EXPECT_EQ(riga.sopra, sopra) << nome;
        }
}

TEST(NomiIntervalli, TheConsonantOnesAreShaded) {
    BancoInto b;
    const std::set<std::string> consonanti = {"2 Dim",  "3 Min", "3 Mag", "4 Gius",
                                              "5 Gius", "6 Min", "6 Mag", "8 Gius"};
    for (const Etichetta& nome : b.finestra.intervalli.Label4)
        EXPECT_EQ(nome.BackColor(),
                  consonanti.contains(nome.Caption) ? Rgb(192, 255, 255) : Rgb(224, 224, 224))
            << nome.Caption();
    EXPECT_EQ(b.finestra.intervalli.Label4.size(), 25U);
}

}  // namespace corvana::prova
