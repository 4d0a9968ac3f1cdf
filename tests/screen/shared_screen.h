// One screen for all tests of the program: starting one for each would take longer than the tests.
#pragma once

#include <gtest/gtest.h>

#include "tests/screen/real_program.h"

namespace corvana::prova {

class SullaScrivania : public testing::Test {
protected:
    static void SetUpTestSuite() { schermo_ = std::make_unique<Schermo>(); }
    static void TearDownTestSuite() { schermo_.reset(); }
    static Schermo& LoSchermo() { return *schermo_; }

private:
    static inline std::unique_ptr<Schermo> schermo_;
};

}  // namespace corvana::prova
