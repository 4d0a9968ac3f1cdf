#include "trainer/positions.h"

#include <gtest/gtest.h>

#include <set>

#include "core/notation.h"

namespace corvana::prova {

namespace {

/// What is known of a position, written down independently of the table under test.
struct PostoAtteso {
    int numero, valore, midi;
    const char* nome;
    const char* risposta;
    int da, a;
    char specie;  ///< of its control: M mask, T head, A high note
    int left, top, width, height;
};

constexpr std::array<PostoAtteso, 46> postiAttesi = {{
    {11, 496, 31, "Sol", "SOL", 4545, 4635, 'M', 4845, 3975, 435, 630},
    {12, 498, 33, "La", "LA", 4425, 4530, 'M', 4095, 3975, 435, 525},
    {13, 500, 35, "Si", "SI", 4305, 4395, 'M', 3330, 3975, 435, 405},
    {14, 0, 36, "Do", "DO", 4200, 4290, 'M', 2565, 3945, 435, 405},
    {15, 2, 38, "Re", "RE", 4095, 4185, 'M', 1785, 3945, 435, 405},
    {16, 4, 40, "Mi", "MI", 4005, 4080, 'M', 1020, 3945, 435, 405},
    {17, 5, 41, "Fa", "FA", 3915, 3990, 'T', 1530, 3870, 255, 180},
    {18, 7, 43, "Sol", "SOL", 3840, 3900, 'T', 4560, 3780, 255, 180},
    {19, 9, 45, "La", "LA", 3735, 3810, 'T', 4185, 3690, 255, 180},
    {20, 11, 47, "Si", "SI", 3630, 3705, 'T', 3825, 3600, 255, 180},
    {21, 12, 48, "Do", "DO", 3555, 3615, 'T', 3420, 3525, 255, 180},
    {22, 14, 50, "Re", "RE", 3480, 3540, 'T', 3060, 3435, 255, 180},
    {23, 16, 52, "Mi", "MI", 3405, 3450, 'T', 2385, 3345, 255, 180},
    {24, 17, 53, "Fa", "FA", 3300, 3375, 'T', 1125, 3270, 255, 180},
    {25, 19, 55, "Sol", "SOL", 3225, 3270, 'T', 1920, 3180, 255, 180},
    {26, 21, 57, "La", "LA", 3135, 3210, 'T', 4935, 3090, 255, 180},
    {27, 23, 59, "Si", "SI", 3060, 3120, 'T', 1530, 3015, 255, 180},
    {28, 24, 60, "Do", "DO", 2970, 3045, 'M', 1035, 2760, 435, 405},
    {29, 26, 62, "Re", "RE", 2865, 2940, 'M', 1800, 2670, 435, 405},
    {30, 28, 64, "Mi", "MI", 2760, 2820, 'M', 2565, 2670, 435, 405},
    {31, 29, 65, "Fa", "FA", 2655, 2730, 'M', 3315, 2670, 435, 405},
    {40, 17, 53, "Fa", "FA", 2220, 2310, 'M', 4095, 1830, 435, 525},
    {41, 19, 55, "Sol", "SOL", 2130, 2205, 'M', 3330, 1845, 435, 405},
    {42, 21, 57, "La", "LA", 2040, 2100, 'M', 2550, 1830, 435, 405},
    {43, 23, 59, "Si", "SI", 1935, 2025, 'M', 1800, 1800, 435, 405},
    {44, 24, 60, "Do", "DO", 1845, 1920, 'M', 1020, 1740, 435, 405},
    {45, 26, 62, "Re", "RE", 1770, 1830, 'T', 2265, 1725, 255, 180},
    {46, 28, 64, "Mi", "MI", 1680, 1755, 'T', 3135, 1635, 255, 180},
    {47, 29, 65, "Fa", "FA", 1590, 1665, 'T', 1545, 1545, 255, 180},
    {48, 31, 67, "Sol", "SOL", 1500, 1560, 'T', 4185, 1455, 255, 180},
    {49, 33, 69, "La", "LA", 1425, 1485, 'T', 2655, 1365, 255, 180},
    {50, 35, 71, "Si", "SI", 1335, 1395, 'T', 4605, 1290, 255, 180},
    {51, 36, 72, "Do", "DO", 1260, 1320, 'T', 5355, 1215, 255, 180},
    {52, 38, 74, "Re", "RE", 1170, 1245, 'T', 4965, 1125, 255, 180},
    {53, 40, 76, "Mi", "MI", 1080, 1155, 'T', 3810, 1035, 255, 180},
    {54, 41, 77, "Fa", "FA", 990, 1065, 'T', 3045, 945, 255, 180},
    {55, 43, 79, "Sol", "SOL", 900, 960, 'T', 2280, 855, 255, 180},
    {56, 45, 81, "La", "LA", 810, 885, 'M', 1020, 585, 435, 405},
    {57, 47, 83, "Si", "SI", 735, 795, 'M', 1785, 555, 435, 405},
    {58, 48, 84, "Do", "DO", 645, 720, 'M', 2565, 525, 435, 405},
    {59, 50, 86, "Re", "RE", 555, 630, 'M', 3315, 495, 435, 405},
    {60, 52, 88, "Mi", "MI", 480, 540, 'M', 4095, 330, 435, 630},
    {61, 53, 89, "Fa", "FA", 390, 465, 'M', 4845, 285, 435, 660},
    {62, 55, 91, "Sol", "SOL", 300, 360, 'M', 5625, 210, 435, 810},
    {63, 57, 93, "La", "LA", 210, 285, 'A', 5205, 105, 390, 900},
    {64, 59, 95, "Si", "SI", 90, 180, 'A', 4425, 45, 360, 945},
}};

constexpr std::array<const char*, 7> risposte = {"DO", "RE", "MI", "FA", "SOL", "LA", "SI"};

Specie SpecieDi(char lettera) {
    if (lettera == 'M') return Specie::maschera;
    return lettera == 'T' ? Specie::testa : Specie::acuta;
}

/// The number of the position whose band holds `y`, or 0.
int NumeroDaY(int y) {
    for (const PostoAtteso& attesa : postiAttesi)
        if (y >= attesa.da && y <= attesa.a) return attesa.numero;
    return 0;
}

}  // namespace

TEST(Posizioni, AreTheFortySixInAscendingOrder) {
    ASSERT_EQ(Posizioni().size(), postiAttesi.size());
    for (std::size_t i = 0; i < postiAttesi.size(); ++i)
        EXPECT_EQ(Posizioni()[i].numero, postiAttesi[i].numero);
}

TEST(Posizioni, EachHasItsPitch) {
    for (const PostoAtteso& attesa : postiAttesi) {
        const Posizione* p = CercaPosizione(attesa.numero);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(p->valore, attesa.valore) << attesa.numero;
        const int scarto = p->valore > 400 ? -465 : 36;
        EXPECT_EQ(p->valore + scarto, attesa.midi) << attesa.numero;
    }
}

TEST(Posizioni, EachHasTheNameOfItsPitch) {
    for (const PostoAtteso& attesa : postiAttesi) {
        const int valore = CercaPosizione(attesa.numero)->valore;
        EXPECT_EQ(NomeNota(static_cast<std::int16_t>(valore + 36), false), attesa.nome)
            << attesa.numero;
    }
}

TEST(Posizioni, EachHasItsAnswer) {
    for (const PostoAtteso& attesa : postiAttesi) {
        const int risposta = RispostaDi(*CercaPosizione(attesa.numero));
        EXPECT_STREQ(risposte.at(static_cast<std::size_t>(risposta - 1)), attesa.risposta)
            << attesa.numero;
    }
}

TEST(Posizioni, EachHasItsControlOnThePicture) {
    for (const PostoAtteso& attesa : postiAttesi) {
        const Posizione* p = CercaPosizione(attesa.numero);
        EXPECT_EQ(p->specie, SpecieDi(attesa.specie)) << attesa.numero;
        EXPECT_EQ(p->left, attesa.left) << attesa.numero;
        EXPECT_EQ(p->top, attesa.top) << attesa.numero;
        EXPECT_EQ(p->width, attesa.width) << attesa.numero;
        EXPECT_EQ(p->height, attesa.height) << attesa.numero;
    }
}

TEST(Posizioni, TheStavesOverlapByEightNotes) {
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(CercaPosizione(24 + i)->valore, CercaPosizione(40 + i)->valore);
}

TEST(Posizioni, NoOtherNumberIsOne) {
    std::set<int> numeri;
    for (const PostoAtteso& attesa : postiAttesi)
        numeri.insert(attesa.numero);
    for (int numero = -300; numero <= 300; ++numero)
        EXPECT_EQ(CercaPosizione(numero) != nullptr, numeri.contains(numero)) << numero;
}

TEST(Regolo, EachBandHoldsBothItsEndsAndBetweenTheBandsThereIsNothing) {
    for (int y = -100; y <= 5000; ++y) {
        const Posizione* p = PosizioneDaRegolo(y);
        EXPECT_EQ(p ? p->numero : 0, NumeroDaY(y)) << y;
    }
}

TEST(HaPosizioni, IsFalseForTheGapAndForRangesInTheWrongOrder) {
    EXPECT_TRUE(HaPosizioni(11, 64));
    EXPECT_TRUE(HaPosizioni(31, 39));
    EXPECT_TRUE(HaPosizioni(40, 40));
    EXPECT_FALSE(HaPosizioni(32, 39));
    EXPECT_FALSE(HaPosizioni(65, 255));
    EXPECT_FALSE(HaPosizioni(0, 10));
    EXPECT_FALSE(HaPosizioni(50, 20));
}

}  // namespace corvana::prova
