// The ruler in the window: its lines, its cursor and what a move does besides.
#include "composer/ruler.h"

#include <gtest/gtest.h>

#include "forms/keys.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

constexpr Colore blu = Rgb(0, 0, 255), nero = Rgb(0, 0, 0);

struct BancoRegolo : BancoComposer {
    BancoRegolo() { uscita.messaggi.clear(); }
    PannelloRegolo& r = finestra.regolo;
    void Su() { r.MuoviCursore("Premuta", 38); }
    void Giu() { r.MuoviCursore("Premuta", 40); }
    void Sta(int riga, int nota, bool diesis) {
        EXPECT_EQ(r.rigaCursore, riga);
        EXPECT_EQ(r.notaCursore, nota);
        EXPECT_EQ(r.lblAccidente.Visible(), diesis);
    }
};

}  // namespace

TEST(Regolo, ItsLinesLieWhereTheStavesAreInBlueAndBlack) {
    BancoRegolo b;
    std::map<int, Colore> righe;
    for (const Figura& riga : b.r.Line1) {
        EXPECT_EQ(riga.Padre(), &b.r.Regolo);
        EXPECT_EQ(riga.Width(), 360);
        EXPECT_LT(riga.Numero(), b.r.lblCursore.Numero()) << "painted beneath the cursor";
        righe[riga.Top()] = riga.BackColor();
    }
    std::map<int, Colore> attese;
    for (const int y : {150, 330, 495, 660, 825, 1815, 2805, 2970})
        attese[y] = blu;
    for (const int y : {990, 1155, 1335, 1485, 1650, 1980, 2145, 2310, 2475, 2640})
        attese[y] = nero;
    EXPECT_EQ(righe, attese);
    EXPECT_EQ(b.r.Line1.front().Name, "Line10");
}

TEST(MuoviCursore, UpFrom60To61TheRowStays19AndTheSharpShowsAndUpTo62ItIsRow18) {
    BancoRegolo b;
    b.Sta(19, 60, false);
    b.Su();
    b.Sta(19, 61, true);
    b.Su();
    b.Sta(18, 62, false);
}

TEST(MuoviCursore, DownFrom62To61ItIsRow19AndDownTo60TheSharpGoes) {
    BancoRegolo b;
    b.Su();
    b.Su();
    b.Giu();
    b.Sta(19, 61, true);
    b.Giu();
    b.Sta(19, 60, false);
}

TEST(MuoviCursore, UpFrom95ItJumpsTo36OnRow33AndDownAgainTo95OnRowMinus1) {
    BancoRegolo b;
    for (int i = 60; i < 95; ++i)
        b.Su();
    b.Sta(-1, 95, false);
    b.Su();
    b.Sta(33, 36, false);
    b.Giu();
    b.Sta(-1, 95, false);
}

TEST(MuoviCursore, TheCursorsTopIsItsRowTimesHalfItsHeightAndItsHeight) {
    BancoRegolo b;
    for (int i = 0; i < 60; ++i) {
        b.Su();
        const int top = b.r.rigaCursore * 165 / 2 + 165;
        EXPECT_EQ(b.r.lblCursore.Top(), top);
        EXPECT_EQ(b.r.lblAccidente.Top(), top);
    }
    b.Sta(19, 60, false);
    // Its middle lies on the line of middle C.
    EXPECT_NEAR(b.r.lblCursore.Top() + 165 / 2, 1815, 1);
}

TEST(MuoviCursore, ItsNoteBecomesTheActiveOneAndInsertingTakesTheFocus) {
    BancoRegolo b;
    b.inserimento.notaAttiva = 80;
    b.specchio.fuochi.clear();
    b.Su();
    EXPECT_EQ(b.inserimento.notaAttiva, 61);
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "Do#");
    EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"cmdInsNota"});
}

TEST(MuoviCursore, ItsNoteSoundsFor150MillisecondsWithItsKeyLitAndNothingIsDeliveredMeanwhile) {
    BancoRegolo b;
    const double prima = b.pompa.Adesso();
    b.Clicca(prima + 0.05, "VoceAttiva1");
    b.Quando(prima + 0.1, [&] {
        EXPECT_EQ(b.finestra.tasti.lb[25].BackStyle(), fondoOpaco);
        EXPECT_EQ(b.melodia.voceAttiva, "soprano");
    });
    b.Su();
    EXPECT_DOUBLE_EQ(b.pompa.Adesso() - prima, 0.152);
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
    ASSERT_EQ(b.uscita.messaggi.size(), 2U);
    EXPECT_EQ(b.uscita.messaggi[0].messaggio, 0x90U | 61U << 8 | 100U << 16);
    EXPECT_EQ(b.uscita.messaggi[1].messaggio, 0x90U | 61U << 8);
    EXPECT_EQ(b.finestra.tasti.lb[25].BackStyle(), fondoTrasparente);
}

TEST(MuoviCursore, AReleaseAndAnyOtherKeyDoNothing) {
    BancoRegolo b;
    b.r.MuoviCursore("Rilasciata", 38);
    b.r.MuoviCursore("Rilasciata", 40);
    b.r.MuoviCursore("Premuta", 37);
    b.r.MuoviCursore("", 38);
    b.Sta(19, 60, false);
    EXPECT_TRUE(b.uscita.messaggi.empty());
}

TEST(MuoviCursore, TheCursorDoesntFollowANoteChosenOnAKeyboard) {
    BancoRegolo b;
    b.finestra.tasti.MostraTastoPiano(80, true);
    b.Sta(19, 60, false);
    b.Su();
    EXPECT_EQ(b.inserimento.notaAttiva, 61);
}

}  // namespace corvana::prova
