// What becomes of what was typed into the soprano's first box.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

/// Ten notes, of which 3 to 8 are the range, and another voice is the active one.
struct BancoCasella : BancoComposer {
    BancoCasella() {
        Voce(soprano, "60;62;64;65;67;69;71;72;74;76;", "1");
        Tratto(3, 8);
        finestra.mix.VoceAttiva_Click(basso);
        finestra.stato.lblNt.Caption = "as it was";
    }
    void Scrivi(const std::string& testo) {
        finestra.voci.lblNini.Text = testo;
        Subito(Fatto::LostFocus, "lblNini");
    }
    int Prima() const { return melodia.voci[soprano].primaNota; }
    std::string Casella() const { return finestra.voci.lblNini.Text(); }
    bool Scelta() const {
        return melodia.voceAttiva == "soprano" && finestra.stato.lblNt.Caption() == "8";
    }
};

}  // namespace

TEST(LblNiniValidate, AValueFrom1ToTheRangesEndIsTakenAndSelectsTheSoprano) {
    for (const int valore : {1, 2, 7, 8}) {
        BancoCasella b;
        b.Scrivi(std::to_string(valore));
        EXPECT_EQ(b.Prima(), valore - 1);
        EXPECT_EQ(b.Casella(), std::to_string(valore));
        EXPECT_TRUE(b.Scelta());
    }
}

TEST(LblNiniValidate, AnyOtherValueIsReplacedByTheFirstNoteAndSelectsTheSoprano) {
    for (const char* valore : {"0", "-1", "9", "10", "99999999999"}) {
        BancoCasella b;
        b.Scrivi(valore);
        EXPECT_EQ(b.Prima(), 2) << valore;
        EXPECT_EQ(b.Casella(), "3") << valore;
        EXPECT_TRUE(b.Scelta()) << valore;
    }
}

TEST(LblNiniValidate, WhatIsNoNumberIsReplacedAndSelectsNothing) {
    for (const char* testo : {"", "abc", "3x", ";"}) {
        BancoCasella b;
        b.Scrivi(testo);
        EXPECT_EQ(b.Prima(), 2) << testo;
        EXPECT_EQ(b.Casella(), "3") << testo;
        EXPECT_EQ(b.melodia.voceAttiva, "basso") << testo;
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(LblNiniValidate, WithAnEmptySopranoTheBoxIsEmptied) {
    BancoCasella b;
    b.melodia.voci[soprano].testoNote.clear();
    b.Scrivi("5");
    EXPECT_EQ(b.Casella(), "");
    EXPECT_EQ(b.Prima(), 2);
    EXPECT_EQ(b.melodia.voceAttiva, "basso");
}

}  // namespace corvana::prova
