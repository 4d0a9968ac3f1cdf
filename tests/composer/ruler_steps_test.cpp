// Rows of the ruler.
#include "composer/ruler_steps.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvana::prova {

namespace {

/// White keys from the lowest C of all up to the note, or to the white key below it.
int Bianchi(int nota) {
    const std::vector<int> inOttava = {0, 0, 1, 1, 2, 3, 3, 4, 4, 5, 5, 6};
    return nota / 12 * 7 + inOttava.at(static_cast<std::size_t>(nota % 12));
}

/// Middle C is on row 19, each white key above it a row higher.
int RigaAttesa(int nota) {
    return 19 - (Bianchi(nota) - Bianchi(60));
}

bool Nero(int nota) {
    return Bianchi(nota) == Bianchi(nota - 1);
}

PostoCursore Posto(int riga, int nota) {
    return {static_cast<std::int16_t>(riga), static_cast<std::int16_t>(nota)};
}

void Uguale(const PostoCursore& posto, int riga, int nota) {
    EXPECT_EQ(posto.riga, riga) << "at " << nota;
    EXPECT_EQ(posto.nota, nota);
}

}  // namespace

TEST(CursoreSu, GoesUpRowByRowFromTheLowestKeyToTheHighest) {
    PostoCursore posto = Posto(33, 36);
    for (int nota = 37; nota <= 95; ++nota) {
        posto = CursoreSu(posto);
        Uguale(posto, RigaAttesa(nota), nota);
    }
    EXPECT_EQ(posto.riga, -1);
}

TEST(CursoreGiu, GoesDownRowByRowFromTheHighestKeyToTheLowest) {
    PostoCursore posto = Posto(-1, 95);
    for (int nota = 94; nota >= 36; --nota) {
        posto = CursoreGiu(posto);
        Uguale(posto, RigaAttesa(nota), nota);
    }
    EXPECT_EQ(posto.riga, 33);
}

TEST(CursoreSu, From95ItJumpsTo36OnRow33) {
    Uguale(CursoreSu(Posto(-1, 95)), 33, 36);
}

TEST(CursoreGiu, From36ItJumpsTo95OnRowMinus1) {
    Uguale(CursoreGiu(Posto(33, 36)), -1, 95);
}

TEST(CursoreSu, From60To61TheRowStays19AndTo62ItIs18) {
    const PostoCursore diesis = CursoreSu(Posto(19, 60));
    Uguale(diesis, 19, 61);
    Uguale(CursoreSu(diesis), 18, 62);
}

TEST(CursoreGiu, From62To61ItIsRow19AndStaysThereDownTo60) {
    const PostoCursore diesis = CursoreGiu(Posto(18, 62));
    Uguale(diesis, 19, 61);
    Uguale(CursoreGiu(diesis), 19, 60);
}

TEST(NotaConDiesis, TheTwentyFiveBlackKeysHaveItAndNothingElse) {
    int neri = 0;
    for (int nota = -2; nota <= 130; ++nota) {
        const bool atteso = nota >= 36 && nota <= 95 && Nero(nota);
        EXPECT_EQ(NotaConDiesis(static_cast<std::int16_t>(nota)), atteso) << nota;
        neri += atteso;
    }
    EXPECT_EQ(neri, 25);
}

TEST(RigaDopo, UpwardsOnlyABlackKeyKeepsTheRow) {
    for (int nota = 36; nota <= 95; ++nota)
        EXPECT_EQ(RigaDopo(10, static_cast<std::int16_t>(nota), "su"), Nero(nota) ? 10 : 9) << nota;
}

TEST(RigaDopo, DownwardsABlackKeyAndTheTwoWhiteOnesWithNoneAboveGoARowLower) {
    const std::vector<int> miESi = {40, 47, 52, 59, 64, 71, 76, 83, 88, 95};
    for (int nota = 36; nota <= 95; ++nota) {
        const bool scende =
            Nero(nota) || std::find(miESi.begin(), miESi.end(), nota) != miESi.end();
        EXPECT_EQ(RigaDopo(10, static_cast<std::int16_t>(nota), "giu"), scende ? 11 : 10) << nota;
    }
}

TEST(RigaDopo, AnyOtherWordLeavesTheRow) {
    for (const char* verso : {"", "Su", "GIU", "up"})
        EXPECT_EQ(RigaDopo(10, 60, verso), 10) << verso;
}

}  // namespace corvana::prova
