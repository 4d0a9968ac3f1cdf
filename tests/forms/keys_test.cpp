#include "forms/keys.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace corvana::prova {

TEST(TastiPremuti, AKeyIsHeldFromItsPressToItsRelease) {
    TastiPremuti tasti;
    EXPECT_FALSE(tasti.Premuto('D'));
    tasti.Segna('D', true);
    EXPECT_TRUE(tasti.Premuto('D'));
    EXPECT_FALSE(tasti.Premuto('F'));
    tasti.Segna('D', false);
    EXPECT_FALSE(tasti.Premuto('D'));
}

TEST(TastiPremuti, ASecondPressOfAHeldKeyNeedsOneReleaseOnly) {
    TastiPremuti tasti;
    tasti.Segna('D', true);
    tasti.Segna('D', true);
    tasti.Segna('D', false);
    EXPECT_FALSE(tasti.Premuto('D'));
}

TEST(TastiPremuti, KnowsTheCodesFrom1To255) {
    TastiPremuti tasti;
    for (const int codice : {1, 255}) {
        tasti.Segna(codice, true);
        EXPECT_TRUE(tasti.Premuto(codice)) << codice;
    }
}

TEST(TastiPremuti, AnyOtherCodeIsNeverHeldAndDoesNoHarm) {
    TastiPremuti tasti;
    for (const int codice : {0, -1, 256, 100000, -2147483647}) {
        tasti.Segna(codice, true);
        EXPECT_FALSE(tasti.Premuto(codice)) << codice;
    }
}

TEST(TastiPremuti, AllAreLetGoAtOnce) {
    TastiPremuti tasti;
    for (int codice = 1; codice < 256; ++codice)
        tasti.Segna(codice, true);
    tasti.LasciaTutti();
    for (int codice = 1; codice < 256; ++codice)
        EXPECT_FALSE(tasti.Premuto(codice)) << codice;
}

}  // namespace corvana::prova
