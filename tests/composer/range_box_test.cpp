// What becomes of what was typed into the range boxes.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

/// Ten notes in each voice, of which 3 to 8 are the range.
struct BancoCaselle : BancoAMano {
    BancoCaselle() {
        for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
            Voce(voce, "60;62;64;65;67;69;71;72;74;76;", "1");
            VoceMelodia& v = melodia.voci[voce];
            v.primaNota = 2;
            v.ultimaNota = 7;
            finestra.voci.perVoce[voce].prima.Text = "3";
            finestra.voci.perVoce[voce].ultima.Text = "8";
        }
        finestra.stato.lblNt.Caption = "as it was";
    }
    std::string Nome(std::size_t voce, bool ultima) const {
        const PannelloVoci::ControlliVoce& caselle = finestra.voci.perVoce[voce];
        return (ultima ? caselle.ultima : caselle.prima).Name;
    }
    /// Types into the box and leaves it; another voice is the active one before.
    void Scrivi(std::size_t voce, bool ultima, const std::string& testo) {
        finestra.mix.VoceAttiva_Click(static_cast<int>(Altra(voce)));
        finestra.stato.lblNt.Caption = "as it was";
        passo.modoPasso = true;
        ScriviIn(Nome(voce, ultima), testo);
        Esci(Nome(voce, ultima));
    }
    std::string Mostra(std::size_t voce, bool ultima) const {
        const PannelloVoci::ControlliVoce& caselle = finestra.voci.perVoce[voce];
        return (ultima ? caselle.ultima : caselle.prima).Text();
    }
    /// The field of the box, counted from 1.
    int Campo(std::size_t voce, bool ultima) const {
        const VoceMelodia& v = melodia.voci[voce];
        return (ultima ? v.ultimaNota : v.primaNota) + 1;
    }
    static std::size_t Altra(std::size_t voce) { return voce == basso ? soprano : basso; }
    bool Scelta(std::size_t voce) const {
        return melodia.voceAttiva == nomiVoci[voce] && !passo.modoPasso &&
               finestra.stato.lblNt.Caption() == Mostra(voce, true);
    }
    bool NonScelta(std::size_t voce) const {
        return melodia.voceAttiva == nomiVoci[Altra(voce)] && passo.modoPasso &&
               finestra.stato.lblNt.Caption() == "as it was";
    }
};

template <class Prova>
void PerOgniCasella(const Prova& prova) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        for (const bool ultima : {false, true}) {
            BancoCaselle b;
            SCOPED_TRACE(b.Nome(voce, ultima));
            prova(b, voce, ultima);
            EXPECT_TRUE(b.riquadri.messaggi.empty());
            EXPECT_FALSE(b.Modificata());
        }
}

}  // namespace

TEST(CasellaTratto, ANumberThatIsTakenGoesIntoTheRangeAndSelectsTheVoiceAndEndsTheStepMode) {
    PerOgniCasella([](BancoCaselle& b, std::size_t voce, bool ultima) {
        b.Scrivi(voce, ultima, ultima ? "9" : "2");
        EXPECT_EQ(b.Campo(voce, ultima), ultima ? 9 : 2);
        EXPECT_EQ(b.Mostra(voce, ultima), ultima ? "9" : "2");
        EXPECT_EQ(b.Campo(voce, !ultima), ultima ? 3 : 8);
        EXPECT_EQ(b.Mostra(voce, !ultima), ultima ? "3" : "8");
        EXPECT_TRUE(b.Scelta(voce));
    });
}

TEST(CasellaTratto, LblNfineSetTo0OrAboveTheCountGoesBackToTheOldValue) {
    for (const char* testo : {"0", "11", "2", "-1", "99999999999", "-99999999999"}) {
        BancoCaselle b;
        b.Scrivi(soprano, true, testo);
        EXPECT_EQ(b.Mostra(soprano, true), "8") << testo;
        EXPECT_EQ(b.Campo(soprano, true), 8) << testo;
        EXPECT_TRUE(b.Scelta(soprano)) << testo;
    }
}

TEST(CasellaTratto, LblNfineCRefusedOnAVoiceOf10NotesShows10WhileTheFieldStands) {
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce)
        for (const char* testo : {"0", "4", "11", "-5", "99999999999"}) {
            BancoCaselle b;
            b.Scrivi(voce, true, testo);
            EXPECT_EQ(b.Mostra(voce, true), "10") << testo;
            EXPECT_EQ(b.Campo(voce, true), 8) << testo;
            EXPECT_TRUE(b.Scelta(voce)) << testo;
        }
}

TEST(CasellaTratto, LblNiniCEqualToLblNfineCIsRefusedAndLblNiniEqualToLblNfineIsAccepted) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoCaselle b;
        b.Scrivi(voce, false, "8");
        EXPECT_EQ(b.Mostra(voce, false), voce == soprano ? "8" : "3");
        EXPECT_EQ(b.Campo(voce, false), voce == soprano ? 8 : 3);
        EXPECT_TRUE(b.Scelta(voce));
    }
}

TEST(CasellaTratto, WithLblNiniCAt3LblNfineC4IsRefusedAnd5IsAccepted) {
    for (std::size_t voce = contralto; voce < numeroVoci; ++voce) {
        BancoCaselle b;
        b.Scrivi(voce, true, "4");
        EXPECT_EQ(b.Mostra(voce, true), "10");
        b.Scrivi(voce, true, "5");
        EXPECT_EQ(b.Mostra(voce, true), "5");
        EXPECT_EQ(b.Campo(voce, true), 5);
    }
}

TEST(CasellaTratto, AnEmptyBoxIsRefilledFromTheFieldAndTheActiveVoiceDoesntChange) {
    PerOgniCasella([](BancoCaselle& b, std::size_t voce, bool ultima) {
        b.Scrivi(voce, ultima, "");
        EXPECT_EQ(b.Mostra(voce, ultima), ultima ? "8" : "3");
        EXPECT_TRUE(b.NonScelta(voce));
    });
}

TEST(CasellaTratto, WhatIsNoNumberIsReplacedByTheFieldAndSelectsNothing) {
    for (const char* testo : {" ", "abc", "3x", ";", "1 2", "--1", "1e999"})
        PerOgniCasella([testo](BancoCaselle& b, std::size_t voce, bool ultima) {
            b.Scrivi(voce, ultima, testo);
            EXPECT_EQ(b.Mostra(voce, ultima), ultima ? "8" : "3") << testo;
            EXPECT_EQ(b.Campo(voce, ultima), ultima ? 8 : 3) << testo;
            EXPECT_TRUE(b.NonScelta(voce)) << testo;
        });
}

TEST(CasellaTratto, ANumberInAnotherSpellingIsShownAsItWasTaken) {
    for (const auto& [testo, preso] :
         {std::pair{" 6 ", 6}, {"+6", 6}, {"06", 6}, {"5,6", 6}, {"6.5", 6}, {"6e0", 6}})
        PerOgniCasella(
            [testo = testo, preso = preso](BancoCaselle& b, std::size_t voce, bool ultima) {
                b.Scrivi(voce, ultima, testo);
                EXPECT_EQ(b.Campo(voce, ultima), preso) << testo;
                EXPECT_EQ(b.Mostra(voce, ultima), std::to_string(preso)) << testo;
            });
}

TEST(CasellaTratto, WithAnEmptyVoiceTheBoxIsEmptied) {
    PerOgniCasella([](BancoCaselle& b, std::size_t voce, bool ultima) {
        b.melodia.voci[voce].testoNote.clear();
        b.Scrivi(voce, ultima, "5");
        EXPECT_EQ(b.Mostra(voce, ultima), "");
        EXPECT_EQ(b.Campo(voce, ultima), ultima ? 8 : 3);
        EXPECT_TRUE(b.NonScelta(voce));
    });
}

TEST(CasellaTratto, OnlyALastNoteCutsTheNamesOfItsVoiceAtTheNewEnd) {
    PerOgniCasella([](BancoCaselle& b, std::size_t voce, bool ultima) {
        Etichetta& nomi = b.finestra.voci.perVoce[voce].nomi;
        nomi.Caption = "as it was";
        b.Scrivi(voce, ultima, "6");
        EXPECT_EQ(nomi.Caption(), ultima ? "Do;Re;Mi;Fa;Sol;La;" : "as it was");
    });
}

TEST(CasellaTratto, ARefusedLastNoteOfALowerVoiceShowsTheNamesOfAllItsNotes) {
    BancoCaselle b;
    b.Scrivi(contralto, true, "99");
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "Do;Re;Mi;Fa;Sol;La;Si;Do;Re;Mi;");
}

TEST(CasellaTratto, AnotherBoxThatHoldsNoNumberYetIsAFaultForALowerVoiceAlone) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        for (const bool ultima : {false, true}) {
            BancoCaselle b;
            b.ScriviIn(b.Nome(voce, !ultima), "abc");
            b.Scrivi(voce, ultima, "5");
            const std::vector<std::string> guasto = {"13\r\nType mismatch"};
            EXPECT_EQ(b.riquadri.messaggi, voce == soprano ? std::vector<std::string>{} : guasto);
            EXPECT_EQ(b.Campo(voce, ultima), voce == soprano ? 5 : ultima ? 8 : 3);
        }
}

TEST(CasellaTratto, ABoxThatIsLeftDuringAPlayChangesNothing) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoCaselle b;
        const auto lascia = [&, voce] {
            for (const bool ultima : {false, true}) {
                b.ScriviIn(b.Nome(voce, ultima), "5");
                b.Esci(b.Nome(voce, ultima));
            }
            EXPECT_EQ(b.melodia.voceAttiva, "soprano");
        };
        b.Tratto(1, 10);
        b.melodia.voci[soprano].primaNota = 0;
        b.NelTick(40, lascia);
        b.Suona();
        EXPECT_EQ(b.TickPassati(), 320);
        EXPECT_EQ(b.Messaggi(static_cast<int>(voce) + 1).size(), 20U);
        if (voce == soprano) continue;
        EXPECT_EQ(b.Mostra(voce, false), "3");
        EXPECT_EQ(b.Mostra(voce, true), "8");
    }
}

}  // namespace corvana::prova
