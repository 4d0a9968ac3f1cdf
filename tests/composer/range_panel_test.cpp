// The arrows of the ranges: what they move and when.
#include "composer/range_panel.h"

#include "tests/composer/arrows_rig.h"

namespace corvana::prova {

namespace {

constexpr double pocoPrima = 0.001;

}  // namespace

TEST(Frecce, TheFirstStepFallsAfterTwoTenthsOfASecondAndThenOneEachTwoTenths) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Tieni(1, 1.95, 1);
    for (int passo = 1; passo <= 4; ++passo) {
        const double t = 1 + passo * 0.2;
        b.Quando(t - pocoPrima, [&, passo] {
            EXPECT_EQ(b.Caselle(soprano).first, std::to_string(passo)) << "before the step";
        });
        b.Quando(t + pocoPrima, [&, passo] {
            EXPECT_EQ(b.Caselle(soprano).first, std::to_string(passo + 1)) << "after it";
        });
    }
    b.Esegui(5);
    EXPECT_EQ(b.Caselle(soprano).first, "5");
}

TEST(Frecce, HoldingAnArrowForASecondMovesTheRangeAboutFiveSteps) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Tieni(1, 2.05, 1);
    b.Esegui(5);
    EXPECT_EQ(b.Caselle(soprano), (Estremi{"6", "10"}));
}

TEST(Frecce, AShortClickIsOneStep) {
    for (const double durata : {0.0, 0.05, 0.15}) {
        BancoFrecce b;
        b.PonTratto(soprano, 4, 8);
        b.Tieni(1, 1 + durata, 0);
        b.Ferma(1.3, 3, {"3", "8"});
        b.Esegui(4);
    }
}

TEST(Frecce, TwoQuickClicksAreTwoSteps) {
    BancoFrecce b;
    b.PonTratto(soprano, 4, 8);
    b.Tieni(1, 1.05, 0);
    b.Mouse(1.3, Fatto::DblClick, "lblid0");
    b.Mouse(1.35, Fatto::MouseUp, "lblid0");
    b.Ferma(2, 4, {"2", "8"});
    b.Esegui(5);
}

TEST(Frecce, AfterTheReleaseNothingMovesAnyMore) {
    for (const double a : {1.25, 1.3, 1.35, 1.39}) {
        BancoFrecce b;
        b.PonTratto(soprano, 1, 10);
        b.Tieni(1, a, 1);
        b.Ferma(1.5, 4, {"2", "10"});
        b.Esegui(5);
    }
}

TEST(Frecce, EachMovesItsEndOfItsVoiceAlone) {
    for (int Index = 0; Index < 16; ++Index) {
        BancoFrecce b;
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            b.PonTratto(voce, 4, 8);
        b.Tieni(1, 1.05, Index);
        b.Esegui(3);
        constexpr std::array<std::pair<int, int>, 4> attesi = {{{3, 8}, {5, 8}, {4, 7}, {4, 9}}};
        for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
            const bool sua = static_cast<int>(voce) == Index / 4;
            const auto [prima, ultima] =
                sua ? attesi.at(static_cast<std::size_t>(Index % 4)) : std::pair{4, 8};
            EXPECT_EQ(b.Caselle(voce), (Estremi{std::to_string(prima), std::to_string(ultima)}))
                << Index << " in voice " << voce;
        }
    }
}

TEST(Frecce, TheSopranosMovesActOnItsRangeAndTheOthersOnTheirBoxesAlone) {
    BancoFrecce b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        b.PonTratto(voce, 4, 8);
        b.finestra.tratti.lblid_MouseUp();
        b.Tieni(1.0 + static_cast<double>(voce), 1.05 + static_cast<double>(voce),
                static_cast<int>(voce) * 4);
        b.Tieni(1.5 + static_cast<double>(voce), 1.55 + static_cast<double>(voce),
                static_cast<int>(voce) * 4 + 3);
    }
    b.Esegui(8);
    EXPECT_EQ(b.melodia.voci[soprano].primaNota, 2);
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 8);
    for (std::size_t voce = 1; voce < numeroVoci; ++voce) {
        EXPECT_EQ(b.melodia.voci[voce].primaNota, 0);
        EXPECT_EQ(b.melodia.voci[voce].ultimaNota, 9);
        EXPECT_EQ(b.Caselle(voce), (Estremi{"3", "9"}));
    }
}

TEST(Frecce, OnAMelodyOfTwoNotesNoArrowMoves) {
    for (int Index = 0; Index < 16; ++Index) {
        BancoFrecce b;
        for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
            b.finestra.voci.perVoce[voce].prima.Text = "";
            b.melodia.voci[voce].primaNota = 0;
            b.Voce(voce, "60;62;", "1");
        }
        b.Tieni(1, 2, Index);
        b.Esegui(3);
        EXPECT_EQ(b.Caselle(static_cast<std::size_t>(Index / 4)), (Estremi{"1", "2"})) << Index;
    }
}

TEST(Frecce, OnAnEmptyVoiceTheHoldRunsAndDoesNothing) {
    for (int Index = 0; Index < 16; ++Index) {
        BancoFrecce b;
        b.finestra.mix.VoceAttiva_Click(contralto);
        b.melodia.voci[static_cast<std::size_t>(Index / 4)].testoNote.clear();
        b.PonTratto(static_cast<std::size_t>(Index / 4), 4, 8);
        b.Tieni(1, 2, Index);
        b.Quando(1.5, [&] { EXPECT_TRUE(b.Premuta()); });
        b.Esegui(3);
        EXPECT_EQ(b.Caselle(static_cast<std::size_t>(Index / 4)), (Estremi{"4", "8"}));
        EXPECT_EQ(b.melodia.voceAttiva, "contralto");
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(Frecce, AnIndexOutsideOf0To15OnlyWaits) {
    BancoFrecce b;
    const double prima = b.pompa.Adesso();
    b.Quando(prima + 0.35, [&] { b.finestra.tratti.lblid_MouseUp(); });
    b.finestra.tratti.lblid_MouseDown(16);
    EXPECT_NEAR(b.pompa.Adesso() - prima, 0.4, 0.101);
    EXPECT_EQ(b.Caselle(basso), (Estremi{"1", "10"}));
}

TEST(Frecce, AMoveSelectsTheVoiceAndShowsItsRangesEnd) {
    BancoFrecce b;
    b.passo.modoPasso = true;
    b.PonTratto(tenore, 2, 8);
    b.Tieni(1, 1.05, 10);
    b.Esegui(3);
    EXPECT_EQ(b.melodia.voceAttiva, "tenore");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "7");
    EXPECT_FALSE(b.passo.modoPasso);
}

TEST(Frecce, AnArrowThatMayNotMoveSelectsNothing) {
    BancoFrecce b;
    b.PonTratto(tenore, 1, 8);
    b.Tieni(1, 1.05, 8);
    b.Esegui(3);
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
}

TEST(Frecce, OnlyAMoveOfALastNoteRefreshesTheNamesOfItsVoice) {
    BancoFrecce b;
    b.PonTratto(basso, 1, 4);
    b.finestra.voci.LblNoteStringB.Caption = "as it was";
    b.Tieni(1, 1.05, 13);
    b.Quando(2, [&] { EXPECT_EQ(b.finestra.voci.LblNoteStringB.Caption(), "as it was"); });
    b.Tieni(3, 3.05, 14);
    b.Esegui(5);
    EXPECT_EQ(b.finestra.voci.LblNoteStringB.Caption(), "Do;Re;Mi;");
}

TEST(Frecce, TheReleaseGivesTheFocusToPlay) {
    BancoFrecce b;
    b.specchio.fuochi.clear();
    b.Tieni(1, 1.5, 4);
    b.Esegui(3);
    EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"cmdPlay"});
}

}  // namespace corvana::prova
