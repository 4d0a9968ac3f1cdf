#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include "desktop/key_map.h"
#include "forms/event.h"

namespace corvana {
namespace {

int DelPosto(int tasto) {
    return CodiceTasto(static_cast<std::uint32_t>(tasto + 8), 0, false);
}

TEST(Tasti, LettersAreNamedByTheirPlaceWhateverTheLayoutWrites) {
    const std::pair<int, char> lettere[] = {{KEY_D, 'D'}, {KEY_F, 'F'}, {KEY_G, 'G'}, {KEY_H, 'H'},
                                            {KEY_Z, 'Z'}, {KEY_X, 'X'}, {KEY_C, 'C'}, {KEY_V, 'V'},
                                            {KEY_B, 'B'}, {KEY_N, 'N'}, {KEY_M, 'M'}, {KEY_Q, 'Q'},
                                            {KEY_A, 'A'}, {KEY_P, 'P'}, {KEY_L, 'L'}, {KEY_W, 'W'}};
    for (const auto& [posto, lettera] : lettere)
        EXPECT_EQ(DelPosto(posto), lettera);
    // A German keyboard writes Z where the American one has Y.
    EXPECT_EQ(CodiceTasto(KEY_Y + 8, Qt::Key_Z, false), 'Y');
}

TEST(Tasti, TheKeypadIsTheKeypadWithAndWithoutTheNumberLock) {
    const int cifre[] = {KEY_KP0, KEY_KP1, KEY_KP2, KEY_KP3, KEY_KP4,
                         KEY_KP5, KEY_KP6, KEY_KP7, KEY_KP8, KEY_KP9};
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(DelPosto(cifre[i]), 96 + i);
    EXPECT_EQ(CodiceTasto(KEY_KP4 + 8, Qt::Key_Left, true), 100);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_Left, true), 100);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_4, true), 100);
}

TEST(Tasti, TheFiguresOfTheMainKeyboardAreNotTheKeypads) {
    EXPECT_EQ(DelPosto(KEY_1), '1');
    EXPECT_EQ(DelPosto(KEY_0), '0');
    EXPECT_EQ(CodiceTasto(0, Qt::Key_1, false), '1');
}

TEST(Tasti, PunctuationHasItsOwnCodes) {
    const std::pair<int, int> segni[] = {
        {KEY_SEMICOLON, 186}, {KEY_EQUAL, 187},      {KEY_COMMA, 188},      {KEY_MINUS, 189},
        {KEY_DOT, 190},       {KEY_SLASH, 191},      {KEY_GRAVE, 192},      {KEY_LEFTBRACE, 219},
        {KEY_BACKSLASH, 220}, {KEY_RIGHTBRACE, 221}, {KEY_APOSTROPHE, 222}, {KEY_102ND, 226}};
    for (const auto& [posto, codice] : segni)
        EXPECT_EQ(DelPosto(posto), codice);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_Comma, false), 188);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_Period, false), 190);
}

TEST(Tasti, FunctionKeysAndArrowsAreWhereTheyAlwaysWere) {
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(DelPosto(KEY_F1 + i), 112 + i);
    EXPECT_EQ(DelPosto(KEY_F11), 122);
    EXPECT_EQ(DelPosto(KEY_F12), 123);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_F12, false), 123);
    EXPECT_EQ(DelPosto(KEY_LEFT), 37);
    EXPECT_EQ(DelPosto(KEY_UP), 38);
    EXPECT_EQ(DelPosto(KEY_RIGHT), 39);
    EXPECT_EQ(DelPosto(KEY_DOWN), 40);
    EXPECT_EQ(DelPosto(KEY_ESC), 27);
    EXPECT_EQ(DelPosto(KEY_SPACE), 32);
}

TEST(Tasti, WithoutAPlaceTheCharacterDecides) {
    EXPECT_EQ(CodiceTasto(0, Qt::Key_D, false), 'D');
    EXPECT_EQ(CodiceTasto(0, Qt::Key_Escape, false), 27);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_Left, false), 37);
    EXPECT_EQ(CodiceTasto(0, Qt::Key_Enter, true), 13);
}

TEST(Tasti, AKeyThatNobodyKnowsHasNoCode) {
    EXPECT_EQ(CodiceTasto(0, Qt::Key_VolumeUp, false), 0);
    EXPECT_EQ(CodiceTasto(KEY_VOLUMEUP + 8, Qt::Key_VolumeUp, false), 0);
}

TEST(Tasti, ModifiersBecomeBits) {
    EXPECT_EQ(BitMaiuscole(Qt::NoModifier), 0);
    EXPECT_EQ(BitMaiuscole(Qt::ShiftModifier | Qt::AltModifier), shiftMaiuscole | shiftAlt);
    EXPECT_EQ(BitMaiuscole(Qt::ControlModifier), shiftControl);
}

}  // namespace
}  // namespace corvana
