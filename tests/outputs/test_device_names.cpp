#include <gtest/gtest.h>

#include "sound/outputs/device_names.h"

namespace corvana {
namespace {

TEST(NomeBreve, LeavesShortNamesAlone) {
    EXPECT_EQ(NomeBreve(""), "");
    EXPECT_EQ(NomeBreve("Midi Through Port-0 14:0"), "Midi Through Port-0 14:0");
    EXPECT_EQ(NomeBreve(std::string(31, 'x')), std::string(31, 'x'));
}

TEST(NomeBreve, CutsLongNamesToThirtyOneBytes) {
    EXPECT_EQ(NomeBreve(std::string(32, 'x')), std::string(31, 'x'));
}

TEST(NomeBreve, NeverCutsACharacterInTwo) {
    EXPECT_EQ(NomeBreve(std::string(30, 'x') + "è"), std::string(30, 'x'));
    EXPECT_EQ(NomeBreve(std::string(29, 'x') + "èx"), std::string(29, 'x') + "è");
    EXPECT_EQ(NomeBreve(std::string(28, 'x') + "𝄞"), std::string(28, 'x'));
    EXPECT_EQ(NomeBreve(std::string(40, '\x80')), "");
}

}  // namespace
}  // namespace corvana
