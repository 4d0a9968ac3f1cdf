// Where windows stand on the screen, as the logic knows it.
#include <gtest/gtest.h>

#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

Evento Spostata(const Form& form, int x, int y) {
    Evento e;
    e.finestra = form.Identita();
    e.fatto = Fatto::Spostata;
    e.x = x;
    e.y = y;
    return e;
}

}  // namespace

TEST(Posto, AWindowFollowsTheRealOneWithoutTellingItsFace) {
    BancoFinestra b;
    b.specchio.registra = true;
    b.coda.Aggiungi(Spostata(b.finestra, 1500, -45));
    b.Consegna();
    EXPECT_EQ(b.finestra.Left(), 1500);
    EXPECT_EQ(b.finestra.Top(), -45);
    EXPECT_TRUE(b.specchio.cambi.empty());
    EXPECT_FALSE(b.finestra.Collocata());
}

TEST(Posto, AWindowBeneathOrDisabledFollowsToo) {
    BancoFinestra b;
    FinestraProva sopra("frmSopra");
    b.finestre.Mostra(sopra);
    b.finestra.Enabled = false;
    b.coda.Aggiungi(Spostata(b.finestra, 300, 450));
    b.Consegna();
    EXPECT_EQ(b.finestra.Left(), 300);
    EXPECT_EQ(b.finestra.Top(), 450);
    EXPECT_EQ(sopra.Left(), 0);
    b.finestre.Scarica(sopra);
}

TEST(Posto, OfTheMovesOfOneWindowOnlyTheLastWaits) {
    BancoFinestra b;
    for (int x = 0; x < 5; ++x)
        b.coda.Aggiungi(Spostata(b.finestra, x, x));
    EXPECT_EQ(b.coda.Prendi()->x, 4);
    EXPECT_TRUE(b.coda.Vuota());
}

TEST(Posto, AWindowThatIsGoneIsntMoved) {
    BancoFinestra b;
    const Evento evento = Spostata(b.finestra, 300, 450);
    b.finestre.Scarica(b.finestra);
    b.coda.Aggiungi(evento);
    b.Consegna();
    EXPECT_EQ(b.finestra.Left(), 0);
}

TEST(Posto, SettingItIsToldToTheFace) {
    BancoFinestra b;
    b.specchio.registra = true;
    b.finestra.Left = 600;
    const std::vector<SpecchioRegistrato::Cambio> attesi = {{"frmProva", &Valori::Left, 600}};
    EXPECT_EQ(b.specchio.cambi, attesi);
}

TEST(Posto, AWindowIsPlacedWhenItsLoadSaysWhere) {
    Banco b;
    FinestraProva libera, detta("frmDetta");
    detta.alCaricamento = [&] { detta.Top = 900; };
    detta.bottone.Left = 30;
    libera.bottone.Left = 30;
    b.finestre.Mostra(libera);
    b.finestre.Mostra(detta);
    EXPECT_FALSE(libera.Collocata());
    EXPECT_TRUE(detta.Collocata());
    b.finestre.Scarica(detta);
    EXPECT_FALSE(detta.Collocata());
}

TEST(Posto, TheMainWindowIsTheOneAtTheBack) {
    Banco b;
    FinestraProva fondo, sopra("frmSopra");
    EXPECT_EQ(b.finestre.Principale(), nullptr);
    b.finestre.Mostra(fondo);
    b.finestre.Mostra(sopra);
    EXPECT_EQ(b.finestre.Principale(), &fondo);
    EXPECT_EQ(b.finestre.Davanti(), &sopra);
}

}  // namespace corvana::prova
