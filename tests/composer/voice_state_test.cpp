// The rules of one voice.
#include "composer/voice_state.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace corvana::prova {

namespace {

/// A voice with positions of its own.
struct Voce {
    std::int16_t posizione = 0;
    std::int16_t ultima = 0;
    StatoVoce stato{posizione, ultima};
};

struct Esito {
    int velocita = 0;
    Tick gate = 0;
    bool operator==(const Esito&) const = default;
};
std::ostream& operator<<(std::ostream& dove, const Esito& e) {
    return dove << "{" << e.velocita << ", " << e.gate << "}";
}

constexpr int velocitaPrima = 77;
constexpr Tick gatePrima = 55;

Esito Articolata(std::string_view attributo, int vol, Tick tickNota) {
    Voce voce;
    voce.stato.velocita = velocitaPrima;
    voce.stato.tickGate = gatePrima;
    voce.stato.tickNota = tickNota;
    Articola(voce.stato, attributo, vol);
    return {voce.stato.velocita, voce.stato.tickGate};
}

/// Of each tick: what the tick says of the note's end, and the voice after it.
using Passo = std::tuple<bool, int, Tick, bool, bool>;

std::vector<Passo> Passi(Tick tickNota, Tick tickGate) {
    Voce voce;
    voce.posizione = 4;
    voce.stato.tickNota = tickNota;
    voce.stato.tickGate = tickGate;
    voce.stato.notaAvviata = true;
    std::vector<Passo> passi;
    for (bool finita = false; !finita;) {
        finita = PassoVoce(voce.stato);
        passi.emplace_back(finita, voce.posizione, voce.stato.tickCorrente, voce.stato.notaAvviata,
                           voce.stato.deveSuonare);
    }
    return passi;
}

}  // namespace

TEST(Articola, TheVelocityIsThatOfTheAttributeLessTheVolume) {
    const std::vector<std::tuple<const char*, int, int>> velocita = {
        {"n", 0, 98},  {"n", 2, 96},  {"n", 50, 48}, {"n", 97, 1},  {"a", 0, 127}, {"a", 2, 125},
        {"a", 50, 77}, {"a", 97, 30}, {"s", 0, 120}, {"s", 2, 118}, {"s", 50, 70}, {"s", 97, 23},
        {"t", 0, 100}, {"t", 2, 98},  {"t", 50, 50}, {"t", 97, 3}};
    for (const auto& [attributo, vol, attesa] : velocita)
        EXPECT_EQ(Articolata(attributo, vol, 32).velocita, attesa) << attributo << vol;
}

TEST(Articola, AMutedVoiceHasVelocity2WhateverTheAttribute) {
    for (const char* attributo : {"n", "a", "s", "t", "p", "x", ""})
        EXPECT_EQ(Articolata(attributo, 98, 32).velocita, 2) << attributo;
}

TEST(Articola, ThePlainNoteIsTheSoftestAndTheAccentedTheLoudestAtOneVolume) {
    for (int vol = 0; vol < 98; ++vol) {
        const auto velocita = [&](const char* attributo) {
            return Articolata(attributo, vol, 32).velocita;
        };
        EXPECT_GT(velocita("a"), velocita("s")) << vol;
        EXPECT_GT(velocita("s"), velocita("t")) << vol;
        EXPECT_GT(velocita("t"), velocita("n")) << vol;
        EXPECT_GT(velocita("n"), 0) << vol;
    }
}

TEST(Articola, TheGateIsTheWholeNoteOrAFifthOrAHalfRoundedDown) {
    struct Riga {
        Tick nota, n, a, s, t;
    };
    const std::vector<Riga> righe = {
        {0, 0, 0, 0, 0},     {1, 1, 1, 0, 0},      {2, 2, 2, 0, 1},        {3, 3, 3, 0, 1},
        {4, 4, 4, 0, 2},     {5, 5, 5, 1, 2},      {8, 8, 8, 1, 4},        {9, 9, 9, 1, 4},
        {10, 10, 10, 2, 5},  {11, 11, 11, 2, 5},   {24, 24, 24, 4, 12},    {32, 32, 32, 6, 16},
        {48, 48, 48, 9, 24}, {64, 64, 64, 12, 32}, {128, 128, 128, 25, 64}};
    for (const Riga& riga : righe) {
        EXPECT_EQ(Articolata("n", 2, riga.nota).gate, riga.n) << riga.nota;
        EXPECT_EQ(Articolata("a", 2, riga.nota).gate, riga.a) << riga.nota;
        EXPECT_EQ(Articolata("s", 2, riga.nota).gate, riga.s) << riga.nota;
        EXPECT_EQ(Articolata("t", 2, riga.nota).gate, riga.t) << riga.nota;
    }
}

TEST(Articola, BelowNoughtAPartIsRoundedDownToo) {
    EXPECT_EQ(Articolata("s", 2, -1).gate, -1);
    EXPECT_EQ(Articolata("s", 2, -5).gate, -1);
    EXPECT_EQ(Articolata("s", 2, -6).gate, -2);
    EXPECT_EQ(Articolata("t", 2, -3).gate, -2);
    EXPECT_EQ(Articolata("t", 2, -4).gate, -2);
}

TEST(Articola, ARestShutsTheGateAndKeepsTheVelocity) {
    for (const int vol : {0, 2, 50, 97})
        EXPECT_EQ(Articolata("p", vol, 32), (Esito{velocitaPrima, -1})) << vol;
}

TEST(Articola, AnUnknownAttributeKeepsVelocityAndGate) {
    for (const char* attributo : {"", "x", "N", "nn", " n", "pp", "1"})
        EXPECT_EQ(Articolata(attributo, 2, 32), (Esito{velocitaPrima, gatePrima})) << attributo;
}

TEST(PassoVoce, OpensTheGateAtOnceAndShutsItOnTheTickThatReachesIt) {
    EXPECT_EQ(Passi(5, 3), (std::vector<Passo>{{false, 4, 1, true, true},
                                               {false, 4, 2, true, true},
                                               {false, 4, 3, true, false},
                                               {false, 4, 4, true, false},
                                               {true, 5, 0, false, false}}));
}

TEST(PassoVoce, AFullNoteIsSilentOnItsOwnLastTick) {
    EXPECT_EQ(Passi(3, 3), (std::vector<Passo>{{false, 4, 1, true, true},
                                               {false, 4, 2, true, true},
                                               {true, 5, 0, false, false}}));
}

TEST(PassoVoce, AGateOf1Or0OrThatOfARestNeverOpens) {
    for (const Tick gate : {1, 0, -1})
        EXPECT_EQ(Passi(3, gate), (std::vector<Passo>{{false, 4, 1, true, false},
                                                      {false, 4, 2, true, false},
                                                      {true, 5, 0, false, false}}))
            << gate;
}

TEST(PassoVoce, AGateBeyondTheNoteIsStillOpenAtItsEnd) {
    EXPECT_EQ(Passi(2, 9),
              (std::vector<Passo>{{false, 4, 1, true, true}, {true, 5, 0, false, true}}));
}

TEST(PassoVoce, ANoteOfNoLengthTakesOneTick) {
    EXPECT_EQ(Passi(1, 1), (std::vector<Passo>{{true, 5, 0, false, false}}));
    EXPECT_EQ(Passi(0, 0), (std::vector<Passo>{{true, 5, 0, false, false}}));
    EXPECT_EQ(Passi(-7, -7), (std::vector<Passo>{{true, 5, 0, false, false}}));
}

TEST(PassoVoce, GoesOnFromTheTicksThatHadGoneByBefore) {
    Voce voce;
    voce.stato.tickNota = voce.stato.tickGate = 32;
    voce.stato.tickCorrente = 30;
    EXPECT_FALSE(PassoVoce(voce.stato));
    EXPECT_TRUE(voce.stato.deveSuonare);
    EXPECT_TRUE(PassoVoce(voce.stato));
    EXPECT_FALSE(voce.stato.deveSuonare);
    EXPECT_EQ(voce.stato.tickCorrente, 0);
}

TEST(EventoVoce, IsAChangeOfTheGateUpToItsTickAndNothingBeyond) {
    struct Riga {
        Tick tickCorrente;
        bool deve, suona;
        Messaggio atteso;
        bool poi;
    };
    const std::vector<Riga> righe = {
        {3, false, false, Messaggio::Nessuno, false}, {3, false, true, Messaggio::Spegni, false},
        {3, true, false, Messaggio::Accendi, true},   {3, true, true, Messaggio::Nessuno, true},
        {4, false, false, Messaggio::Nessuno, false}, {4, false, true, Messaggio::Spegni, false},
        {4, true, false, Messaggio::Accendi, true},   {4, true, true, Messaggio::Nessuno, true},
        {5, false, false, Messaggio::Nessuno, false}, {5, false, true, Messaggio::Nessuno, true},
        {5, true, false, Messaggio::Nessuno, false},  {5, true, true, Messaggio::Nessuno, true}};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        Voce voce;
        voce.stato.tickGate = 4;
        voce.stato.tickCorrente = righe[i].tickCorrente;
        voce.stato.deveSuonare = righe[i].deve;
        voce.stato.staSuonando = righe[i].suona;
        EXPECT_EQ(EventoVoce(voce.stato), righe[i].atteso) << i;
        EXPECT_EQ(voce.stato.staSuonando, righe[i].poi) << i;
        EXPECT_EQ(voce.stato.deveSuonare, righe[i].deve) << i;
    }
}

TEST(StatoVoce, IsInThePlayUntilItsLastNoteIsOver) {
    Voce voce;
    voce.ultima = 2;
    for (const auto& [posizione, inGioco] :
         std::vector<std::pair<std::int16_t, bool>>{{0, true}, {2, true}, {3, false}}) {
        voce.posizione = posizione;
        EXPECT_EQ(voce.stato.InGioco(), inGioco) << posizione;
    }
    voce.posizione = 0;
    voce.ultima = -1;
    EXPECT_FALSE(voce.stato.InGioco());
}

}  // namespace corvana::prova
