// The state of held keys as the windows keep it.
#include <gtest/gtest.h>

#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {
using Diario = std::vector<std::string>;
}

TEST(TastiTenuti, AKeyIsHeldOnceItsPressIsDeliveredAndNotBefore) {
    BancoFinestra b;
    b.AccodaTasto(Fatto::KeyDown, 'D');
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
    b.Consegna();
    EXPECT_TRUE(b.finestre.Tasti().Premuto('D'));
    b.AccodaTasto(Fatto::KeyUp, 'D');
    EXPECT_TRUE(b.finestre.Tasti().Premuto('D'));
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
}

TEST(TastiTenuti, TheStateHasChangedWhenTheHandlerRuns) {
    BancoFinestra b;
    std::vector<bool> visti;
    b.finestra.alTasto = [&] { visti.push_back(b.finestre.Tasti().Premuto('D')); };
    b.AccodaTasto(Fatto::KeyDown, 'D');
    b.AccodaTasto(Fatto::KeyUp, 'D');
    b.Consegna();
    EXPECT_EQ(visti, (std::vector<bool>{true, false}));
}

TEST(TastiTenuti, RepeatedPressesArriveMarkedAndOneReleaseEndsThem) {
    BancoFinestra b;
    b.finestra.diario.clear();
    b.AccodaTasto(Fatto::KeyDown, 'D');
    b.AccodaTasto(Fatto::KeyDown, 'D', true);
    b.AccodaTasto(Fatto::KeyDown, 'D', true);
    b.AccodaTasto(Fatto::KeyUp, 'D');
    b.Consegna();
    EXPECT_EQ(b.finestra.diario, (Diario{"key 68", "again 68", "again 68", "let go 68"}));
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
}

TEST(TastiTenuti, AReleaseClearsItsKeyWhicheverWindowItWasFor) {
    BancoFinestra b;
    b.AccodaTasto(Fatto::KeyDown, 'D');
    b.Consegna();
    b.AccodaTasto(Fatto::KeyUp, 'D');
    FinestraProva sopra("frmSopra");
    b.finestre.Mostra(sopra);
    b.finestra.diario.clear();
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
    EXPECT_TRUE(b.finestra.diario.empty());
    b.finestre.Scarica(sopra);
}

TEST(TastiTenuti, AReleaseClearsItsKeyWhenTheWindowIsDisabledOrGone) {
    BancoFinestra b;
    b.AccodaTasto(Fatto::KeyDown, 'D');
    b.AccodaTasto(Fatto::KeyDown, 'F');
    b.Consegna();
    b.finestra.Enabled = false;
    b.AccodaTasto(Fatto::KeyUp, 'D');
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
    b.finestra.Enabled = true;
    b.AccodaTasto(Fatto::KeyUp, 'F');
    b.finestre.Scarica(b.finestra);
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('F'));
}

TEST(TastiTenuti, APressForAWindowBehindHoldsNothing) {
    BancoFinestra b;
    b.AccodaTasto(Fatto::KeyDown, 'D');
    FinestraProva sopra("frmSopra");
    b.finestre.Mostra(sopra);
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
    b.finestre.Scarica(sopra);
}

TEST(TastiTenuti, LosingTheKeyboardLetsGoOfAllAndCallsNoHandler) {
    BancoFinestra b;
    b.AccodaTasto(Fatto::KeyDown, 'D');
    b.AccodaTasto(Fatto::KeyDown, 100);
    b.Consegna();
    b.finestra.diario.clear();
    b.Accoda(Fatto::FuocoPerso, "");
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
    EXPECT_FALSE(b.finestre.Tasti().Premuto(100));
    EXPECT_TRUE(b.finestra.diario.empty());
}

TEST(TastiTenuti, LosingTheKeyboardCountsWithNoWindowOpenToo) {
    BancoFinestra b;
    b.AccodaTasto(Fatto::KeyDown, 'D');
    b.Consegna();
    b.finestre.Scarica(b.finestra);
    Evento e;
    e.fatto = Fatto::FuocoPerso;
    b.coda.Aggiungi(e);
    b.Consegna();
    EXPECT_FALSE(b.finestre.Tasti().Premuto('D'));
}

TEST(TastiTenuti, ACodeThatNoKeyHasReachesTheHandlerAndHoldsNothing) {
    BancoFinestra b;
    b.finestra.diario.clear();
    b.AccodaTasto(Fatto::KeyDown, 100000);
    b.AccodaTasto(Fatto::KeyUp, -5);
    b.Consegna();
    EXPECT_EQ(b.finestra.diario, (Diario{"key 100000", "let go -5"}));
}

}  // namespace corvana::prova
