#include "forms/property.h"

#include <gtest/gtest.h>

#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Cambio = SpecchioRegistrato::Cambio;

struct BancoProprieta : BancoFinestra {
    BancoProprieta() { specchio.registra = true; }
};

std::vector<Nome> NomiDi(const Controllo& controllo) {
    std::vector<Nome> nomi;
    for (const ProprietaBase* p : controllo.ListaProprieta())
        nomi.push_back(p->NomeProprieta());
    return nomi;
}

}  // namespace

TEST(Proprieta, SetToWhatItHoldsAlreadyItIsSilent) {
    BancoProprieta b;
    b.finestra.bottone.Caption = "";
    b.finestra.bottone.Visible = true;
    b.finestra.bottone.Left = 0;
    b.finestra.lista.List = Righe{"a", "b", "c"};
    b.finestra.figura.Sfondo = Sfumatura{};
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Proprieta, AChangeTellsTheMirrorTheControlTheNameAndTheNewValue) {
    BancoProprieta b;
    b.finestra.bottone.Caption = "x";
    b.finestra.bottone.Enabled = false;
    b.finestra.figura.Top = 15;
    const std::vector<Cambio> attesi = {{"bottone", &Valori::Caption, std::string("x")},
                                        {"bottone", &Valori::Enabled, false},
                                        {"figura", &Valori::Top, 15}};
    EXPECT_EQ(b.specchio.cambi, attesi);
}

TEST(Proprieta, ListsAndGradientsAreToldWhole) {
    BancoProprieta b;
    const Sfumatura banda{Rgb(1, 2, 3), Rgb(4, 5, 6), true, false};
    b.finestra.lista.List = Righe{"z"};
    b.finestra.figura.Sfondo = banda;
    const std::vector<Cambio> attesi = {{"lista", &Valori::List, Righe{"z"}},
                                        {"figura", &Valori::Sfondo, banda}};
    EXPECT_EQ(b.specchio.cambi, attesi);
}

TEST(Proprieta, EachOfTwoChangesIsTold) {
    BancoProprieta b;
    b.finestra.bottone.Left = 10;
    b.finestra.bottone.Left = 0;
    ASSERT_EQ(b.specchio.cambi.size(), 2U);
    EXPECT_EQ(b.specchio.cambi[1], (Cambio{"bottone", &Valori::Left, 0}));
}

TEST(Proprieta, WhatTheUserMadeOfItIsTakenWithoutTellingTheFace) {
    BancoProprieta b;
    b.finestra.barra.Value.PonDaUtente(7);
    EXPECT_EQ(b.finestra.barra.Value(), 7);
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Proprieta, AWindowThatIsntShownTellsNobody) {
    Banco b;
    b.specchio.registra = true;
    FinestraProva finestra;
    finestra.bottone.Caption = "x";
    EXPECT_EQ(finestra.bottone.Caption(), "x");
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Proprieta, AClosedWindowTellsNobody) {
    BancoProprieta b;
    b.finestre.Scarica(b.finestra);
    b.finestra.bottone.Caption = "x";
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Proprieta, AControlListsItsOwnInTheOrderInWhichTheyWereMade) {
    FinestraProva finestra;
    const std::vector<Nome> comuni = {
        &Valori::Visible,     &Valori::Enabled,     &Valori::BackColor, &Valori::ForeColor,
        &Valori::ToolTipText, &Valori::Left,        &Valori::Top,       &Valori::Width,
        &Valori::Height,      &Valori::BorderStyle, &Valori::Sfondo,    &Valori::Ascolti};
    EXPECT_EQ(NomiDi(finestra.figura), comuni);
    auto conCaption = comuni;
    conCaption.push_back(&Valori::Caption);
    EXPECT_EQ(NomiDi(finestra.bottone), conCaption);
    auto conFondo = conCaption;
    conFondo.push_back(&Valori::BackStyle);
    EXPECT_EQ(NomiDi(finestra.dentro), conFondo);
}

TEST(Proprieta, IsReadByTheMirrorAsItStands) {
    FinestraProva finestra;
    finestra.barra.Value = 42;
    EXPECT_EQ(finestra.barra.Value.Leggi(), Valore(42));
}

TEST(Colore, IsTakenApartIntoItsThreeChannels) {
    const Colore c = Rgb(10, 200, 255);
    EXPECT_EQ(c, 0x00FFC80A);
    EXPECT_EQ(Rosso(c), 10);
    EXPECT_EQ(Verde(c), 200);
    EXPECT_EQ(Blu(c), 255);
}

TEST(Sfumatura, IsThereOnlyOnceItHasAColour) {
    EXPECT_FALSE(Sfumatura{}.Presente());
    EXPECT_TRUE((Sfumatura{Rgb(0, 0, 0), Rgb(0, 0, 0), false, false}.Presente()));
}

}  // namespace corvana::prova
