#include "forms/windows.h"

#include <gtest/gtest.h>

#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;

struct BancoConsegna : BancoFinestra {
    BancoConsegna() { finestra.diario.clear(); }
    Diario& Visto() { return finestra.diario; }
};

}  // namespace

TEST(Consegna, EachKindOfEventReachesItsHandler) {
    BancoConsegna b;
    b.Accoda(Fatto::MouseMove, "bottone");
    b.Accoda(Fatto::MouseDown, "bottone");
    b.Accoda(Fatto::MouseUp, "bottone");
    b.Accoda(Fatto::Click, "bottone");
    b.Accoda(Fatto::DblClick, "bottone");
    b.Accoda(Fatto::Click, "voce");
    b.AccodaTasto(Fatto::KeyDown, 68);
    b.AccodaTasto(Fatto::KeyUp, 68);
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"move", "down", "up", "click", "double click", "entry", "key 68",
                                 "let go 68"}));
}

TEST(Consegna, AControlWithoutAHandlerTakesTheEventInSilence) {
    BancoConsegna b;
    for (const Fatto fatto : {Fatto::Click, Fatto::DblClick, Fatto::MouseDown, Fatto::MouseUp,
                              Fatto::MouseMove, Fatto::Change, Fatto::Scroll})
        b.Accoda(fatto, "figura");
    b.Consegna();
    EXPECT_TRUE(b.Visto().empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Consegna, ADisabledOrHiddenControlGetsNothing) {
    BancoConsegna b;
    b.finestra.bottone.Enabled = false;
    b.Accoda(Fatto::Click, "bottone");
    b.Consegna();
    b.finestra.bottone.Enabled = true;
    b.finestra.bottone.Visible = false;
    b.Accoda(Fatto::Click, "bottone");
    b.Consegna();
    EXPECT_TRUE(b.Visto().empty());
}

TEST(Consegna, AControlInADisabledOrHiddenFrameGetsNothing) {
    BancoConsegna b;
    b.finestra.cornice.Visible = false;
    b.finestra.menu.Enabled = false;
    b.Accoda(Fatto::Click, "dentro");
    b.Accoda(Fatto::Click, "voce");
    b.Consegna();
    EXPECT_TRUE(b.Visto().empty());
}

TEST(Consegna, IsDecidedWhenTheEventIsDeliveredNotWhenItWasMade) {
    BancoConsegna b;
    b.finestra.bottone.Enabled = false;
    b.Accoda(Fatto::Click, "bottone");
    b.finestra.bottone.Enabled = true;
    b.Accoda(Fatto::Click, "dentro");
    b.finestra.cornice.Enabled = false;
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"click"}));
}

TEST(Consegna, WhatAnUnusableControlShowsIsToldToItsFaceAgain) {
    BancoConsegna b;
    b.finestra.Enabled = false;
    b.finestra.lista.ListIndex = 1;
    b.finestra.casella.Text = "x";
    b.finestra.combo.ListIndex = 0;
    b.specchio.registra = true;
    b.Accoda(Fatto::Click, "lista", 2);
    b.Accoda(Fatto::Click, "combo", 3);
    b.Accoda(Fatto::Change, "barra", 50);
    b.Accoda(Fatto::Click, "spunta", 1);
    b.Accoda(Fatto::Change, "casella", 0);
    b.Consegna();
    const std::vector<SpecchioRegistrato::Cambio> attesi = {
        {"lista", &Valori::ListIndex, 1},
        {"combo", &Valori::ListIndex, 0},
        {"barra", &Valori::Value, 0},
        {"spunta", &Valori::Checked, false},
        {"casella", &Valori::Text, std::string("x")}};
    EXPECT_EQ(b.specchio.cambi, attesi);
    EXPECT_TRUE(b.Visto().empty());
}

TEST(Consegna, AWindowThatIsntInFrontGetsNothingAndItsFaceIsToldAgain) {
    BancoConsegna b;
    b.Accoda(Fatto::Click, "bottone");
    b.Accoda(Fatto::Click, "lista", 2);
    b.Accoda(Fatto::Scroll, "barra", 50);
    FinestraProva sopra("frmSopra");
    b.finestre.Mostra(sopra);
    b.specchio.registra = true;
    b.Consegna();
    EXPECT_TRUE(b.Visto().empty());
    EXPECT_EQ(b.finestra.lista.ListIndex(), -1);
    const std::vector<SpecchioRegistrato::Cambio> attesi = {{"lista", &Valori::ListIndex, -1},
                                                            {"barra", &Valori::Value, 0}};
    EXPECT_EQ(b.specchio.cambi, attesi);
    b.finestre.Scarica(sopra);
}

TEST(Consegna, AnEventOfAnEarlierShowingIsDropped) {
    BancoConsegna b;
    b.Accoda(Fatto::Click, "bottone");
    b.finestre.Scarica(b.finestra);
    b.finestre.Mostra(b.finestra);
    b.Visto().clear();
    b.Consegna();
    EXPECT_TRUE(b.Visto().empty());
}

TEST(Consegna, AnEventForNoWindowOrNoControlIsDropped) {
    BancoConsegna b;
    Evento e = b.Fatta({}, "bottone");
    const int oltre = static_cast<int>(b.finestra.Controlli().size());
    for (const int controllo : {-1, oltre, 1000000}) {
        e.controllo = controllo;
        b.coda.Aggiungi(e);
    }
    b.Accoda(Fatto::Click, "bottone");
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"click"}));
    b.finestre.Scarica(b.finestra);
    b.coda.Aggiungi(e);
    b.Consegna();
}

TEST(Consegna, WhatWasTypedThenTheLossOfTheFocusThenTheClickThatTookIt) {
    BancoConsegna b;
    Evento battuto;
    battuto.fatto = Fatto::Change;
    battuto.testo = "12";
    b.finestra.casella.LostFocus = [&] {
        b.Visto().push_back("left " + b.finestra.casella.Text());
    };
    b.finestra.casella.Invio = [&] { b.Visto().emplace_back("enter"); };
    b.coda.Aggiungi(b.Fatta(battuto, "casella"));
    b.Accoda(Fatto::Invio, "casella");
    b.Accoda(Fatto::LostFocus, "casella");
    b.Accoda(Fatto::Click, "bottone");
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"text 12", "enter", "left 12", "click"}));
}

TEST(Consegna, ABoxThatCantBeUsedAnyMoreHasLostTheFocusAllTheSame) {
    BancoConsegna b;
    b.finestra.casella.LostFocus = [&] { b.Visto().emplace_back("left"); };
    b.finestra.casella.Invio = [&] { b.Visto().emplace_back("enter"); };
    b.finestra.casella.Enabled = false;
    b.Accoda(Fatto::Invio, "casella");
    b.Accoda(Fatto::LostFocus, "casella");
    FinestraProva sopra("frmSopra");
    b.Consegna();
    b.Accoda(Fatto::LostFocus, "casella");
    b.finestre.Mostra(sopra);
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"left", "left"}));
    b.finestre.Scarica(sopra);
}

TEST(Consegna, AFaultThatEscapesAHandlerIsShownAndTheProgramGoesOn) {
    BancoConsegna b;
    b.finestra.dentro.Click = [] { throw Guasto(6, "Overflow"); };
    b.finestra.voce.Click = [] { throw std::logic_error("wrong"); };
    b.Accoda(Fatto::Click, "dentro");
    b.Accoda(Fatto::Click, "voce");
    b.Accoda(Fatto::Click, "bottone");
    b.Consegna();
    EXPECT_EQ(b.riquadri.messaggi, (Diario{"6\r\nOverflow", "51\r\nwrong"}));
    EXPECT_EQ(b.Visto(), (Diario{"click"}));
}

TEST(Consegna, AFaultInAKeyHandlerLeavesTheKeyHeld) {
    BancoConsegna b;
    b.finestra.alTasto = [] { throw Guasto(13, "Type mismatch"); };
    b.AccodaTasto(Fatto::KeyDown, 68);
    b.Consegna();
    EXPECT_TRUE(b.finestre.Tasti().Premuto(68));
    EXPECT_EQ(b.riquadri.messaggi, (Diario{"13\r\nType mismatch"}));
}

TEST(Consegna, TheEndOfTheScriptIsNoFault) {
    BancoConsegna b;
    b.finestra.bottone.Click = [] { throw FineCopione{}; };
    b.Accoda(Fatto::Click, "bottone");
    EXPECT_THROW(b.Consegna(), FineCopione);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Consegna, AHandlerMayPumpAndWhatWaitsRunsInsideOfIt) {
    BancoConsegna b;
    b.finestra.dentro.Click = [&] {
        b.Visto().emplace_back("begin");
        b.Consegna();
        b.Visto().emplace_back("end");
    };
    b.Accoda(Fatto::Click, "dentro");
    b.Accoda(Fatto::Click, "bottone");
    b.Consegna();
    EXPECT_EQ(b.Visto(), (Diario{"begin", "click", "end"}));
}

}  // namespace corvana::prova
