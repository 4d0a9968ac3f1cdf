#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "sound/outputs/stream_clock.h"

namespace corvana {
namespace {

constexpr int frame = 256;
constexpr double durata = frame / 48000.0;

/// Smoothed instants for calls that come at the ideal instant plus `scarto(k)`.
template <typename Scarto>
std::vector<double> Segui(OrologioFlusso& orologio, int chiamate, Scarto scarto,
                          double passo = durata) {
    std::vector<double> istanti;
    for (int k = 0; k < chiamate; ++k)
        istanti.push_back(orologio.Prossimo(100 + k * passo + scarto(k), frame));
    return istanti;
}

/// The largest deviation of the steps between instants from `passo`, from call `da` on.
double Tremolio(const std::vector<double>& istanti, int da, double passo = durata) {
    double peggio = 0;
    for (auto k = static_cast<std::size_t>(da); k < istanti.size(); ++k)
        peggio = std::max(peggio, std::fabs(istanti[k] - istanti[k - 1] - passo));
    return peggio;
}

double Rumore(int k) {
    return 0.003 * std::sin(k * 12.9898) * std::cos(k * 78.233);
}

TEST(OrologioFlusso, FollowsAnEvenStreamExactly) {
    OrologioFlusso orologio;
    const auto istanti = Segui(orologio, 1000, [](int) { return 0; });
    EXPECT_NEAR(istanti[999], 100 + 999 * durata, 1e-9);
    EXPECT_NEAR(orologio.PerSecondo(), 48000, 0.01);
}

TEST(OrologioFlusso, JitterOfMillisecondsDoesNotComeThrough) {
    OrologioFlusso orologio;
    const auto istanti = Segui(orologio, 2000, Rumore);
    EXPECT_LT(Tremolio(istanti, 500), 0.0001);
    EXPECT_NEAR(istanti[1999], 100 + 1999 * durata, 0.001);
}

TEST(OrologioFlusso, FollowsADeviceWhoseClockIsOff) {
    OrologioFlusso orologio;
    const double passo = durata / 1.001;
    const auto istanti = Segui(
        orologio, 6000, [](int) { return 0; }, passo);
    EXPECT_NEAR(orologio.PerSecondo(), 48048, 1);
    EXPECT_NEAR(istanti[5999], 100 + 5999 * passo, 0.0002);
}

TEST(OrologioFlusso, HoldsMessagesBackForABufferAndThreeMillisecondsOnASteadyDevice) {
    OrologioFlusso orologio;
    Segui(orologio, 1000, [](int) { return 0; });
    EXPECT_DOUBLE_EQ(orologio.Ritardo(), durata + 0.003);
}

TEST(OrologioFlusso, HoldsMessagesBackLongEnoughForADeviceThatAsksInBursts) {
    constexpr int perVolta = 4;
    OrologioFlusso orologio;
    std::vector<double> chiamate;
    std::vector<double> istanti;
    for (int k = 0; k < 2000; ++k) {
        chiamate.push_back(100 + (k / perVolta) * perVolta * durata);
        istanti.push_back(orologio.Prossimo(chiamate.back(), frame));
    }
    EXPECT_LT(Tremolio(istanti, 500), 0.0003);
    // A message sent right after a call must still find its place ahead of it.
    for (std::size_t k = 1000; k + 1 < istanti.size(); ++k)
        EXPECT_GE(chiamate[k] + orologio.Ritardo(), istanti[k + 1]);
    EXPECT_LT(orologio.Ritardo(), 0.04);
}

TEST(OrologioFlusso, FollowsAGapInTheStreamAtOnce) {
    OrologioFlusso orologio;
    const auto istanti = Segui(orologio, 1000, [](int k) { return k < 500 ? 0 : 3.0; });
    EXPECT_NEAR(istanti[500], 100 + 500 * durata + 3, 1e-9);
    EXPECT_NEAR(istanti[999], 100 + 999 * durata + 3, 1e-6);
}

TEST(OrologioFlusso, FollowsASmallLastingShiftWithinASecond) {
    OrologioFlusso orologio;
    const auto istanti = Segui(orologio, 1000, [](int k) { return k < 500 ? 0 : 0.03; });
    EXPECT_NEAR(istanti[700], 100 + 700 * durata + 0.03, 0.002);
}

TEST(OrologioFlusso, OneLateCallChangesNextToNothing) {
    OrologioFlusso orologio;
    const auto istanti = Segui(orologio, 1000, [](int k) { return k == 600 ? 0.02 : 0; });
    EXPECT_LT(Tremolio(istanti, 500), 0.0003);
    EXPECT_DOUBLE_EQ(orologio.Ritardo(), durata + 0.003);
}

TEST(OrologioFlusso, TheInstantsNeverRunBackwards) {
    OrologioFlusso orologio;
    const auto istanti = Segui(orologio, 3000, [](int k) { return Rumore(k) * 4 + k % 7 * 0.001; });
    for (std::size_t k = 1; k < istanti.size(); ++k)
        EXPECT_GT(istanti[k], istanti[k - 1]);
}

}  // namespace
}  // namespace corvana
