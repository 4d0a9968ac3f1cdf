#include "tests/program/settings_check.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/seed.h"

namespace corvana::prova {

TEST(FileImpostazioni, WhateverBytesItHasWhatCanBeReadIsReadAndTheRestIsPutAside) {
    const std::string pezzi[] = {"Language=",
                                 "en",
                                 "CorvanaLastS=",
                                 "43;53;16;30;False",
                                 "LastDir=",
                                 "/home/\\\\u/",
                                 "IntoLastS=",
                                 "24;36;69;0;True;0",
                                 "\n",
                                 "\\",
                                 "\\n",
                                 std::string(1, '\0'),
                                 "=",
                                 ";",
                                 "\xFF"};
    std::mt19937 caso(Seme());
    for (int volta = 0; volta < 2000; ++volta) {
        std::string byte;
        for (auto quanti = caso() % 30; quanti > 0; --quanti)
            byte += pezzi[caso() % std::size(pezzi)];
        ASSERT_EQ(ControllaImpostazioni(byte), "") << "seed " << Seme() << ", " << byte;
    }
}

}  // namespace corvana::prova
