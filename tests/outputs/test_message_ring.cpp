#include <gtest/gtest.h>

#include <thread>

#include "sound/outputs/message_ring.h"

namespace corvana {
namespace {

TEST(Anello, GivesBackInOrder) {
    Anello<int, 4> anello;
    EXPECT_EQ(anello.Primo(), nullptr);
    for (const int i : {1, 2, 3})
        EXPECT_TRUE(anello.Metti(i));
    for (const int i : {1, 2, 3}) {
        ASSERT_NE(anello.Primo(), nullptr);
        EXPECT_EQ(*anello.Primo(), i);
        anello.Togli();
    }
    EXPECT_EQ(anello.Primo(), nullptr);
}

TEST(Anello, RefusesWhatItHasNoRoomFor) {
    Anello<int, 2> anello;
    EXPECT_TRUE(anello.Metti(1));
    EXPECT_TRUE(anello.Metti(2));
    EXPECT_FALSE(anello.Metti(3));
    anello.Togli();
    EXPECT_TRUE(anello.Metti(4));
    EXPECT_EQ(*anello.Primo(), 2);
}

TEST(Anello, LosesNothingBetweenTwoThreads) {
    constexpr int quanti = 100'000;
    Anello<int, 8> anello;
    std::thread mittente([&] {
        for (int i = 0; i < quanti;)
            if (anello.Metti(i))
                ++i;
            else
                std::this_thread::yield();
    });
    for (int atteso = 0; atteso < quanti;) {
        const int* primo = anello.Primo();
        if (!primo) {
            std::this_thread::yield();
            continue;
        }
        ASSERT_EQ(*primo, atteso++);
        anello.Togli();
    }
    mittente.join();
}

}  // namespace
}  // namespace corvana
