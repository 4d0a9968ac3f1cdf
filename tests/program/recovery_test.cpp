// A melody that isn't saved, from one run of the whole program to the next.
#include <gtest/gtest.h>

#include "composer/composer.h"
#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

struct BancoRecupero : BancoProgramma {
    explicit BancoRecupero(std::optional<std::string> rimasto = {}) {
        custode.rimasto = std::move(rimasto);
        file.supportoRimovibile = "/medium/";
        Clicca(3, "mnuComposer");
    }
    frmComposer& Composer() { return dynamic_cast<frmComposer&>(*finestre.Davanti()); }
    bool HaUnaPausa() {
        const StatoComposer& stato = Composer().stato;
        return stato.lblModificato.Visible() && stato.melodia.voci[soprano].testoNote == "00;";
    }
    bool Vuota() {
        const StatoComposer& stato = Composer().stato;
        return !stato.lblModificato.Visible() && stato.melodia.voci[soprano].Vuota();
    }
};

/// A run in which a rest is entered; the program is told to end with `sopra` open over the melody.
std::optional<std::string> Lasciata(const char* sopra = nullptr) {
    BancoRecupero b;
    b.Clicca(4, "cmdInsPausa");
    if (sopra) b.Clicca(5, sopra);
    b.Quando(6, [&] {
        EXPECT_EQ(b.finestre.Davanti()->Name == "frmComposer", !sopra);
        b.coda.ChiediFine();
    });
    EXPECT_FALSE(b.Vai(7));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.custode.fissate, 1);
    return b.custode.Contenuto();
}

}  // namespace

TEST(RecuperoNelProgramma, WhatTheEndOfOneRunLeftTheNextOneHas) {
    for (const char* sopra : {"", "mnuSs", "mnuCopyFromA"}) {
        const auto lasciata = Lasciata(*sopra ? sopra : nullptr);
        ASSERT_TRUE(lasciata) << sopra;
        BancoRecupero b(lasciata);
        b.Quando(4, [&] { EXPECT_TRUE(b.HaUnaPausa()) << sopra; });
        EXPECT_TRUE(b.Vai(5));
        EXPECT_TRUE(b.custode.Contenuto());
    }
}

TEST(RecuperoNelProgramma, LeftByAnAnswerItIsntThereAtTheNextOpening) {
    BancoRecupero b(Lasciata());
    b.riquadri.risposte = {true};
    b.Chiudi(4);
    b.Quando(5, [&] {
        EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
        EXPECT_FALSE(b.custode.Contenuto());
    });
    b.Clicca(6, "mnuComposer");
    b.Quando(7, [&] { EXPECT_TRUE(b.Vuota()); });
    EXPECT_TRUE(b.Vai(8));
}

TEST(RecuperoNelProgramma, WithoutTheMelodyWindowNobodyLooksForIt) {
    BancoProgramma b;
    b.custode.rimasto = "rubbish";
    EXPECT_TRUE(b.Vai(5));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.custode.Contenuto(), "rubbish");
}

}  // namespace corvana::prova
