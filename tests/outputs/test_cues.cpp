#include <gtest/gtest.h>

#include "sound/outputs/wave.h"
#include "tests/outputs/hearing.h"

namespace corvana {
namespace {

class OndeDeiSegnali : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        const auto onda = CaricaOnda(std::string(CORVANA_CUES) + "/" + GetParam());
        ASSERT_TRUE(onda);
        campioni = onda->campioni;
    }
    std::vector<float> campioni;
};

TEST_P(OndeDeiSegnali, LastUnderThreeTenthsOfASecond) {
    EXPECT_GT(campioni.size(), 0.05 * prova::frequenzaUdito);
    EXPECT_LT(campioni.size(), 0.3 * prova::frequenzaUdito);
}

TEST_P(OndeDeiSegnali, AreNeitherFaintNorNearFullScale) {
    EXPECT_GT(prova::Picco(campioni), 0.05);
    EXPECT_LT(prova::Picco(campioni), 0.9);
}

TEST_P(OndeDeiSegnali, StartAndEndAtRest) {
    EXPECT_LT(std::abs(campioni.front()), 0.001F);
    EXPECT_LT(std::abs(campioni.back()), 0.001F);
}

TEST_P(OndeDeiSegnali, HaveNoClick) {
    double salto = 0;
    for (std::size_t i = 1; i < campioni.size(); ++i)
        salto = std::max(salto, std::abs(static_cast<double>(campioni[i]) - campioni[i - 1]));
    EXPECT_LT(salto, 0.4 * prova::Picco(campioni));
}

INSTANTIATE_TEST_SUITE_P(Segnali, OndeDeiSegnali, testing::Values("rok.wav", "rko.wav"));

TEST(OndeDeiSegnali, TheBellIsHighAndTheKnockLow) {
    const auto campana = CaricaOnda(CORVANA_CUES "/rok.wav");
    const auto colpo = CaricaOnda(CORVANA_CUES "/rko.wav");
    ASSERT_TRUE(campana && colpo);
    EXPECT_GT(prova::Altezza(prova::Parte(campana->campioni, 0.05, 0.1)), 1000);
    EXPECT_LT(prova::Altezza(prova::Parte(colpo->campioni, 0.02, 0.1)), 200);
    EXPECT_LT(colpo->campioni.size(), campana->campioni.size());
}

}  // namespace
}  // namespace corvana
