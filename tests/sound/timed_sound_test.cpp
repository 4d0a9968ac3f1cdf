// Waits and the opening signal.
#include <gtest/gtest.h>

#include <limits>

#include "tests/sound/sound_rig.h"

namespace corvana::prova {

namespace {

using Voce = Registratore::Voce;

void Aggiungi(BancoSuono& b, int valore) {
    Evento e;
    e.valore = valore;
    b.coda.Aggiungi(e);
}

}  // namespace

TEST(Attendi, OfNothingOfLessOrOfTenSecondsReturnsAtOnce) {
    BancoSuono b;
    for (const double secondi : {0.0, -1.0, 10.0, 10.5, 1e9, perSempre, -perSempre,
                                 std::numeric_limits<double>::quiet_NaN()})
        b.suono.Attendi(secondi);
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 0);
}

TEST(Attendi, BetweenThemLetsExactlyItsTimePass) {
    BancoSuono b;
    b.suono.Attendi(9.99);
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 9.99);
    b.suono.Attendi(0.001);
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 9.991);
}

TEST(Attendi, DeliversNothingAndWhatCameMeanwhileComesInOrderAtTheNextPump) {
    BancoSuono b;
    std::vector<std::pair<double, int>> arrivi;
    b.pompa.PonConsegna(
        [&](const Evento& e) { arrivi.emplace_back(b.orologio.Adesso(), e.valore); });
    Aggiungi(b, 1);
    b.orologio.Quando(0.2, [&] { Aggiungi(b, 2); });
    b.orologio.Quando(0.4, [&] { Aggiungi(b, 3); });
    b.suono.Attendi(0.5);
    EXPECT_TRUE(arrivi.empty());
    b.pompa.PompaEventi();
    EXPECT_EQ(arrivi, (std::vector<std::pair<double, int>>{{0.5, 1}, {0.5, 2}, {0.5, 3}}));
}

TEST(Attendi, EndsPastMidnightToo) {
    BancoSuono b;
    b.orologio.PonOraDelGiorno(86399);
    b.suono.Attendi(5);
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 5);
    EXPECT_EQ(b.orologio.OraDelGiorno(), 4);
}

TEST(SuonaSigla, PlaysItsFiveNotesInTheirTimes) {
    BancoSuono b;
    b.suono.SuonaSigla(1);
    const std::vector<Voce> attese = {
        {0, Nota(71, 127)},   {0.35, Nota(71, 0)}, {0.35, Nota(72, 127)}, {0.7, Nota(72, 0)},
        {0.7, Nota(69, 127)}, {1.05, Nota(69, 0)}, {1.05, Nota(64, 127)}, {1.4, Nota(64, 0)},
        {1.4, Nota(69, 127)}, {1.75, Nota(69, 0)}};
    ASSERT_EQ(b.uscita.messaggi.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) {
        EXPECT_EQ(b.uscita.messaggi[i].messaggio, attese[i].messaggio) << i;
        EXPECT_NEAR(b.uscita.messaggi[i].istante, attese[i].istante, 1e-9) << i;
    }
    EXPECT_NEAR(b.orologio.Adesso(), 1.75, 1e-9);
}

TEST(SuonaSigla, SoundsOnTheChannelThatItIsTold) {
    BancoSuono b;
    b.suono.SuonaSigla(10);
    EXPECT_EQ(b.uscita.ConStato(0x99).size(), 10U);
    EXPECT_EQ(b.uscita.ConStato(0x90).size(), 0U);
}

TEST(SuonaSigla, LeavesTheNoteOfTheDrillAlone) {
    BancoSuono b;
    b.suono.SuonaNota(24);
    b.suono.SuonaSigla(1);
    EXPECT_EQ(b.suono.UltimaNota, 24);
}

}  // namespace corvana::prova
