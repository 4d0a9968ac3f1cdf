#include "forms/form.h"

#include <gtest/gtest.h>

#include "tests/forms/form_rig.h"

namespace corvana::prova {

TEST(Form, ItsControlsAreNumberedInTheOrderInWhichTheyAreDeclared) {
    FinestraProva f;
    EXPECT_EQ(f.Numero(), 0);
    EXPECT_EQ(f.bottone.Numero(), 1);
    EXPECT_EQ(f.voce.Numero(), 10);
    ASSERT_EQ(f.Controlli().size(), 12U);
    for (std::size_t i = 0; i < f.Controlli().size(); ++i)
        EXPECT_EQ(f.Controlli()[i]->Numero(), static_cast<int>(i));
}

TEST(Form, FindsAControlByItsExactNameAndItself) {
    FinestraProva f;
    EXPECT_EQ(f.Trova("dentro"), &f.dentro);
    EXPECT_EQ(f.Trova("frmProva"), &f);
    EXPECT_EQ(f.Trova("Dentro"), nullptr);
    EXPECT_EQ(f.Trova(""), nullptr);
}

TEST(Form, AControlWithoutAParentLiesInTheWindow) {
    FinestraProva f;
    EXPECT_EQ(f.bottone.Padre(), &f);
    EXPECT_EQ(f.dentro.Padre(), &f.cornice);
    EXPECT_EQ(f.Padre(), nullptr);
    EXPECT_EQ(&f.dentro.Finestra(), &f);
}

TEST(Form, EachShowingHasAnIdentityOfItsOwnAndAClosedWindowHasNone) {
    Banco b;
    FinestraProva f;
    EXPECT_EQ(f.Identita(), 0U);
    b.finestre.Mostra(f);
    const auto prima = f.Identita();
    EXPECT_NE(prima, 0U);
    b.finestre.Scarica(f);
    EXPECT_EQ(f.Identita(), 0U);
    b.finestre.Mostra(f);
    EXPECT_NE(f.Identita(), 0U);
    EXPECT_NE(f.Identita(), prima);
}

TEST(Disponi, GivesPlaceTextsAndStyleToTheNamedControls) {
    FinestraProva f;
    constexpr std::array posti = {
        Posto{"bottone", 1, 2, 3, 4, "testo", "consiglio", "stile"},
        Posto{"casella", 5, 6, 7, 8, "valore"},
        Posto{"frmProva", 0, 0, 900, 600, "titolo"},
    };
    Disponi(f, posti.data(), posti.size());
    EXPECT_EQ(f.bottone.Left(), 1);
    EXPECT_EQ(f.bottone.Top(), 2);
    EXPECT_EQ(f.bottone.Width(), 3);
    EXPECT_EQ(f.bottone.Height(), 4);
    EXPECT_EQ(f.bottone.Caption(), "testo");
    EXPECT_EQ(f.bottone.ToolTipText(), "consiglio");
    EXPECT_EQ(f.bottone.stile, "stile");
    EXPECT_EQ(f.casella.Text(), "valore");
    EXPECT_EQ(f.Caption(), "titolo");
    EXPECT_EQ(f.Width(), 900);
}

TEST(Disponi, ATextThatTheLayoutDoesntGiveStaysTheControls) {
    FinestraProva f;
    f.bottone.Caption = "suo";
    f.combo.PonTesto("Minore");
    constexpr std::array posti = {Posto{"bottone", 1, 2, 3, 4}, Posto{"combo", 5, 6, 7, 8}};
    Disponi(f, posti.data(), posti.size());
    EXPECT_EQ(f.bottone.Caption(), "suo");
    EXPECT_EQ(f.combo.Text(), "Minore");
    EXPECT_EQ(f.combo.Left(), 5);
}

TEST(Disponi, ChoosesTheRowOfADropDownListThatTheLayoutNames) {
    FinestraProva f;
    constexpr std::array posti = {Posto{"combo", 5, 6, 7, 8, "Minore"}};
    Disponi(f, posti.data(), posti.size());
    EXPECT_EQ(f.combo.ListIndex(), 2);
}

TEST(Disponi, ANameThatNoControlHasIsAnErrorThatTellsIt) {
    FinestraProva f;
    constexpr std::array posti = {Posto{"bottone", 1, 2, 3, 4}, Posto{"Bottone", 5, 6, 7, 8}};
    try {
        Disponi(f, posti.data(), posti.size());
        ADD_FAILURE() << "the layout was taken";
    } catch (const std::logic_error& errore) {
        EXPECT_STREQ(errore.what(), "frmProva has no control Bottone");
    }
}

TEST(Form, HasTheNormalPointerUntilItIsGivenAnother) {
    BancoFinestra b;
    EXPECT_EQ(b.finestra.MousePointer(), puntatoreNormale);
    b.specchio.registra = true;
    b.finestra.MousePointer = puntatoreAttesa;
    const std::vector<SpecchioRegistrato::Cambio> attesi = {
        {"frmProva", &Valori::MousePointer, puntatoreAttesa}};
    EXPECT_EQ(b.specchio.cambi, attesi);
}

TEST(Form, AMenuIsOpenedByTheMirrorUnlessItCantBeUsed) {
    BancoFinestra b;
    MenuContestuale menu(b.finestra, "mnuContestuale");
    b.finestra.PopupMenu(menu);
    EXPECT_EQ(b.specchio.menuAperti, (std::vector<std::string>{"mnuContestuale"}));
    menu.Enabled = false;
    b.finestra.PopupMenu(menu);
    EXPECT_EQ(b.specchio.menuAperti.size(), 1U);
}

}  // namespace corvana::prova
