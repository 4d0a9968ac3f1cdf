#include <gtest/gtest.h>

#include <thread>

#include "sound/outputs/port_queue.h"

namespace corvana {
namespace {

TEST(CodaPorta, GivesBackInOrderAndThenEnds) {
    CodaPorta coda;
    coda.Metti({1});
    coda.Metti({0, true});
    coda.Metti({2});
    coda.Chiudi();
    EXPECT_EQ(coda.Prendi()->parola, 1U);
    EXPECT_TRUE(coda.Prendi()->azzera);
    EXPECT_EQ(coda.Prendi()->parola, 2U);
    EXPECT_FALSE(coda.Prendi());
}

TEST(CodaPorta, WhenFullAResetTakesThePlaceOfWhatWaits) {
    CodaPorta coda;
    for (std::uint32_t i = 0; i <= messaggiPerPorta; ++i)
        coda.Metti({i});
    ASSERT_EQ(coda.InAttesa(), 2U);
    EXPECT_TRUE(coda.Prendi()->azzera);
    EXPECT_EQ(coda.Prendi()->parola, messaggiPerPorta);
}

TEST(CodaPorta, NeverHoldsMoreThanItsBound) {
    CodaPorta coda;
    for (std::uint32_t i = 0; i < 100'000; ++i) {
        coda.Metti({i});
        ASSERT_LE(coda.InAttesa(), messaggiPerPorta);
    }
}

TEST(CodaPorta, WakesTheOneThatWaits) {
    CodaPorta coda;
    std::thread mittente([&] { coda.Metti({7}); });
    EXPECT_EQ(coda.Prendi()->parola, 7U);
    mittente.join();
    std::thread fine([&] { coda.Chiudi(); });
    EXPECT_FALSE(coda.Prendi());
    fine.join();
}

}  // namespace
}  // namespace corvana
