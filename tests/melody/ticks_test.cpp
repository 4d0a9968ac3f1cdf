#include "melody/ticks.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <numeric>

#include "melody/durations.h"
#include "melody/numbers.h"

namespace corvana::prova {

namespace {

constexpr Tick limite = 1LL << 46;

/// The ticks of some durations, walked one behind the other.
std::vector<Tick> Ticks(const std::vector<double>& note) {
    ContoTuplet conto;
    std::vector<Tick> tick;
    for (const double durata : note)
        tick.push_back(TickNota(durata, conto));
    return tick;
}

Tick Somma(const std::vector<Tick>& tick) {
    return std::accumulate(tick.begin(), tick.end(), Tick{0});
}

using Conto = std::pair<Tick, int>;
Conto ContoDopo(const std::vector<double>& note) {
    ContoTuplet conto;
    for (const double durata : note)
        TickNota(durata, conto);
    return {conto.sommaTuplet, conto.contaTuplet};
}

}  // namespace

TEST(TickNota, EachFigureAndEachDottedOneLastsItsTicks) {
    const std::vector<std::pair<double, Tick>> figure = {
        {4, 128},   {6, 192},  {2, 64},     {3, 96},    {1, 32},     {1.5, 48},  {0.5, 16},
        {0.75, 24}, {0.25, 8}, {0.375, 12}, {0.125, 4}, {0.1875, 6}, {0.0625, 2}};
    ASSERT_EQ(figure.size(), durate.size());
    for (const auto& [durata, tick] : figure) {
        EXPECT_EQ(Ticks({durata, durata, durata}), (std::vector<Tick>{tick, tick, tick})) << durata;
        EXPECT_EQ(ContoDopo({durata}), (Conto{0, 0})) << durata;
    }
}

TEST(TickNota, TheThirdNoteOfATripletIsCorrected) {
    const std::vector<std::pair<double, std::vector<Tick>>> gruppi = {
        {4, {85, 85, 86}}, {2, {43, 43, 42}},  {1, {21, 21, 22}},  {0.5, {11, 11, 10}},
        {0.25, {5, 5, 6}}, {0.125, {3, 3, 2}}, {0.0625, {1, 1, 2}}};
    for (const auto& [figura, tick] : gruppi) {
        const double durata = figura * 2 / 3;
        EXPECT_EQ(Ticks({durata, durata, durata}), tick) << figura;
        EXPECT_EQ(Somma(tick), static_cast<Tick>(figura * 64)) << figura;
        EXPECT_EQ(ContoDopo({durata, durata, durata}), (Conto{0, 0})) << figura;
    }
}

TEST(TickNota, TwoNotesOfATripletLeaveTheTallyOpen) {
    EXPECT_EQ(ContoDopo({1.0 / 3}), (Conto{11, 1}));
    EXPECT_EQ(ContoDopo({1.0 / 3, 1.0 / 3}), (Conto{22, 2}));
    EXPECT_EQ(ContoDopo({1.0 / 3, 1, 1.0 / 3, 0.5}), (Conto{22, 2}));
}

TEST(TickNota, TheNotesOfATripletAreCountedAcrossPlainOnes) {
    EXPECT_EQ(Ticks({1.0 / 3, 1, 1.0 / 3, 2, 1.0 / 3}), (std::vector<Tick>{11, 32, 11, 64, 10}));
}

TEST(TickNota, UnequalNotesThatAddUpToASumOfTheTableAreATriplet) {
    EXPECT_EQ(Ticks({2.0 / 3, 1.0 / 3, 0.03}), (std::vector<Tick>{21, 11, 0}));
}

TEST(TickNota, ASumOutsideOfTheTableGetsNoCorrectionAndEndsTheGroup) {
    EXPECT_EQ(Ticks({2.0 / 3, 2.0 / 3, 1.0 / 3}), (std::vector<Tick>{21, 21, 11}));
    EXPECT_EQ(ContoDopo({2.0 / 3, 2.0 / 3, 1.0 / 3}), (Conto{0, 0}));
    EXPECT_EQ(Ticks({8.0 / 3 * 2, 8.0 / 3 * 2, 8.0 / 3 * 2}), (std::vector<Tick>{171, 171, 171}));
}

TEST(TickNota, TwoGroupsInARowAreCorrectedEach) {
    EXPECT_EQ(Ticks(std::vector<double>(6, 1.0 / 3)), (std::vector<Tick>{11, 11, 10, 11, 11, 10}));
}

TEST(TickNota, HalvesOfATickGoToTheEvenOne) {
    EXPECT_EQ(Ticks({0.015625}), std::vector<Tick>{0});
    EXPECT_EQ(Ticks({0.046875}), std::vector<Tick>{2});
    EXPECT_EQ(Ticks({0.078125}), std::vector<Tick>{2});
    EXPECT_EQ(Ticks({0.109375}), std::vector<Tick>{4});
}

TEST(TickNota, IsATupletNoteFromTheFifthDigitOn) {
    EXPECT_EQ(ContoDopo({1.000004}), (Conto{0, 0}));
    EXPECT_EQ(ContoDopo({1.000006}), (Conto{32, 1}));
    EXPECT_EQ(ContoDopo({0.999996}), (Conto{0, 0}));
    EXPECT_EQ(ContoDopo({0.999994}), (Conto{32, 1}));
}

TEST(TickNota, HalvesOfTheFifthDigitGoToTheEvenOne) {
    EXPECT_EQ(ContoDopo({0.062495}), (Conto{0, 0}));
    EXPECT_EQ(ContoDopo({0.031245}), (Conto{1, 1}));
    EXPECT_EQ(ContoDopo({0.031255}), (Conto{1, 1}));
}

TEST(TickNota, ANoteOfNoLengthLastsNoTick) {
    EXPECT_EQ(Ticks({0}), std::vector<Tick>{0});
    EXPECT_EQ(ContoDopo({0}), (Conto{0, 0}));
    EXPECT_EQ(Ticks({1e-300}), std::vector<Tick>{0});
}

TEST(TickNota, ANegativeLengthGivesNegativeTicks) {
    EXPECT_EQ(Ticks({-1}), std::vector<Tick>{-32});
    EXPECT_EQ(ContoDopo({-1}), (Conto{0, 0}));
    EXPECT_EQ(Ticks({-1.0 / 3}), std::vector<Tick>{-11});
}

TEST(TickNota, AHugeLengthEndsAtTheLimit) {
    for (const double durata : {1e20, 1e300, 1e304, 1.7e308})
        EXPECT_EQ(Ticks({durata, -durata}), (std::vector<Tick>{limite, -limite})) << durata;
}

RC_GTEST_PROP(TickNota, ATripletOfAnyFigureAndMultiplierLastsAPowerOfTwo, (bool virgola)) {
    const char separatore = virgola ? ',' : '.';
    const double figura = *rc::gen::element(4.0, 2.0, 1.0, 0.5, 0.25, 0.125, 0.0625);
    const int per = *rc::gen::element(1, 2, 4, 8, 16, 32, 64);
    RC_PRE(figura * per <= 4);
    const double durata = NumeroReale(TestoNumero(figura * per * 2 / 3, separatore));
    // Plain notes between those of the group change nothing.
    const auto altre =
        *rc::gen::container<std::vector<double>>(3, rc::gen::element(0.0, 1.0, 0.75, 0.0625));
    const auto tick = Ticks({altre[0], durata, altre[1], durata, altre[2], durata});
    const Tick gruppo = tick[1] + tick[3] + tick[5];
    RC_ASSERT(gruppo == static_cast<Tick>(figura * per * 64));
    RC_ASSERT(std::has_single_bit(static_cast<std::uint64_t>(gruppo)));
}

TEST(MsPerTick, IsTheWholeMillisecondsOfATickLessWhatSleepAdds) {
    EXPECT_EQ(MsPerTick(20), 91);
    EXPECT_EQ(MsPerTick(60), 29);
    EXPECT_EQ(MsPerTick(120), 13);
    EXPECT_EQ(MsPerTick(250), 5);
    for (int tempo = 20; tempo <= 250; ++tempo)
        EXPECT_EQ(MsPerTick(tempo), 1875 / tempo - 2) << tempo;
}

}  // namespace corvana::prova
