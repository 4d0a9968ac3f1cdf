// How windows open, lie upon each other, and close.
#include <gtest/gtest.h>

#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {
using Diario = std::vector<std::string>;
}

TEST(Finestre, AWindowIsLoadedThenShownThenActivated) {
    Banco b;
    FinestraProva f;
    std::vector<std::size_t> mostrate;
    f.alCaricamento = [&] { mostrate.push_back(b.specchio.mostrate.size()); };
    f.allAttivazione = [&] { mostrate.push_back(b.specchio.mostrate.size()); };
    b.finestre.Mostra(f);
    EXPECT_EQ(f.diario, (Diario{"load", "activate"}));
    EXPECT_EQ(mostrate, (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(b.finestre.Davanti(), &f);
}

TEST(Finestre, WhatLoadingChangesIsShownWithTheWindowAndIsntToldTwice) {
    Banco b;
    b.specchio.registra = true;
    FinestraProva f;
    f.alCaricamento = [&] { f.bottone.Caption = "loaded"; };
    b.finestre.Mostra(f);
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Finestre, ARequestToCloseUnloadsAndTellsTheMirror) {
    BancoFinestra b;
    b.Accoda(Fatto::Chiudi, "");
    b.finestre.FinoAllUltima();
    EXPECT_EQ(b.finestra.diario, (Diario{"load", "activate", "unload"}));
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmProva"}));
    EXPECT_EQ(b.finestre.Davanti(), nullptr);
}

TEST(Finestre, AWindowStillHasItsIdentityWhenTheMirrorHearsThatItCloses) {
    BancoFinestra b;
    const std::uint32_t identita = b.finestra.Identita();
    b.finestre.Scarica(b.finestra);
    EXPECT_EQ(b.specchio.identitaChiuse, (std::vector<std::uint32_t>{identita}));
    EXPECT_EQ(b.finestra.Identita(), 0U);
}

TEST(Finestre, UnloadMayRefuse) {
    BancoFinestra b;
    b.finestra.rifiuta = true;
    EXPECT_FALSE(b.finestre.Scarica(b.finestra));
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
    EXPECT_TRUE(b.specchio.chiuse.empty());
    b.finestra.rifiuta = false;
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
}

TEST(Finestre, ClosingAWindowThatIsntOpenDoesNothing) {
    Banco b;
    FinestraProva f;
    EXPECT_TRUE(b.finestre.Scarica(f));
    EXPECT_TRUE(f.diario.empty());
}

TEST(Finestre, TheProgramRunsUntilTheLastWindowIsGone) {
    Banco b;
    FinestraProva f;
    b.finestre.Mostra(f);
    b.Clicca(1, "bottone");
    b.Fa(2, Fatto::Chiudi, "");
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.FinoAllUltima(); }));
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 2);
    EXPECT_EQ(f.diario, (Diario{"load", "activate", "click", "unload"}));
}

TEST(Finestre, AWindowThatClosesItselfOnActivationIsGone) {
    Banco b;
    FinestraProva f;
    f.allAttivazione = [&] { b.finestre.Scarica(f); };
    b.finestre.Mostra(f);
    EXPECT_EQ(b.finestre.Davanti(), nullptr);
    b.finestre.FinoAllUltima();
}

TEST(Modale, ShowingReturnsWhenItHasClosedAndTheWindowBeneathIsActivatedAnew) {
    BancoFinestra b;
    FinestraProva sopra("frmSopra");
    b.finestra.bottone.Click = [&] {
        b.finestre.MostraModale(sopra);
        b.finestra.diario.emplace_back("returned");
    };
    b.Clicca(1, "bottone");
    b.Fa(2, Fatto::Chiudi, "");
    b.Fine(3);
    EXPECT_TRUE(b.SvolgiCopione([&] { b.finestre.FinoAllUltima(); }));
    EXPECT_EQ(b.finestra.diario, (Diario{"load", "activate", "activate", "returned"}));
    EXPECT_EQ(sopra.diario, (Diario{"load", "activate", "unload"}));
    EXPECT_EQ(b.specchio.mostrate, (Diario{"frmProva", "modal frmSopra"}));
}

TEST(Modale, WhileItIsUpOnlyItGetsEvents) {
    BancoFinestra b;
    FinestraProva sopra("frmSopra");
    b.finestra.bottone.Click = [&] { b.finestre.MostraModale(sopra); };
    const Evento sotto = b.Fatta({}, "dentro");
    b.Clicca(1, "bottone");
    b.Quando(2, [&] { b.coda.Aggiungi(sotto); });
    b.Clicca(3, "dentro");
    b.Fine(4);
    EXPECT_TRUE(b.SvolgiCopione([&] { b.finestre.FinoAllUltima(); }));
    EXPECT_EQ(b.finestra.diario, (Diario{"load", "activate"}));
    EXPECT_EQ(sopra.diario, (Diario{"load", "activate", "inner click"}));
}

TEST(Modale, ARefusedCloseKeepsItUp) {
    BancoFinestra b;
    FinestraProva sopra("frmSopra");
    sopra.rifiuta = true;
    b.Fa(1, Fatto::Chiudi, "");
    b.Quando(2, [&] { sopra.rifiuta = false; });
    b.Fa(3, Fatto::Chiudi, "");
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.MostraModale(sopra); }));
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 3);
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(Modale, TwoLieUponEachOtherAndCloseInTurn) {
    BancoFinestra b;
    FinestraProva sopra("frmSopra"), cima("frmCima");
    sopra.bottone.Click = [&] { b.finestre.MostraModale(cima); };
    b.Clicca(1, "bottone");
    b.Fa(2, Fatto::Chiudi, "");
    b.Fa(3, Fatto::Chiudi, "");
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.MostraModale(sopra); }));
    EXPECT_EQ(b.specchio.chiuse, (Diario{"frmCima", "frmSopra"}));
    EXPECT_EQ(sopra.diario, (Diario{"load", "activate", "activate", "unload"}));
}

TEST(Modale, AFaultInItIsShownAndItStaysUp) {
    BancoFinestra b;
    FinestraProva sopra("frmSopra");
    sopra.bottone.Click = [] { throw std::runtime_error("wrong"); };
    b.Clicca(1, "bottone");
    b.Fa(2, Fatto::Chiudi, "");
    EXPECT_FALSE(b.SvolgiCopione([&] { b.finestre.MostraModale(sopra); }));
    EXPECT_EQ(b.riquadri.messaggi, (Diario{"51\r\nwrong"}));
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 2);
}

}  // namespace corvana::prova
