// What the stepping keys come to.
#include "composer/key_steps.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvana::prova {

TEST(TastoASinistra, TheFirstTimeItIs24LessOneAndThenOneLessToTheLowest) {
    EXPECT_EQ(TastoASinistra(70), (PassoTasto{23, true}));
    for (std::int16_t tasto = 59; tasto >= 1; --tasto)
        EXPECT_EQ(TastoASinistra(tasto), (PassoTasto{static_cast<std::int16_t>(tasto - 1), true}));
    EXPECT_EQ(TastoASinistra(0), (PassoTasto{0, false}));
}

TEST(TastoADestra, TheFirstTimeItIs23AndOneAndThenOneMoreToTheHighest) {
    EXPECT_EQ(TastoADestra(70), (PassoTasto{24, true}));
    for (std::int16_t tasto = 0; tasto <= 58; ++tasto)
        EXPECT_EQ(TastoADestra(tasto), (PassoTasto{static_cast<std::int16_t>(tasto + 1), true}));
    EXPECT_EQ(TastoADestra(59), (PassoTasto{59, false}));
}

TEST(FiguraSeguente, AllSevenInACircleEitherWay) {
    const std::vector<int> seguenti = {1, 2, 3, 4, 5, 6, 0};
    const std::vector<int> precedenti = {6, 0, 1, 2, 3, 4, 5};
    for (std::uint8_t figura = 0; figura < 7; ++figura) {
        EXPECT_EQ(FiguraSeguente(figura), seguenti.at(figura));
        EXPECT_EQ(FiguraPrecedente(figura), precedenti.at(figura));
    }
}

TEST(BottoneAttributoSeguente, FromNoneByDotStaccatoAppoggiatoAccentTieAndTripletToNone) {
    EXPECT_EQ(BottoneAttributoSeguente(6), 0);
    EXPECT_EQ(BottoneAttributoSeguente(0), 1);
    EXPECT_EQ(BottoneAttributoSeguente(1), 4);
    EXPECT_EQ(BottoneAttributoSeguente(4), 5);
    EXPECT_EQ(BottoneAttributoSeguente(5), 2);
    EXPECT_EQ(BottoneAttributoSeguente(2), 3);
    EXPECT_EQ(BottoneAttributoSeguente(3), 3) << "pressed again it goes out";
}

TEST(BaseSeguente, Steps36And48And60And36) {
    EXPECT_EQ(BaseSeguente(36), 48);
    EXPECT_EQ(BaseSeguente(48), 60);
    EXPECT_EQ(BaseSeguente(60), 36);
}

}  // namespace corvana::prova
