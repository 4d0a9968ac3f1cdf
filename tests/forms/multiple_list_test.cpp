// A list in which several rows can be selected.
#include <gtest/gtest.h>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

using Cambio = SpecchioRegistrato::Cambio;

struct FinestraMultipla final : Form {
    FinestraMultipla() : Form("frmMultipla") {
        lista.List = Righe{"a", "b", "c", "d"};
        lista.Click = [this] { visti.push_back(lista.Selected()); };
    }
    ListaMultipla lista{*this, "lista"};
    std::vector<NumeriRiga> visti;  ///< what was selected at each click
};

struct BancoMultiplo : Banco {
    FinestraMultipla finestra;

    BancoMultiplo() { finestre.Mostra(finestra); }

    void Clic(int riga, const NumeriRiga& scelte) {
        Evento e;
        e.valore = riga;
        e.scelte = scelte;
        coda.Aggiungi(Fatta(e, "lista"));
        pompa.PompaEventi();
    }
};

}  // namespace

TEST(ListaMultipla, BeginsWithNoRowSelectedAndTellsItsFaceThatSeveralCanBe) {
    const FinestraMultipla f;
    EXPECT_EQ(f.lista.Selected(), NumeriRiga{});
    EXPECT_EQ(f.lista.tipo, Genere::Lista);
    bool molte = false;
    for (const ProprietaBase* p : f.lista.ListaProprieta())
        molte = molte || (p->NomeProprieta() == &Valori::MultiSelect && p->Leggi() == Valore(true));
    EXPECT_TRUE(molte);
}

TEST(ListaMultipla, AClickBringsAllRowsThatAreSelectedBeforeItsHandlerRuns) {
    BancoMultiplo b;
    b.Clic(1, {1});
    b.Clic(3, {1, 3});
    b.Clic(1, {3});
    EXPECT_EQ(b.finestra.visti, (std::vector<NumeriRiga>{{1}, {1, 3}, {3}}));
    EXPECT_EQ(b.finestra.lista.ListIndex(), 1) << "the row that was touched last";
}

TEST(ListaMultipla, RowsThatTheUserCantHaveSelectedAreLeftOutAndTheOthersComeInOrderAndOnce) {
    BancoMultiplo b;
    b.Clic(2, {3, -1, 0, 4, 3, 1000});
    EXPECT_EQ(b.finestra.lista.Selected(), (NumeriRiga{0, 3}));
}

TEST(ListaMultipla, WhatTheUserSelectedIsntToldBackToTheFace) {
    BancoMultiplo b;
    b.specchio.registra = true;
    b.Clic(1, {1, 2});
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(ListaMultipla, ASelectionThatWasntDeliveredIsTakenBackOnTheFace) {
    BancoMultiplo b;
    b.Clic(1, {1});
    b.finestra.lista.Enabled = false;
    b.specchio.registra = true;
    b.Clic(2, {1, 2});
    EXPECT_EQ(b.finestra.lista.Selected(), (NumeriRiga{1}));
    EXPECT_EQ(b.specchio.cambi, (std::vector<Cambio>{{"lista", &Valori::ListIndex, 1},
                                                     {"lista", &Valori::Selected, NumeriRiga{1}}}));
}

TEST(ListaMultipla, ADoubleClickAloneChangesNoSelection) {
    BancoMultiplo b;
    b.Clic(1, {1, 2});
    Evento doppio;
    doppio.fatto = Fatto::DblClick;
    b.coda.Aggiungi(b.Fatta(doppio, "lista"));
    b.pompa.PompaEventi();
    EXPECT_EQ(b.finestra.lista.Selected(), (NumeriRiga{1, 2}));
}

TEST(ListaMultipla, NewRowsLeaveTheSelectionAndClearingTakesItAway) {
    BancoMultiplo b;
    b.Clic(1, {1, 3});
    b.finestra.lista.AddItem("e");
    EXPECT_EQ(b.finestra.lista.Selected(), (NumeriRiga{1, 3}));
    b.finestra.lista.Clear();
    EXPECT_EQ(b.finestra.lista.Selected(), NumeriRiga{});
    EXPECT_EQ(b.finestra.lista.ListIndex(), -1);
    EXPECT_TRUE(b.finestra.lista.List().empty());
}

}  // namespace corvana::prova
