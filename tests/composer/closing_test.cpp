// What the melody window asks and leaves as it closes.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

constexpr std::int32_t programmaViolino = 40;

/// A note in the soprano, changed since it was saved.
struct BancoModificato : BancoComposer {
    BancoModificato() {
        Voce(soprano, "60;62;", "1");
        finestra.stato.lblModificato.Visible = true;
        uscita.messaggi.clear();
    }
};

}  // namespace

TEST(ChiusuraComposer, AnUnmodifiedMelodyClosesWithoutAQuestionAndTheFolderIsKept) {
    BancoComposer b;
    b.globali.percorsoCorrente = "/home/mine/";
    b.globali.StrumentoGlobale = programmaViolino;
    b.uscita.messaggi.clear();
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.impostazioni.LeggiValore("LastDir"), "/home/mine/");
    EXPECT_EQ(b.Programmi(), (std::vector<std::pair<int, int>>{{1, programmaViolino}}));
    EXPECT_FALSE(b.globali.ComposerAperto);
}

TEST(ChiusuraComposer, ANoKeepsAModifiedMelodyOpenAndChangesNothing) {
    BancoModificato b;
    b.riquadri.risposte = {false};
    EXPECT_FALSE(b.finestre.Scarica(b.finestra));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"uscire?"});
    EXPECT_EQ(b.impostazioni.LeggiValore("LastDir"), "");
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_TRUE(b.globali.ComposerAperto);
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(ChiusuraComposer, AYesLetsAModifiedMelodyGo) {
    BancoModificato b;
    b.riquadri.risposte = {true};
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"uscire?"});
    EXPECT_FALSE(b.globali.ComposerAperto);
}

TEST(ChiusuraComposer, WhileAMelodyPlaysTheWindowStaysWithoutAWord) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "1");
    b.NelTick(3, [&] { EXPECT_FALSE(b.finestre.Scarica(b.finestra)); });
    b.Suona();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_TRUE(b.globali.ComposerAperto);
    EXPECT_EQ(b.TickPassati(), 64);
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
}

TEST(ChiusuraComposer, AYesDuringAPlayDoesntCloseTheWindowEither) {
    BancoModificato b;
    b.riquadri.risposte = {true};
    b.NelTick(3, [&] { EXPECT_FALSE(b.finestre.Scarica(b.finestra)); });
    b.Suona();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"uscire?"});
    EXPECT_EQ(b.impostazioni.LeggiValore("LastDir"), "");
}

}  // namespace corvana::prova
