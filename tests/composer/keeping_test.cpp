// A melody that isn't saved is kept for the next run from each change on, until it is saved or
// left.
#include <gtest/gtest.h>

#include "tests/composer/arrows_rig.h"
#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

struct BancoTenuta : BancoAMano {
    using BancoAMano::BancoAMano;

    /// What the next run would find.
    std::optional<MelodiaTenuta> Tenuta() const {
        const auto byte = custode.Contenuto();
        return byte ? LeggiTenuta(*byte) : std::nullopt;
    }
    std::string NoteTenute() const { return Tenuta() ? Tenuta()->voci[soprano].note : "nothing"; }
    /// Lets the events through that wait, and time pass.
    void Passa(double secondi) {
        pompa.PompaEventi();
        pompa.Attendi(secondi);
    }
    /// A modified melody of one note that is kept.
    void Comincia() {
        Nota();
        Passa(0.1);
        ASSERT_EQ(NoteTenute(), "60;");
    }
};

}  // namespace

TEST(MelodiaNonSalvata, WhileNothingIsChangedNothingIsKept) {
    BancoTenuta b;
    b.Figura(3);
    b.Passa(1);
    EXPECT_FALSE(b.custode.Contenuto());
    EXPECT_EQ(b.custode.tenute + b.custode.lasciate + b.custode.fissate, 0);
}

TEST(MelodiaNonSalvata, AChangeIsKeptBeforeTimePasses) {
    BancoTenuta b;
    b.Pausa();
    EXPECT_FALSE(b.custode.Contenuto());
    b.Quando(b.pompa.Adesso(), [&] { EXPECT_EQ(b.NoteTenute(), "00;"); });
    b.Passa(0.1);
    EXPECT_EQ(b.custode.tenute, 1);
}

TEST(MelodiaNonSalvata, AllThatTheWindowHoldsOfItIsKept) {
    BancoTenuta b;
    b.Voce(soprano, "60;62;", "1;0.5;", "n;s;");
    b.Voce(basso, "48;", "4");
    b.melodia.voci[basso].strumento = 32;
    b.finestra.play.Slider1.PonValore(90);
    b.Tocca("lblTs");
    b.finestra.pulsi.Pulsazioni.PonTesto("3");
    b.finestra.pulsi.DurataPulsazioni.PonTesto("8");
    b.finestra.pulsi.InizioPuls.PonValore(2);
    b.finestra.riferimenti.lstBookMark.List = {"1 ÷ 2 ÷Tutta", "1 ÷ 1 ÷ inizio"};
    b.melodia.nomeMelodia = "canto";
    b.finestra.stato.lblNome.Caption = "Salvato: canto";
    b.globali.percorsoCorrente = "/home/mine/";
    b.Tocca("cmdSimbNote3");
    b.Passa(0.1);
    MelodiaTenuta attesa;
    attesa.voci[soprano] = {"60;62;", "1;0.5;", "n;s;", 16};
    attesa.voci[contralto].strumento = attesa.voci[tenore].strumento = 16;
    attesa.voci[basso] = {"48;", "4;", "n;", 32};
    attesa.tempo = 90;
    attesa.metroAttivo = true;
    attesa.pulsazioni = "3";
    attesa.durataPulsazioni = "8";
    attesa.inizioPuls = 2;
    attesa.riferimenti = {"1 ÷ 2 ÷Tutta", "1 ÷ 1 ÷ inizio"};
    attesa.nome = "canto";
    attesa.nomeMostrato = "Salvato: canto";
    attesa.cartella = "/home/mine/";
    ASSERT_TRUE(b.Tenuta());
    EXPECT_TRUE(*b.Tenuta() == attesa);
}

TEST(MelodiaNonSalvata, WhatIsntChangedIsHandedOverOnce) {
    BancoTenuta b;
    b.Comincia();
    const int tenute = b.custode.tenute;
    for (int figura = 0; figura < 7; ++figura) {
        b.Figura(figura);
        b.Passa(0.1);
    }
    EXPECT_EQ(b.custode.tenute, tenute);
}

TEST(MelodiaNonSalvata, WithoutAnEventNobodyLooks) {
    BancoTenuta b;
    b.Comincia();
    b.melodia.voci[soprano].testoNote = "72;";
    b.Passa(100);
    EXPECT_EQ(b.NoteTenute(), "60;");
    b.Figura(3);
    b.Passa(0.1);
    EXPECT_EQ(b.NoteTenute(), "72;");
}

TEST(MelodiaNonSalvata, AChangeDuringAPlayIsKeptBeforeTheNextTick) {
    BancoTenuta b;
    b.Voce(soprano, "60;62;", "1");
    b.NelTick(3, [&] {
        EXPECT_FALSE(b.Tenuta());
        Evento cambio;
        cambio.fatto = Fatto::Change;
        cambio.valore = 100;
        b.coda.Aggiungi(b.Fatta(cambio, "Slider1"));
    });
    b.NelTick(4, [&] {
        ASSERT_TRUE(b.Tenuta());
        EXPECT_EQ(b.Tenuta()->tempo, 100);
    });
    b.Suona();
    EXPECT_TRUE(b.Modificata());
}

TEST(MelodiaNonSalvata, AChangeWhileAnArrowIsHeldIsKept) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Tieni(1, 3, 1);
    b.Fa(1.5, Fatto::Change, "Slider1", 100);
    b.Quando(1.4, [&] { EXPECT_FALSE(b.custode.Contenuto()); });
    b.Quando(2, [&] {
        EXPECT_TRUE(b.Premuta());
        EXPECT_TRUE(b.custode.Contenuto());
    });
    b.Esegui(4);
}

TEST(MelodiaNonSalvata, AChangeMadeFromAWindowOverItIsKept) {
    struct Altra final : Form {
        Altra() : Form("altra") {}
        Bottone scegli{*this, "scegli"};
    } altra;
    BancoTenuta b;
    b.Voce(soprano, "60;", "1");
    b.finestra.stato.lblNome.Click = [&] { b.finestre.MostraModale(altra); };
    altra.scegli.Click = [&] { b.finestra.mix.SceltaStrum(40); };
    const double t = b.pompa.Adesso();
    b.Clicca(t + 1, "lblNome");
    b.Clicca(t + 2, "scegli");
    b.Quando(t + 3, [&] {
        EXPECT_EQ(b.finestre.Davanti(), &altra);
        ASSERT_TRUE(b.Tenuta());
        EXPECT_EQ(b.Tenuta()->voci[soprano].strumento, 40);
    });
    b.Fa(t + 4, Fatto::Chiudi, "");
    b.Fine(t + 5);
    b.SvolgiCopione([&] { b.finestra.CicloResidente(); });
}

TEST(MelodiaNonSalvata, BeforeABoxOpensItIsKept) {
    BancoTenuta b;
    b.melodia.nomeMelodia = "canto";
    b.file.erroreScrivi = ENOSPC;
    b.riquadri.durante = [&](const std::string&) { EXPECT_EQ(b.NoteTenute(), "60;"); };
    b.Insieme(b.pompa.Adesso(), {{Fatto::Click, "cmdInsNota"}, {Fatto::Click, "mnuSalva"}});
    b.pompa.AttendiEvento(b.pompa.Adesso() + 1);
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
}

TEST(MelodiaNonSalvata, ASaveLetsItGo) {
    BancoTenuta b;
    b.Comincia();
    b.melodia.nomeMelodia = "canto";
    b.Tocca("mnuSalva");
    b.Passa(0.1);
    EXPECT_FALSE(b.Modificata());
    EXPECT_FALSE(b.custode.Contenuto());
    b.Figura(3);
    b.Passa(0.1);
    EXPECT_EQ(b.custode.lasciate, 1);
}

TEST(MelodiaNonSalvata, ASaveThatFailsKeepsIt) {
    BancoTenuta b;
    b.Comincia();
    b.melodia.nomeMelodia = "canto";
    b.file.erroreScrivi = ENOSPC;
    b.Tocca("mnuSalva");
    b.Passa(0.1);
    EXPECT_EQ(b.NoteTenute(), "60;");
}

TEST(MelodiaNonSalvata, ASaveOntoARemovableMediumLetsItGo) {
    BancoTenuta b;
    b.Comincia();
    b.melodia.nomeMelodia = "canto";
    b.file.supportoRimovibile = "/media/penna/";
    b.Tocca("mnuSalvaA");
    b.Passa(0.1);
    EXPECT_FALSE(b.Modificata());
    EXPECT_FALSE(b.custode.Contenuto());
}

TEST(MelodiaNonSalvata, AResetLetsItGo) {
    BancoTenuta b;
    b.Comincia();
    b.Tocca("cmdReset");
    b.Passa(0.1);
    EXPECT_FALSE(b.custode.Contenuto());
}

TEST(MelodiaNonSalvata, TheSameMelodyEnteredAnewIsKeptAnew) {
    BancoTenuta b;
    b.Comincia();
    b.Tocca("cmdReset");
    b.Passa(0.1);
    ASSERT_FALSE(b.custode.Contenuto());
    b.Comincia();
}

TEST(MelodiaNonSalvata, AMelodyThatIsLoadedOverItLetsItGo) {
    BancoTenuta b;
    b.Comincia();
    b.finestra.archivio.mnuApri_Click();
    b.PonFile("altra", "72;\r\n1;\r\nn;\r\n 60 \r\n 16 \r\n");
    b.NelTick(1, [&] { EXPECT_FALSE(b.custode.Contenuto()); });
    b.Tocca("cmdEseguiFile");
    b.Passa(0.1);
    EXPECT_EQ(b.Testi()[0], "72;");
    EXPECT_FALSE(b.custode.Contenuto());
}

TEST(MelodiaNonSalvata, AfterItWasSavedTheNextChangeIsKept) {
    BancoTenuta b;
    b.Comincia();
    b.melodia.nomeMelodia = "canto";
    b.Tocca("mnuSalva");
    b.Nota();
    b.Passa(0.1);
    EXPECT_EQ(b.NoteTenute(), "60;60;");
}

TEST(MelodiaNonSalvata, AYesToTheQuestionLetsItGoBeforeTheWindowIsClosed) {
    BancoTenuta b;
    b.Comincia();
    b.riquadri.risposte = {true};
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
    EXPECT_FALSE(b.custode.Contenuto());
    EXPECT_EQ(b.custode.fissate, 1);
}

TEST(MelodiaNonSalvata, ANoToTheQuestionKeepsIt) {
    BancoTenuta b;
    b.Comincia();
    b.riquadri.risposte = {false};
    EXPECT_FALSE(b.finestre.Scarica(b.finestra));
    EXPECT_EQ(b.NoteTenute(), "60;");
    b.Nota();
    b.Passa(0.1);
    EXPECT_EQ(b.NoteTenute(), "60;60;");
}

TEST(MelodiaNonSalvata, AYesThatAPlayMakesVoidKeepsIt) {
    BancoTenuta b;
    b.Comincia();
    b.riquadri.risposte = {true};
    b.NelTick(3, [&] { EXPECT_FALSE(b.finestre.Scarica(b.finestra)); });
    b.Suona();
    EXPECT_EQ(b.NoteTenute(), "60;");
}

TEST(MelodiaNonSalvata, ACloseWithNothingToLoseAsksNothingOfTheDisk) {
    BancoTenuta b;
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
    EXPECT_EQ(b.custode.tenute + b.custode.lasciate + b.custode.fissate, 0);
}

TEST(MelodiaNonSalvata, OnceTheWindowIsClosedNobodyLooks) {
    BancoTenuta b;
    b.Comincia();
    b.riquadri.risposte = {true};
    ASSERT_TRUE(b.finestre.Scarica(b.finestra));
    b.finestra.stato.lblModificato.Visible = true;
    b.coda.Aggiungi({});
    b.Passa(1);
    EXPECT_FALSE(b.custode.Contenuto());
}

TEST(MelodiaNonSalvata, TheEndOfTheProgramAsksNobodyAndFixesWhatIsKept) {
    for (const bool suona : {false, true}) {
        BancoTenuta b;
        b.Comincia();
        const double t = b.pompa.Adesso();
        if (suona) b.Clicca(t + 0.5, "cmdPlay");
        b.Quando(t + 1, [&] { b.coda.ChiediFine(); });
        b.Fine(t + 100);
        EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.FinoAllUltima(); }));
        EXPECT_TRUE(b.riquadri.messaggi.empty());
        EXPECT_EQ(b.NoteTenute(), "60;");
        EXPECT_EQ(b.custode.fissate, 1);
        EXPECT_EQ(b.custode.lasciate, 0);
    }
}

TEST(MelodiaNonSalvata, AChangeJustBeforeTheEndOfTheProgramIsKept) {
    BancoTenuta b;
    b.Comincia();
    b.Pausa();
    b.coda.ChiediFine();
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.FinoAllUltima(); }));
    EXPECT_EQ(b.NoteTenute(), "60;00;");
    EXPECT_EQ(b.custode.fissate, 1);
    EXPECT_EQ(b.custode.lasciate, 0);
}

}  // namespace corvana::prova
