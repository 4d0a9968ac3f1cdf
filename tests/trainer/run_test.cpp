// The begin and the end of a run, and its results.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Coppie = std::vector<std::pair<int, int>>;

/// A run on the first row (n43, SI, key H) started at 3.
struct BancoCorsa : BancoPrincipale {
    BancoCorsa() { Clicca(3, "Start"); }
    void Vai(double fine) {
        Fine(fine);
        EXPECT_TRUE(Avvia());
    }
};

}  // namespace

TEST(Corsa, ItsBeginPutsAllCountersBackAndFillsTheBar) {
    BancoCorsa b;
    b.Tasto(4, 'D');
    b.Tasto(4, 'H');
    b.Clicca(5, "Start");
    b.Clicca(6, "Start");
    b.Vai(7);
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0);
    EXPECT_EQ(b.punteggio.conta.Text(), "0");
    EXPECT_EQ(b.punteggio.er.Text(), "0");
    EXPECT_EQ(b.punteggio.PercEs.Text(), "0");
    EXPECT_EQ(b.punteggio.PercMet.Height(), b.punteggio.PercBg.Height());
    EXPECT_EQ(b.punteggio.PercMet.Top(), b.punteggio.PercBg.Top());
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
}

TEST(Corsa, WhileItLastsMenusExitAndRulerAreOff) {
    BancoCorsa b;
    b.Vai(4);
    for (const Controllo* c : {static_cast<Controllo*>(&b.finestra.menu.es),
                               static_cast<Controllo*>(&b.finestra.menu.Opzioni),
                               static_cast<Controllo*>(&b.finestra.menu.Risorse),
                               static_cast<Controllo*>(&b.finestra.menu.f1),
                               static_cast<Controllo*>(&b.finestra.menu.Esci),
                               static_cast<Controllo*>(&b.finestra.cmdEsci)})
        EXPECT_FALSE(c->Enabled()) << c->Name;
    EXPECT_FALSE(b.finestra.pentagramma.Regolo.Visible());
    EXPECT_TRUE(b.finestra.menu.Help.Enabled());
    EXPECT_TRUE(b.finestra.risposte.psi.Enabled());
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Stop");
    EXPECT_EQ(b.finestra.esercizio.Start.BackColor(), b.finestra.risposte.pdo.BackColor());
}

TEST(Corsa, ItsEndPutsThemOnAgain) {
    BancoCorsa b;
    b.Clicca(4, "Start");
    b.Vai(5);
    for (const Controllo* c : {static_cast<Controllo*>(&b.finestra.menu.es),
                               static_cast<Controllo*>(&b.finestra.menu.Opzioni),
                               static_cast<Controllo*>(&b.finestra.menu.Risorse),
                               static_cast<Controllo*>(&b.finestra.menu.f1),
                               static_cast<Controllo*>(&b.finestra.menu.Esci),
                               static_cast<Controllo*>(&b.finestra.cmdEsci),
                               static_cast<Controllo*>(&b.finestra.cmdEscibg)})
        EXPECT_TRUE(c->Utilizzabile()) << c->Name;
    EXPECT_TRUE(b.finestra.pentagramma.Regolo.Visible());
    EXPECT_FALSE(b.finestra.risposte.psi.Enabled());
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Start");
    EXPECT_EQ(b.finestra.esercizio.Start.BackColor(), b.finestra.cmdEsci.BackColor());
    EXPECT_FALSE(b.finestra.esercizio.InCorso);
}

TEST(Corsa, WhileItLastsNoExitClosesTheWindow) {
    for (const char* uscita : {"cmdEsci", "cmdEscibg", "Esci"}) {
        BancoCorsa b;
        b.Clicca(4, uscita);
        b.Vai(5);
        EXPECT_TRUE(b.finestra.esercizio.InCorso) << uscita;
    }
}

TEST(Corsa, StoppedBeforeAnyAnswerItShowsNoPanelAndAnEmptyStaff) {
    BancoCorsa b;
    b.Clicca(4, "Start");
    b.Vai(5);
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
    EXPECT_TRUE(b.NoteInVista().empty());
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "");
}

TEST(Corsa, ItsEndSilencesTheNote) {
    BancoCorsa b;
    b.Quando(3.5, [&] { EXPECT_EQ(b.uscita.NoteAccese(), (Coppie{{1, 59}})); });
    b.Clicca(4, "Start");
    b.Vai(5);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(Risultati, ShowTheCountsAndTheScoreBehindTheirTexts) {
    BancoCorsa b;
    b.Quando(2.9, [&] {
        TestiLingua& t = b.globali.testi;
        t.TxtRisposteEsatte = "esatte ";
        t.TxtRisposteErrate = "errate ";
        t.TxtRisposteDate = "date ";
        t.TxtPercentuale = "perc ";
        t.TxtTempoImpiegato = "tempo ";
    });
    b.Tasto(4, 'H');
    b.Tasto(5, 'D');
    b.Clicca(63, "Start");
    b.Vai(64);
    EXPECT_TRUE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.punteggio.Lresatte.Caption(), "esatte 1");
    EXPECT_EQ(b.punteggio.Lrerrate.Caption(), "errate 1");
    EXPECT_EQ(b.punteggio.Ridate.Caption(), "date 2");
    EXPECT_EQ(b.punteggio.Lnmostrate.Caption(), "perc 50.00%");
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "tempo 1:0 mm:ss");
}

TEST(Risultati, WithoutALanguageFileTheirTextsAreBare) {
    BancoCorsa b;
    b.Tasto(4, 'H');
    b.Clicca(5, "Start");
    b.Vai(6);
    EXPECT_EQ(b.punteggio.Lresatte.Caption(), "1");
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "0:2 mm:ss");
}

TEST(Risultati, TheHourIsLostAndNoFieldIsPadded) {
    BancoCorsa b;
    b.Tasto(4, 'H');
    b.Clicca(3 + 61 * 60 + 5, "Start");
    b.Vai(5000);
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "1:5 mm:ss");
}

TEST(Risultati, ARunAcrossMidnightHasItsTime) {
    BancoCorsa b;
    b.orologio.PonOraDelGiorno(86400 - 30);
    b.Tasto(4, 'H');
    b.Clicca(3 + 90, "Start");
    b.Vai(100);
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "1:30 mm:ss");
}

TEST(Risultati, ASecondRunHasATimeOfItsOwn) {
    BancoCorsa b;
    b.Tasto(4, 'H');
    b.Clicca(3 + 100, "Start");
    b.Quando(110, [&] { EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "1:40 mm:ss"); });
    b.Clicca(200, "Start");
    b.Tasto(201, 'H');
    b.Clicca(207, "Start");
    b.Vai(210);
    EXPECT_EQ(b.punteggio.Tempoimp.Caption(), "0:7 mm:ss");
}

TEST(Risultati, StandUntilTheNextRunBegins) {
    BancoCorsa b;
    b.Tasto(4, 'H');
    b.Clicca(5, "Start");
    b.Clicca(6, "difficolt", 3);
    b.Clicca(6, "mnuAutomatico");
    b.Clicca(6, "mnuNormale");
    b.Quando(7, [&] { EXPECT_TRUE(b.punteggio.frmRisultati.Visible()); });
    b.Clicca(8, "Start");
    b.Vai(9);
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
}

TEST(Corsa, TheFirstNotesAfterAFreshStartRepeatFromOneStartToTheNext) {
    std::vector<std::vector<int>> corse;
    for (int avvio = 0; avvio < 2; ++avvio) {
        BancoPrincipale b;
        CasualeFisso casuale;
        CorvanaMainF finestra(b.Con(casuale), {});
        b.PonStato("14;64;16;30;a");
        b.Clicca(3, "Start");
        corse.emplace_back();
        for (int i = 0; i < 100; ++i)
            b.Quando(4 + 2 * i, [&] { corse.back().push_back(finestra.stato.NotaCorrente); });
        b.Fine(300);
        b.SvolgiCopione([&] {
            b.finestre.Mostra(finestra);
            b.finestre.FinoAllUltima();
        });
    }
    ASSERT_EQ(corse[0].size(), 100U);
    EXPECT_EQ(corse[0], corse[1]);
    corse[0].resize(5);
    EXPECT_EQ(corse[0], (std::vector<int>{55, 20, 60, 56, 20})) << "as at any other start";
}

TEST(Corsa, InTheFiveOctavesNoMissingNumberEverComesUp) {
    BancoPrincipale b;
    CasualeFisso casuale;
    CorvanaMainF finestra(b.Con(casuale), {});
    finestra.stato.LimiteBasso = 14;
    finestra.stato.LimiteAlto = 64;
    finestra.menu.Suono1_Click();
    std::array<int, 256> volte{};
    for (int i = 0; i < 100000; ++i) {
        finestra.esercizio.Mostranota();
        ++volte.at(finestra.stato.NotaCorrente);
    }
    for (int numero = 0; numero < 256; ++numero)
        EXPECT_EQ(volte.at(static_cast<std::size_t>(numero)) > 0,
                  numero >= 14 && CercaPosizione(numero))
            << numero;
}

}  // namespace corvana::prova
