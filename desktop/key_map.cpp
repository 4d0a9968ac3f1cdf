#include "desktop/key_map.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>
#include <iterator>

#include "forms/event.h"
#include "forms/keys.h"

namespace corvana {

namespace {

struct Coppia {
    int da;
    int codice;
};

// By place, as the kernel names the places after the American keyboard.
constexpr Coppia perPosto[] = {
    {KEY_ESC, 27},      {KEY_1, '1'},          {KEY_2, '2'},          {KEY_3, '3'},
    {KEY_4, '4'},       {KEY_5, '5'},          {KEY_6, '6'},          {KEY_7, '7'},
    {KEY_8, '8'},       {KEY_9, '9'},          {KEY_0, '0'},          {KEY_MINUS, 189},
    {KEY_EQUAL, 187},   {KEY_BACKSPACE, 8},    {KEY_TAB, 9},          {KEY_Q, 'Q'},
    {KEY_W, 'W'},       {KEY_E, 'E'},          {KEY_R, 'R'},          {KEY_T, 'T'},
    {KEY_Y, 'Y'},       {KEY_U, 'U'},          {KEY_I, 'I'},          {KEY_O, 'O'},
    {KEY_P, 'P'},       {KEY_LEFTBRACE, 219},  {KEY_RIGHTBRACE, 221}, {KEY_ENTER, 13},
    {KEY_LEFTCTRL, 17}, {KEY_A, 'A'},          {KEY_S, 'S'},          {KEY_D, 'D'},
    {KEY_F, 'F'},       {KEY_G, 'G'},          {KEY_H, 'H'},          {KEY_J, 'J'},
    {KEY_K, 'K'},       {KEY_L, 'L'},          {KEY_SEMICOLON, 186},  {KEY_APOSTROPHE, 222},
    {KEY_GRAVE, 192},   {KEY_LEFTSHIFT, 16},   {KEY_BACKSLASH, 220},  {KEY_Z, 'Z'},
    {KEY_X, 'X'},       {KEY_C, 'C'},          {KEY_V, 'V'},          {KEY_B, 'B'},
    {KEY_N, 'N'},       {KEY_M, 'M'},          {KEY_COMMA, 188},      {KEY_DOT, 190},
    {KEY_SLASH, 191},   {KEY_RIGHTSHIFT, 16},  {KEY_KPASTERISK, 106}, {KEY_LEFTALT, 18},
    {KEY_SPACE, 32},    {KEY_CAPSLOCK, 20},    {KEY_F1, 112},         {KEY_F2, 113},
    {KEY_F3, 114},      {KEY_F4, 115},         {KEY_F5, 116},         {KEY_F6, 117},
    {KEY_F7, 118},      {KEY_F8, 119},         {KEY_F9, 120},         {KEY_F10, 121},
    {KEY_NUMLOCK, 144}, {KEY_SCROLLLOCK, 145}, {KEY_KP7, 103},        {KEY_KP8, 104},
    {KEY_KP9, 105},     {KEY_KPMINUS, 109},    {KEY_KP4, 100},        {KEY_KP5, 101},
    {KEY_KP6, 102},     {KEY_KPPLUS, 107},     {KEY_KP1, 97},         {KEY_KP2, 98},
    {KEY_KP3, 99},      {KEY_KP0, 96},         {KEY_KPDOT, 110},      {KEY_102ND, 226},
    {KEY_F11, 122},     {KEY_F12, 123},        {KEY_KPENTER, 13},     {KEY_RIGHTCTRL, 17},
    {KEY_KPSLASH, 111}, {KEY_SYSRQ, 44},       {KEY_RIGHTALT, 18},    {KEY_HOME, 36},
    {KEY_UP, 38},       {KEY_PAGEUP, 33},      {KEY_LEFT, 37},        {KEY_RIGHT, 39},
    {KEY_END, 35},      {KEY_DOWN, 40},        {KEY_PAGEDOWN, 34},    {KEY_INSERT, 45},
    {KEY_DELETE, 46},   {KEY_PAUSE, 19},       {KEY_LEFTMETA, 91},    {KEY_RIGHTMETA, 92},
    {KEY_COMPOSE, 93},
};

constexpr Coppia perCarattere[] = {
    {Qt::Key_Escape, 27},        {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},
    {Qt::Key_Backspace, 8},      {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},
    {Qt::Key_Insert, 45},        {Qt::Key_Delete, 46},      {Qt::Key_Pause, 19},
    {Qt::Key_Print, 44},         {Qt::Key_Home, 36},        {Qt::Key_End, 35},
    {Qt::Key_Left, 37},          {Qt::Key_Up, 38},          {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},          {Qt::Key_PageUp, 33},      {Qt::Key_PageDown, 34},
    {Qt::Key_Shift, 16},         {Qt::Key_Control, 17},     {Qt::Key_Alt, 18},
    {Qt::Key_AltGr, 18},         {Qt::Key_CapsLock, 20},    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},   {Qt::Key_Space, 32},       {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},        {Qt::Key_Equal, 187},      {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},        {Qt::Key_Minus, 189},      {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},       {Qt::Key_Slash, 191},      {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},  {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},     {Qt::Key_Less, 226},       {Qt::Key_Greater, 226},
};

// Without the number lock the keypad gives the names of the arrows and their neighbours.
constexpr Coppia perTastierino[] = {
    {Qt::Key_Insert, 96},  {Qt::Key_End, 97},       {Qt::Key_Down, 98},    {Qt::Key_PageDown, 99},
    {Qt::Key_Left, 100},   {Qt::Key_Clear, 101},    {Qt::Key_Right, 102},  {Qt::Key_Home, 103},
    {Qt::Key_Up, 104},     {Qt::Key_PageUp, 105},   {Qt::Key_Delete, 110}, {Qt::Key_Comma, 110},
    {Qt::Key_Period, 110}, {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},   {Qt::Key_Minus, 109},
    {Qt::Key_Slash, 111},  {Qt::Key_Enter, 13},     {Qt::Key_Return, 13},
};

template <std::size_t N>
int Cerca(const Coppia (&tavola)[N], int chiave) {
    const auto e = std::find_if(std::begin(tavola), std::end(tavola),
                                [=](const Coppia& c) { return c.da == chiave; });
    return e == std::end(tavola) ? 0 : e->codice;
}

int DaCarattere(int tasto) {
    const bool cifra = tasto >= Qt::Key_0 && tasto <= Qt::Key_9;
    const bool lettera = tasto >= Qt::Key_A && tasto <= Qt::Key_Z;
    if (cifra || lettera) return tasto;
    if (tasto >= Qt::Key_F1 && tasto <= Qt::Key_F24) return vk::f1 + tasto - Qt::Key_F1;
    return Cerca(perCarattere, tasto);
}

int DaTastierino(int tasto) {
    if (tasto >= Qt::Key_0 && tasto <= Qt::Key_9) return vk::tastierino0 + tasto - Qt::Key_0;
    return Cerca(perTastierino, tasto);
}

}  // namespace

int CodiceTasto(std::uint32_t scansione, int tastoQt, bool tastierino) {
    constexpr std::uint32_t sopraIlNucleo = 8;
    if (scansione > sopraIlNucleo)
        if (const int codice = Cerca(perPosto, static_cast<int>(scansione - sopraIlNucleo)))
            return codice;
    if (tastierino)
        if (const int codice = DaTastierino(tastoQt)) return codice;
    return DaCarattere(tastoQt);
}

bool EInvio(int tastoQt) {
    return tastoQt == Qt::Key_Return || tastoQt == Qt::Key_Enter;
}

int BitMaiuscole(Qt::KeyboardModifiers modificatori) {
    return (modificatori.testFlag(Qt::ShiftModifier) ? shiftMaiuscole : 0) |
           (modificatori.testFlag(Qt::ControlModifier) ? shiftControl : 0) |
           (modificatori.testFlag(Qt::AltModifier) ? shiftAlt : 0);
}

}  // namespace corvana
