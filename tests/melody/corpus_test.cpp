// The files that scripts/fuzz starts from, and what it has ever found.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/melody/mel_check.h"

namespace corvana::prova {

TEST(Corpus, WhatMustHoldHoldsForEachFile) {
    int file = 0;
    for (const auto& voce : std::filesystem::directory_iterator(CORVANA_CORPUS)) {
        if (voce.path().extension() != ".mel") continue;
        std::ifstream aperto(voce.path(), std::ios::binary);
        const std::string byte{std::istreambuf_iterator<char>(aperto), {}};
        EXPECT_TRUE(aperto.is_open()) << voce.path();
        EXPECT_EQ(ControllaMel(byte), "") << voce.path();
        ++file;
    }
    EXPECT_GE(file, 15);
}

}  // namespace corvana::prova
