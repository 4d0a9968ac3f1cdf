#include <gtest/gtest.h>

#include <cstdlib>

#include "desktop/sudden_end.h"

namespace corvana {
namespace {

/// The process that ends is started anew: a copy of this one would lack its other threads.
class FineImprovvisaVera : public testing::Test {
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    void TearDown() override { GTEST_FLAG_SET(death_test_style, "fast"); }
};

TEST_F(FineImprovvisaVera, WhatIsToBeDoneIsDoneByExit) {
    EXPECT_EXIT(
        {
            const FineImprovvisa fine([] { std::_Exit(42); });
            std::exit(1);
        },
        testing::ExitedWithCode(42), "");
}

TEST_F(FineImprovvisaVera, AfterwardsExitDoesNothingMore) {
    EXPECT_EXIT(
        {
            // Ends it before a sanitizer looks for leaks among threads that still run.
            std::atexit([] { std::_Exit(7); });
            {
                const FineImprovvisa fine([] { std::_Exit(42); });
            }
            std::exit(1);
        },
        testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace corvana
