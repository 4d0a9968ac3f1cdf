#include "core/folders.h"

#include <gtest/gtest.h>

namespace corvana::prova {

TEST(CartellaDiStato, TheOneThatTheUserHasChosenCounts) {
    EXPECT_EQ(CartellaStato("/var/mine", "/home/anna"), "/var/mine");
}

TEST(CartellaDiStato, WithoutAChoiceOrWithOneThatIsNoWholePathItIsTheUsualOne) {
    for (const char* scelta : {"", "mine", "./mine", "~/mine"})
        EXPECT_EQ(CartellaStato(scelta, "/home/anna"), "/home/anna/.local/state") << scelta;
}

TEST(CartellaDiStato, WithoutAHomeThereIsNone) {
    EXPECT_EQ(CartellaStato("", ""), "");
}

}  // namespace corvana::prova
