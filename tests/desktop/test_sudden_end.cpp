#include <gtest/gtest.h>

#include <cstdlib>

#include "desktop/sudden_end.h"

namespace corvana {
namespace {

TEST(FineImprovvisa, WhatIsToBeDoneIsDoneByExit) {
    EXPECT_EXIT(
        {
            const FineImprovvisa fine([] { std::_Exit(42); });
            std::exit(1);
        },
        testing::ExitedWithCode(42), "");
}

TEST(FineImprovvisa, AfterwardsExitDoesNothingMore) {
    EXPECT_EXIT(
        {
            {
                const FineImprovvisa fine([] { std::_Exit(42); });
            }
            std::exit(7);
        },
        testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace corvana
