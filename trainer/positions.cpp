#include "trainer/positions.h"

#include <algorithm>
#include <array>

namespace corvana {

namespace {

using S = Specie;

constexpr std::array<Posizione, 46> posizioni = {{
    {11, 496, 4545, 4635, S::maschera, 4845, 3975, 435, 630},
    {12, 498, 4425, 4530, S::maschera, 4095, 3975, 435, 525},
    {13, 500, 4305, 4395, S::maschera, 3330, 3975, 435, 405},
    {14, 0, 4200, 4290, S::maschera, 2565, 3945, 435, 405},
    {15, 2, 4095, 4185, S::maschera, 1785, 3945, 435, 405},
    {16, 4, 4005, 4080, S::maschera, 1020, 3945, 435, 405},
    {17, 5, 3915, 3990, S::testa, 1530, 3870, 255, 180},
    {18, 7, 3840, 3900, S::testa, 4560, 3780, 255, 180},
    {19, 9, 3735, 3810, S::testa, 4185, 3690, 255, 180},
    {20, 11, 3630, 3705, S::testa, 3825, 3600, 255, 180},
    {21, 12, 3555, 3615, S::testa, 3420, 3525, 255, 180},
    {22, 14, 3480, 3540, S::testa, 3060, 3435, 255, 180},
    {23, 16, 3405, 3450, S::testa, 2385, 3345, 255, 180},
    {24, 17, 3300, 3375, S::testa, 1125, 3270, 255, 180},
    {25, 19, 3225, 3270, S::testa, 1920, 3180, 255, 180},
    {26, 21, 3135, 3210, S::testa, 4935, 3090, 255, 180},
    {27, 23, 3060, 3120, S::testa, 1530, 3015, 255, 180},
    {28, 24, 2970, 3045, S::maschera, 1035, 2760, 435, 405},
    {29, 26, 2865, 2940, S::maschera, 1800, 2670, 435, 405},
    {30, 28, 2760, 2820, S::maschera, 2565, 2670, 435, 405},
    {31, 29, 2655, 2730, S::maschera, 3315, 2670, 435, 405},
    {40, 17, 2220, 2310, S::maschera, 4095, 1830, 435, 525},
    {41, 19, 2130, 2205, S::maschera, 3330, 1845, 435, 405},
    {42, 21, 2040, 2100, S::maschera, 2550, 1830, 435, 405},
    {43, 23, 1935, 2025, S::maschera, 1800, 1800, 435, 405},
    {44, 24, 1845, 1920, S::maschera, 1020, 1740, 435, 405},
    {45, 26, 1770, 1830, S::testa, 2265, 1725, 255, 180},
    {46, 28, 1680, 1755, S::testa, 3135, 1635, 255, 180},
    {47, 29, 1590, 1665, S::testa, 1545, 1545, 255, 180},
    {48, 31, 1500, 1560, S::testa, 4185, 1455, 255, 180},
    {49, 33, 1425, 1485, S::testa, 2655, 1365, 255, 180},
    {50, 35, 1335, 1395, S::testa, 4605, 1290, 255, 180},
    {51, 36, 1260, 1320, S::testa, 5355, 1215, 255, 180},
    {52, 38, 1170, 1245, S::testa, 4965, 1125, 255, 180},
    {53, 40, 1080, 1155, S::testa, 3810, 1035, 255, 180},
    {54, 41, 990, 1065, S::testa, 3045, 945, 255, 180},
    {55, 43, 900, 960, S::testa, 2280, 855, 255, 180},
    {56, 45, 810, 885, S::maschera, 1020, 585, 435, 405},
    {57, 47, 735, 795, S::maschera, 1785, 555, 435, 405},
    {58, 48, 645, 720, S::maschera, 2565, 525, 435, 405},
    {59, 50, 555, 630, S::maschera, 3315, 495, 435, 405},
    {60, 52, 480, 540, S::maschera, 4095, 330, 435, 630},
    {61, 53, 390, 465, S::maschera, 4845, 285, 435, 660},
    {62, 55, 300, 360, S::maschera, 5625, 210, 435, 810},
    {63, 57, 210, 285, S::acuta, 5205, 105, 390, 900},
    {64, 59, 90, 180, S::acuta, 4425, 45, 360, 945},
}};

}  // namespace

std::span<const Posizione> Posizioni() {
    return posizioni;
}

const Posizione* CercaPosizione(int numero) {
    const auto p = std::find_if(posizioni.begin(), posizioni.end(),
                                [=](const Posizione& x) { return x.numero == numero; });
    return p == posizioni.end() ? nullptr : &*p;
}

const Posizione* PosizioneDaRegolo(int y) {
    const auto p = std::find_if(posizioni.begin(), posizioni.end(), [=](const Posizione& x) {
        return y >= x.fasciaDa && y <= x.fasciaA;
    });
    return p == posizioni.end() ? nullptr : &*p;
}

bool HaPosizioni(int basso, int alto) {
    return std::any_of(posizioni.begin(), posizioni.end(),
                       [=](const Posizione& p) { return p.numero >= basso && p.numero <= alto; });
}

int RispostaDi(const Posizione& posizione) {
    constexpr int gradi = 7;
    // Do is position 14 of the bass staff and 44 of the treble staff.
    const int primoDo = posizione.numero < 40 ? 14 : 44;
    return ((posizione.numero - primoDo) % gradi + gradi) % gradi + 1;
}

}  // namespace corvana
