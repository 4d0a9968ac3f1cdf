#include "eartrainer/range_steps.h"

#include <gtest/gtest.h>

namespace corvana::prova {

namespace {

struct Caso {
    Estensione prima;
    std::int16_t tasto;
    ClicEstensione atteso;
};

std::string Come(const ClicEstensione& clic) {
    return std::to_string(clic.dopo.basso) + ".." + std::to_string(clic.dopo.alto) + " " +
           std::to_string(static_cast<int>(clic.esito));
}

template <class Regola>
void Controlla(Regola regola, const std::vector<Caso>& casi) {
    for (const auto& [prima, tasto, atteso] : casi)
        EXPECT_EQ(Come(regola(prima, tasto)), Come(atteso))
            << prima.basso << ".." << prima.alto << " and " << tasto;
}

}  // namespace

TEST(ClicSuEstensione, TakesTwoLimitsAWholeToneApartOrMore) {
    using enum EsitoClic;
    Controlla(ClicSuEstensione, {
                                    {{-1, -1}, 0, {{-1, 0}, Primo}},
                                    {{-1, -1}, 59, {{-1, 59}, Primo}},
                                    {{-1, 30}, 29, {{29, 30}, StrettoSotto}},
                                    {{-1, 30}, 30, {{30, 30}, StrettoSopra}},
                                    {{-1, 30}, 31, {{30, 30}, StrettoSopra}},
                                    {{-1, 30}, 28, {{28, 30}, Completa}},
                                    {{-1, 30}, 32, {{30, 32}, Completa}},
                                    {{-1, 30}, 0, {{0, 30}, Completa}},
                                    {{-1, 30}, 59, {{30, 59}, Completa}},
                                    {{-1, 0}, 2, {{0, 2}, Completa}},
                                    {{-1, 59}, 57, {{57, 59}, Completa}},
                                });
}

TEST(ClicSuEstensione, WhatWasTooCloseBelowIsReplacedByTheNextClick) {
    using enum EsitoClic;
    Controlla(ClicSuEstensione, {
                                    {{29, 30}, 20, {{20, 30}, Completa}},
                                    {{29, 30}, 29, {{29, 30}, StrettoSotto}},
                                    {{29, 30}, 40, {{30, 40}, Completa}},
                                    {{29, 30}, 30, {{30, 30}, StrettoSopra}},
                                    {{30, 30}, 28, {{28, 30}, Completa}},
                                    {{30, 30}, 31, {{30, 30}, StrettoSopra}},
                                });
}

TEST(ClicSuFondamentali, TakesAnyTwoKeysOnWhichEveryChordFits) {
    using enum EsitoClic;
    Controlla(ClicSuFondamentali, {
                                      {{-1, -1}, 0, {{-1, 0}, Primo}},
                                      {{-1, -1}, 51, {{-1, 51}, Primo}},
                                      {{-1, -1}, 52, {{-1, -1}, TroppoAlto}},
                                      {{-1, 30}, 30, {{30, 30}, Completa}},
                                      {{-1, 30}, 29, {{29, 30}, Completa}},
                                      {{-1, 30}, 51, {{30, 51}, Completa}},
                                      {{-1, 30}, 52, {{-1, 30}, TroppoAlto}},
                                      {{-1, 30}, 59, {{-1, 30}, TroppoAlto}},
                                      {{-1, 51}, 0, {{0, 51}, Completa}},
                                  });
}

TEST(Estensione, ThereIsSomethingToAskOnlyBetweenTwoLimitsAndForWhiteKeysOnlyWhereOneLies) {
    for (std::int16_t basso = -1; basso < 60; ++basso)
        for (std::int16_t alto = -1; alto < 60; ++alto) {
            int tutti = 0, bianchi = 0;
            for (int tasto = basso; tasto <= alto && basso >= 0; ++tasto) {
                ++tutti;
                bianchi += std::string("x.x.xx.x.x.x")[static_cast<std::size_t>(tasto % 12)] == 'x';
            }
            const Estensione e{basso, alto};
            EXPECT_EQ(e.HaDaChiedere(false), tutti > 0) << basso << ".." << alto;
            EXPECT_EQ(e.HaDaChiedere(true), bianchi > 0) << basso << ".." << alto;
        }
}

TEST(Estensione, ContainsBothItsLimits) {
    const Estensione e{10, 20};
    EXPECT_FALSE(e.Contiene(9));
    EXPECT_TRUE(e.Contiene(10));
    EXPECT_TRUE(e.Contiene(20));
    EXPECT_FALSE(e.Contiene(21));
    EXPECT_TRUE(Estensione{}.Vuota());
    EXPECT_FALSE((Estensione{-1, 3}.Vuota()));
}

}  // namespace corvana::prova
