// The seed of a test that draws by chance. It is 1; shuffled, as with
//   --gtest_shuffle --gtest_repeat=50
// it is one of the clock's, told with a failure, or that of --gtest_random_seed. And how much a
// careless user does: scripts/careless asks for more than a test run does.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

namespace corvana::prova {

inline std::uint32_t Seme() {
    if (!GTEST_FLAG_GET(shuffle)) return 1;
    return static_cast<std::uint32_t>(testing::UnitTest::GetInstance()->random_seed());
}

/// As many events as CORVANA_EVENTS says, or else `diSolito`.
inline int Eventi(int diSolito) {
    const char* voluti = std::getenv("CORVANA_EVENTS");
    return voluti ? std::atoi(voluti) : diSolito;
}

}  // namespace corvana::prova
