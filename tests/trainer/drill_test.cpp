// Normal mode: a note stays until it is named right.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Nomi = std::vector<std::string>;

/// A run on the first row started at 3. Without listed draws each note is its lowest, n43, SI: the
/// key H is right, D is wrong.
struct BancoNormale : BancoPrincipale {
    BancoNormale() { Clicca(3, "Start"); }
    void Vai(double fine) {
        Fine(fine);
        EXPECT_TRUE(Avvia());
    }
};

}  // namespace

TEST(ModoNormale, AWrongKeyThreeTimesThenTheRightOneGives25Percent) {
    BancoNormale b;
    for (int i = 0; i < 3; ++i)
        b.Tasto(4 + i, 'D');
    b.Tasto(8, 'H');
    b.Vai(9);
    EXPECT_EQ(b.punteggio.Errate, 3);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.punteggio.er.Text(), "3");
    EXPECT_EQ(b.punteggio.PercEs.Text(), "25.00%");
}

TEST(ModoNormale, TheCounterCountsRightAnswers) {
    BancoNormale b;
    for (const char tasto : {'H', 'H', 'D', 'H'})
        b.Tasto(4, tasto);
    b.Vai(5);
    EXPECT_EQ(b.punteggio.conta.Text(), "3");
    EXPECT_EQ(b.punteggio.er.Text(), "1");
    EXPECT_EQ(b.punteggio.Mostrate, 0);
}

TEST(ModoNormale, EachOfTheSevenKeysAndButtonsGivesItsAnswer) {
    const std::vector<std::tuple<int, int, std::string>> casi = {
        {44, 68, "pdo"},  {45, 97, "pre"}, {46, 70, "pmi"}, {47, 98, "pfa"},
        {48, 71, "psol"}, {49, 99, "pla"}, {50, 72, "psi"}};
    for (const auto& [posizione, codice, bottone] : casi) {
        BancoNormale b;
        b.Estrai(posizione, 43, 53);
        b.Estrai(posizione, 43, 53);
        b.Tasto(4, codice);
        b.Clicca(5, bottone);
        b.Vai(6);
        EXPECT_EQ(b.punteggio.Esatte, 2) << bottone;
        EXPECT_EQ(b.punteggio.Errate, 0) << bottone;
    }
}

TEST(ModoNormale, KeysThatAreNoAnswersInThisModeDoNothing) {
    BancoNormale b;
    for (int codice = 1; codice < 256; ++codice)
        if (codice != 68 && codice != 70 && codice != 71 && codice != 72 &&
            (codice < 97 || codice > 99))
            b.Tasto(4, codice);
    b.Vai(5);
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0);
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Stop");
}

TEST(ModoNormale, HoldingAKeyGivesOneAnswerOnItsRelease) {
    BancoNormale b;
    b.Premi(4, 'H');
    Evento ripetuta;
    ripetuta.fatto = Fatto::KeyDown;
    ripetuta.codice = 'H';
    ripetuta.ripetuto = true;
    for (int i = 0; i < 20; ++i)
        b.Manda(4.5 + i * 0.03, ripetuta, "");
    b.Quando(6, [&] { EXPECT_EQ(b.punteggio.Esatte, 0); });
    b.Lascia(7, 'H');
    b.Vai(8);
    EXPECT_EQ(b.punteggio.Esatte, 1);
}

TEST(ModoNormale, LosingTheKeyboardGivesNoAnswer) {
    BancoNormale b;
    b.Premi(4, 'H');
    b.Fa(5, Fatto::FuocoPerso, "");
    b.Vai(6);
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0);
    EXPECT_FALSE(b.finestre.Tasti().Premuto('H'));
}

TEST(ModoNormale, ARightAnswerBringsTheNextNoteAndNoWave) {
    BancoNormale b;
    b.Estrai(43, 43, 53);
    b.Estrai(47, 43, 53);
    b.Tasto(4, 'H');
    b.Vai(5);
    EXPECT_EQ(b.NoteInVista(), std::vector<int>{47});
    EXPECT_TRUE(b.Onde().empty());
    EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 65}}));
}

TEST(ModoNormale, AWrongAnswerPlaysItsCueAndTheNoteStays) {
    BancoNormale b;
    b.Tasto(4, 'D');
    b.Vai(5);
    ASSERT_EQ(b.uscita.onde.size(), 1U);
    EXPECT_EQ(b.uscita.onde[0].percorso, "/programma/note/rko.wav");
    EXPECT_EQ(b.uscita.onde[0].flags, 0x20001U);
    EXPECT_EQ(b.casuale.estratti, 1);
    EXPECT_EQ(b.NoteInVista(), std::vector<int>{43});
}

TEST(ModoNormale, TheSameNoteMayComeTwiceInARow) {
    BancoNormale b;
    b.Tasto(4, 'H');
    b.Tasto(5, 'H');
    b.Vai(6);
    EXPECT_EQ(b.finestra.stato.NotaCorrente, 43);
    EXPECT_EQ(b.punteggio.Esatte, 2);
}

TEST(ModoNormale, TheScoreIsShownAfterEachAnswer) {
    BancoNormale b;
    b.Quando(2.9, [&] {
        b.globali.testi.TxtRisposteDate = "date: ";
        b.globali.testi.TxtPercentuale = "perc: ";
    });
    b.Tasto(4, 'H');
    b.Tasto(5, 'D');
    b.Tasto(6, 'D');
    b.Vai(7);
    EXPECT_EQ(b.punteggio.Ridate.Caption(), "date: 3");
    EXPECT_EQ(b.punteggio.Lnmostrate.Caption(), "perc: 33.33%");
    EXPECT_EQ(b.punteggio.PercEs.Text(), "33.33%");
    EXPECT_EQ(b.punteggio.Percentuale, "33.33%");
    const Figura& fondo = b.punteggio.PercBg;
    EXPECT_EQ(b.punteggio.PercMet.Height(), fondo.Height() / 3);
    EXPECT_EQ(b.punteggio.PercMet.Top(), fondo.Top() + fondo.Height() - fondo.Height() / 3);
}

TEST(ModoNormale, AtMostOneAnswerIsRight) {
    BancoNormale b;
    b.Estrai(49, 43, 53);
    b.Vai(4);
    EXPECT_EQ(b.finestra.esercizio.RispostaGiusta,
              (std::array{false, false, false, false, false, true, false}));
}

TEST(ModoNormale, EscHasNoMeaning) {
    BancoNormale b;
    b.Tasto(4, 27);
    b.Vai(5);
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
}

TEST(ModoNormale, AChangeOfNamesShowsWithTheNextNote) {
    BancoNormale b;
    b.Quando(3.5, [&] { b.globali.NomiAnglo = true; });
    b.Tasto(4, 'H');
    b.Vai(5);
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "B");
}

TEST(ModoNormale, WithThePlainCueEachNoteSoundsTheWave) {
    BancoPrincipale b;
    b.Clicca(3, "Suono1");
    b.Clicca(4, "Start");
    b.Tasto(5, 'H');
    b.Tasto(6, 'D');
    b.Fine(7);
    b.Avvia();
    EXPECT_EQ(b.Onde(), (Nomi{"rok.wav", "rok.wav", "rko.wav"}));
    EXPECT_EQ(b.uscita.onde[0].flags, 0x20003U);
}

TEST(ModoNormale, NoAnswerCountsBeforeTheFirstRunOrAfterIt) {
    BancoPrincipale b;
    b.Clicca(2.5, "psi");
    b.Tasto(2.5, 'H');
    b.Clicca(3, "Start");
    b.Clicca(4, "Start");
    b.Clicca(5, "psi");
    b.Tasto(5, 'H');
    b.Fine(6);
    b.Avvia();
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0);
    EXPECT_TRUE(b.Onde().empty());
}

}  // namespace corvana::prova
