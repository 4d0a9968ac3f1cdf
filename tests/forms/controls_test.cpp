#include "forms/controls.h"

#include <gtest/gtest.h>

#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;

int NumeroDelGuasto(const std::function<void()>& f) {
    try {
        f();
    } catch (const Guasto& guasto) {
        return guasto.Numero();
    }
    return 0;
}

}  // namespace

TEST(Lista, ASelectionFromCodeFiresClickEachTimeTheSameRowToo) {
    FinestraProva f;
    f.lista.Seleziona(1);
    f.lista.Seleziona(1);
    f.lista.Seleziona(2);
    EXPECT_EQ(f.diario, (Diario{"row 1", "row 1", "row 2"}));
}

TEST(Lista, ASelectionWithoutAHandlerIsASelectionAllTheSame) {
    FinestraProva f;
    f.lista.Click = nullptr;
    f.lista.Seleziona(2);
    EXPECT_EQ(f.lista.ListIndex(), 2);
}

TEST(Lista, RowsAreAddedReplacedAndCleared) {
    FinestraProva f;
    f.lista.AddItem("d");
    f.lista.PonRiga(0, "A");
    EXPECT_EQ(f.lista.List(), (Righe{"A", "b", "c", "d"}));
    f.lista.Seleziona(3);
    f.lista.Clear();
    EXPECT_TRUE(f.lista.List().empty());
    EXPECT_EQ(f.lista.ListIndex(), -1);
}

TEST(Lista, ARowThatIsntThereCantBeReplaced) {
    FinestraProva f;
    EXPECT_THROW(f.lista.PonRiga(3, "x"), std::out_of_range);
    EXPECT_THROW(f.lista.PonRiga(-1, "x"), std::out_of_range);
    EXPECT_EQ(f.lista.List(), (Righe{"a", "b", "c"}));
}

TEST(Lista, ARowThatTheUserCantHaveChosenLeavesTheSelection) {
    BancoFinestra b;
    b.Accoda(Fatto::Click, "lista", 2);
    b.Accoda(Fatto::Click, "lista", 3);
    b.Accoda(Fatto::Click, "lista", -1);
    b.Consegna();
    EXPECT_EQ(b.finestra.lista.ListIndex(), 2);
}

TEST(Barra, AValueOutsideOfItsRangeIsAFaultAndChangesNothing) {
    FinestraProva f;
    f.barra.Min = 20;
    f.barra.Max = 140;
    f.barra.PonValore(30);
    f.diario.clear();
    EXPECT_EQ(NumeroDelGuasto([&] { f.barra.PonValore(19); }), guastoProprieta);
    EXPECT_EQ(NumeroDelGuasto([&] { f.barra.PonValore(141); }), guastoProprieta);
    EXPECT_EQ(f.barra.Value(), 30);
    EXPECT_TRUE(f.diario.empty());
}

TEST(Barra, BothEndsOfItsRangeAreInIt) {
    FinestraProva f;
    f.barra.Min = 20;
    f.barra.Max = 140;
    f.barra.PonValore(20);
    f.barra.PonValore(140);
    EXPECT_EQ(f.diario, (Diario{"change 20", "change 140"}));
}

TEST(Barra, SettingItFromCodeFiresChangeOnlyWhenItChanges) {
    FinestraProva f;
    f.barra.PonValore(5);
    f.barra.PonValore(5);
    f.barra.PonValore(6);
    EXPECT_EQ(f.diario, (Diario{"change 5", "change 6"}));
}

TEST(Barra, TheUsersMoveIsTakenBeforeItsHandlerRuns) {
    BancoFinestra b;
    b.finestra.diario.clear();
    b.Accoda(Fatto::Scroll, "barra", 40);
    b.Accoda(Fatto::Change, "barra", 41);
    b.Consegna();
    EXPECT_EQ(b.finestra.diario, (Diario{"scroll 40", "change 41"}));
}

TEST(Barra, AMoveBeyondItsEndsLeavesItsValue) {
    BancoFinestra b;
    b.Accoda(Fatto::Change, "barra", 101);
    b.Accoda(Fatto::Scroll, "barra", -1);
    b.Consegna();
    EXPECT_EQ(b.finestra.barra.Value(), 0);
}

TEST(Barra, MayHaveItsLargerEndFirst) {
    BancoFinestra b;
    b.finestra.barra.Min = 127;
    b.finestra.barra.Max = 0;
    b.finestra.barra.PonValore(127);
    EXPECT_EQ(NumeroDelGuasto([&] { b.finestra.barra.PonValore(128); }), guastoProprieta);
    EXPECT_EQ(NumeroDelGuasto([&] { b.finestra.barra.PonValore(-1); }), guastoProprieta);
    b.Accoda(Fatto::Change, "barra", 64);
    b.Consegna();
    EXPECT_EQ(b.finestra.barra.Value(), 64);
}

TEST(Spunta, TakesWhatTheUserMadeOfIt) {
    BancoFinestra b;
    b.finestra.diario.clear();
    b.Accoda(Fatto::Click, "spunta", 1);
    b.Accoda(Fatto::Click, "spunta", 0);
    b.Consegna();
    EXPECT_EQ(b.finestra.diario, (Diario{"checked", "unchecked"}));
}

TEST(Casella, TakesTheTextThatTheUserTyped) {
    BancoFinestra b;
    Evento e;
    e.fatto = Fatto::Change;
    e.testo = "perché";
    b.coda.Aggiungi(b.Fatta(e, "casella"));
    b.Consegna();
    EXPECT_EQ(b.finestra.casella.Text(), "perché");
    EXPECT_EQ(b.finestra.diario.back(), "text perché");
}

TEST(Casella, ALockedOneKeepsItsText) {
    BancoFinestra b;
    b.finestra.casella.Text = "12";
    b.finestra.casella.Locked = true;
    Evento e;
    e.fatto = Fatto::Change;
    e.testo = "x";
    b.coda.Aggiungi(b.Fatta(e, "casella"));
    b.Consegna();
    EXPECT_EQ(b.finestra.casella.Text(), "12");
}

TEST(Etichetta, IsOpaqueUntilItIsMadeTransparent) {
    BancoFinestra b;
    EXPECT_EQ(b.finestra.dentro.BackStyle(), fondoOpaco);
    b.specchio.registra = true;
    b.finestra.dentro.BackStyle = fondoTrasparente;
    const std::vector<SpecchioRegistrato::Cambio> attesi = {
        {"dentro", &Valori::BackStyle, fondoTrasparente}};
    EXPECT_EQ(b.specchio.cambi, attesi);
}

}  // namespace corvana::prova
