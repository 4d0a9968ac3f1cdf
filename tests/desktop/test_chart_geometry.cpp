#include <gtest/gtest.h>

#include <map>

#include "desktop/chart_geometry.h"

namespace corvana {
namespace {

using Passi = std::vector<int>;

// By number of accidentals: the steps above the lowest line, E in the treble staff, G in the bass.
struct Armatura {
    int accidenti;
    Passi violino, basso;
};

const std::vector<Armatura> armature = {
    {0, {}, {}},
    {1, {8}, {6}},
    {2, {8, 5}, {6, 3}},
    {3, {8, 5, 9}, {6, 3, 7}},
    {4, {8, 5, 9, 6}, {6, 3, 7, 4}},
    {5, {8, 5, 9, 6, 3}, {6, 3, 7, 4, 1}},
    {6, {8, 5, 9, 6, 3, 7}, {6, 3, 7, 4, 1, 5}},
    {7, {8, 5, 9, 6, 3, 7, 4}, {6, 3, 7, 4, 1, 5, 2}},
    {-1, {4}, {2}},
    {-2, {4, 7}, {2, 5}},
    {-3, {4, 7, 3}, {2, 5, 1}},
    {-4, {4, 7, 3, 6}, {2, 5, 1, 4}},
    {-5, {4, 7, 3, 6, 2}, {2, 5, 1, 4, 0}},
    {-6, {4, 7, 3, 6, 2, 5}, {2, 5, 1, 4, 0, 3}},
    {-7, {4, 7, 3, 6, 2, 5, 1}, {2, 5, 1, 4, 0, 3, -1}},
};

/// The note's letter at a step of the staff whose lowest line is `prima`.
char Lettera(char prima, int passo) {
    return static_cast<char>('A' + (prima - 'A' + passo + 14) % 7);
}

TEST(Armature, TheFifteenHaveTheirAccidentalsAtTheRightPlacesOfBothClefs) {
    for (const Armatura& a : armature) {
        EXPECT_EQ(PassiArmatura(a.accidenti, ChiaveRigo::Violino), a.violino) << a.accidenti;
        EXPECT_EQ(PassiArmatura(a.accidenti, ChiaveRigo::Basso), a.basso) << a.accidenti;
    }
}

TEST(Armature, TheyAlterTheNotesOfTheirOrderInBothClefs) {
    for (const auto& [accidenti, note] :
         {std::pair{7, std::string("FCGDAEB")}, {-7, std::string("BEADGCF")}})
        for (const auto& [chiave, prima] :
             {std::pair{ChiaveRigo::Violino, 'E'}, {ChiaveRigo::Basso, 'G'}}) {
            std::string lette;
            for (const int passo : PassiArmatura(accidenti, chiave))
                lette += Lettera(prima, passo);
            EXPECT_EQ(lette, note);
        }
}

TEST(Armature, TheScaleClimbsFromTheLineBelowTheStaffToItsMiddleLine) {
    const Passi attesi = {-2, -1, 0, 1, 2, 3, 4};
    for (std::size_t nota = 0; nota < attesi.size(); ++nota)
        EXPECT_EQ(PassoDellaScala(static_cast<int>(nota)), attesi[nota]);
}

TEST(Armature, EachValueLastsHalfAsLongAsTheOneBefore) {
    const std::vector<int> attese = {1, 2, 4, 8, 16, 32, 64};
    for (std::size_t valore = 0; valore < attese.size(); ++valore)
        EXPECT_EQ(ParteDellIntero(static_cast<int>(valore)), attese[valore]);
}

}  // namespace
}  // namespace corvana
