// The rules of the metronome's pulses.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "composer/voice_state.h"

namespace corvana::prova {

namespace {

/// Where a walk of `passi` ticks ends that begins with the pulse `indice`: the pulse, and the ticks
/// of it that have gone by.
std::pair<int, Tick> Cammina(int indice, int ultimo, Tick tickPulso, Tick passi) {
    Tick trascorsi = 0;
    for (Tick passo = 0; passo < passi; ++passo) {
        ++trascorsi;
        if (trascorsi < tickPulso) continue;
        trascorsi = 0;
        ++indice;
        if (indice > ultimo) indice = 0;
    }
    return {indice, trascorsi};
}

std::pair<int, Tick> Punto(const StatoPulso& pulso) {
    return {pulso.pulsoCorrente, pulso.tickInPulso};
}

constexpr Tick passiProvati = 100;

}  // namespace

TEST(PrendiPulso, EachLetterHasItsKeyAndAnyOtherKeepsTheKeyBefore) {
    StatoPulso pulso;
    const std::vector<std::pair<char, int>> lettere = {{'x', 0},  {'a', 81}, {'x', 81},
                                                       {'b', 36}, {'A', 36}, {'c', 46},
                                                       {'d', 46}, {' ', 46}, {'a', 81}};
    for (const auto& [lettera, nota] : lettere) {
        PrendiPulso(pulso, lettera);
        EXPECT_EQ(pulso.notaPulso, nota) << lettera;
    }
}

TEST(PassoPulso, SoundsFromItsFirstTickToTheOneBeforeItsLast) {
    StatoPulso pulso;
    using Riga = std::tuple<Messaggio, int, Tick>;
    std::vector<Riga> righe;
    for (int tick = 0; tick < 9; ++tick) {
        const Messaggio messaggio = PassoPulso(pulso, 1, 4);
        righe.emplace_back(messaggio, pulso.pulsoCorrente, pulso.tickInPulso);
    }
    EXPECT_EQ(righe, (std::vector<Riga>{{Messaggio::Accendi, 0, 1},
                                        {Messaggio::Nessuno, 0, 2},
                                        {Messaggio::Nessuno, 0, 3},
                                        {Messaggio::Spegni, 1, 0},
                                        {Messaggio::Accendi, 1, 1},
                                        {Messaggio::Nessuno, 1, 2},
                                        {Messaggio::Nessuno, 1, 3},
                                        {Messaggio::Spegni, 0, 0},
                                        {Messaggio::Accendi, 0, 1}}));
}

TEST(PassoPulso, OneOf1TickOrNoneIsSilentAndGoesByInOneTick) {
    for (const Tick tickPulso : {1, 0}) {
        StatoPulso pulso;
        for (int tick = 0; tick < 6; ++tick) {
            EXPECT_EQ(PassoPulso(pulso, 2, tickPulso), Messaggio::Nessuno) << tickPulso;
            EXPECT_EQ(Punto(pulso), std::pair((tick + 1) % 3, Tick{0})) << tickPulso;
        }
    }
}

TEST(PassoPulso, WalksFromPulseToPulseAndFromTheLastToTheFirst) {
    for (const int ultimo : {0, 1, 2, 8})
        for (const Tick tickPulso : {1, 2, 3, 8, 32}) {
            StatoPulso pulso;
            pulso.pulsoCorrente = static_cast<std::uint8_t>(ultimo);
            for (Tick passi = 1; passi <= passiProvati; ++passi) {
                PassoPulso(pulso, static_cast<std::uint8_t>(ultimo), tickPulso);
                ASSERT_EQ(Punto(pulso), Cammina(ultimo, ultimo, tickPulso, passi))
                    << ultimo << " " << tickPulso << " " << passi;
            }
        }
}

TEST(PulsoDopo, IsWhereAWalkOfOneTickMoreEndsWithThatTickTakenOffAgain) {
    for (const int iniziale : {0, 1, 2, 5})
        for (const int ultimo : {0, 1, 2, 5, 8})
            for (const Tick tickPulso : {1, 2, 3, 8, 32})
                for (Tick tick = 0; tick < passiProvati; ++tick) {
                    auto [indice, trascorsi] = Cammina(iniziale, ultimo, tickPulso, tick + 1);
                    const StatoPulso pulso =
                        PulsoDopo(static_cast<std::uint8_t>(iniziale),
                                  static_cast<std::uint8_t>(ultimo), tickPulso, tick);
                    ASSERT_EQ(Punto(pulso), std::pair(indice, trascorsi - 1))
                        << iniziale << " " << ultimo << " " << tickPulso << " " << tick;
                }
}

TEST(PulsoDopo, TheLastTickOfAPulseIsAlreadyTheNextOneWith1TickToWait) {
    EXPECT_EQ(Punto(PulsoDopo(0, 3, 8, 6)), std::pair(0, Tick{6}));
    EXPECT_EQ(Punto(PulsoDopo(0, 3, 8, 7)), std::pair(1, Tick{-1}));
    EXPECT_EQ(Punto(PulsoDopo(0, 3, 8, 8)), std::pair(1, Tick{0}));
    EXPECT_EQ(Punto(PulsoDopo(3, 3, 8, 7)), std::pair(0, Tick{-1}));
}

TEST(PulsoDopo, IsSilentWithoutAKey) {
    const StatoPulso pulso = PulsoDopo(1, 3, 8, 20);
    EXPECT_EQ(pulso.notaPulso, 0);
    EXPECT_FALSE(pulso.pulsoDeveSuonare);
    EXPECT_FALSE(pulso.pulsoSuona);
}

TEST(PulsoDopo, AHundredThousandWholeNotesAreWalkedAtOnce) {
    EXPECT_EQ(Punto(PulsoDopo(0, 3, 32, 12800000)), std::pair(0, Tick{0}));
    EXPECT_EQ(Punto(PulsoDopo(0, 2, 32, 12800000)), std::pair(400000 % 3, Tick{0}));
}

}  // namespace corvana::prova
