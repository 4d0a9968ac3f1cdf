// The slider of the tempo.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

TEST(TempoComposer, TheSliderHas250AtItsTopAnd20AtItsBottom) {
    BancoComposer b;
    EXPECT_EQ(b.finestra.play.Slider1.Min(), 250);
    EXPECT_EQ(b.finestra.play.Slider1.Max(), 20);
    EXPECT_EQ(b.finestra.play.Slider1.Value(), 60);
}

TEST(TempoComposer, MovingTheSliderWithAnEmptySopranoChangesTheTempoButRaisesNoFlag) {
    BancoComposer b;
    b.Voce(soprano + 1, "60;", "1");
    b.Subito(Fatto::Change, "Slider1", 100);
    EXPECT_EQ(b.melodia.tempo, 100);
    EXPECT_EQ(b.finestra.play.Velocità.Caption(), "100");
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
}

TEST(TempoComposer, WithAMelodyDraggingTheThumbRaisesTheFlagOnlyAtTheFinalChange) {
    BancoComposer b;
    b.Voce(soprano, "60;", "1");
    b.specchio.fuochi.clear();
    for (const int valore : {70, 250, 20}) {
        b.Subito(Fatto::Scroll, "Slider1", valore);
        EXPECT_EQ(b.melodia.tempo, valore);
        EXPECT_EQ(b.finestra.play.Velocità.Caption(), std::to_string(valore));
        EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
    }
    EXPECT_TRUE(b.specchio.fuochi.empty());
    b.Subito(Fatto::Change, "Slider1", 20);
    EXPECT_EQ(b.melodia.tempo, 20);
    EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
    EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"cmdPlay"});
}

TEST(TempoComposer, AChangeWhileAMelodyIsBeingLoadedDoesntMarkIt) {
    BancoComposer b;
    b.Voce(soprano, "60;", "1");
    b.melodia.inCaricamento = true;
    b.Subito(Fatto::Change, "Slider1", 100);
    EXPECT_EQ(b.melodia.tempo, 100);
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
}

}  // namespace corvana::prova
