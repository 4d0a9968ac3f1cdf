// The solo buttons, the volumes' labels and the two quick instruments.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

using Quattro = std::array<int, numeroVoci>;

struct BancoVolumi : BancoComposer {
    BancoVolumi() { uscita.messaggi.clear(); }
    Quattro Barre() const {
        Quattro barre{};
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            barre.at(voce) = finestra.mix.perVoce[voce].volume.Value();
        return barre;
    }
    Quattro Passi() const {
        Quattro passi{};
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            passi.at(voce) = finestra.mix.statoSolo[voce];
        return passi;
    }
    /// As its face shows them.
    Quattro PassiMostrati() const {
        Quattro passi{};
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            passi.at(voce) = finestra.mix.lblMuteC[voce].Value();
        return passi;
    }
    void Solo(std::size_t voce) { Subito(Fatto::Click, "lblMuteC" + std::to_string(voce)); }
};

/// `altre` in all places but that of the voice, which has 0.
Quattro Tranne(std::size_t voce, int altre) {
    Quattro quattro;
    quattro.fill(altre);
    quattro.at(voce) = 0;
    return quattro;
}

constexpr std::array<const char*, numeroVoci> etichette = {"lblVolS", "lblVolC", "lblVolT",
                                                           "lblVolB"};

}  // namespace

TEST(LblMuteCClick, TheFirstPressLowersTheOthersTo60TheSecondTo98TheThirdBringsAllBack) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoVolumi b;
        EXPECT_EQ(b.Barre(), (Quattro{2, 2, 2, 2}));
        b.Solo(voce);
        EXPECT_EQ(b.Barre(), Tranne(voce, 60));
        EXPECT_EQ(b.finestra.mix.statoSolo[voce], 1);
        b.Solo(voce);
        EXPECT_EQ(b.Barre(), Tranne(voce, 98));
        EXPECT_EQ(b.finestra.mix.statoSolo[voce], 2);
        b.Solo(voce);
        EXPECT_EQ(b.Barre(), (Quattro{0, 0, 0, 0}));
        EXPECT_EQ(b.Passi(), (Quattro{0, 0, 0, 0}));
    }
}

TEST(LblMuteCClick, TheButtonsShowTheirSteps) {
    BancoVolumi b;
    EXPECT_EQ(b.PassiMostrati(), (Quattro{0, 0, 0, 0}));
    b.Solo(1);
    b.Solo(3);
    b.Solo(3);
    EXPECT_EQ(b.PassiMostrati(), (Quattro{0, 1, 0, 2}));
    b.Solo(3);
    EXPECT_EQ(b.PassiMostrati(), (Quattro{0, 0, 0, 0}));
}

TEST(LblMuteCClick, AVoicesButtonRemembersItsStepWhileAnotherIsUsed) {
    BancoVolumi b;
    b.Solo(soprano);
    b.Solo(tenore);
    EXPECT_EQ(b.Passi(), (Quattro{1, 0, 1, 0}));
    EXPECT_EQ(b.Barre(), Tranne(tenore, 60));
    b.Solo(soprano);
    EXPECT_EQ(b.Passi(), (Quattro{2, 0, 1, 0}));
    EXPECT_EQ(b.Barre(), Tranne(soprano, 98));
}

TEST(LblMuteCClick, TheThirdPressPutsTheStepsOfOtherVoicesBackToo) {
    BancoVolumi b;
    b.Solo(basso);
    for (int i = 0; i < 3; ++i)
        b.Solo(contralto);
    EXPECT_EQ(b.Passi(), (Quattro{0, 0, 0, 0}));
}

TEST(LblMuteCClick, TheBarsWriteTheirPercents) {
    BancoVolumi b;
    b.Solo(contralto);
    EXPECT_EQ(b.finestra.mix.lblVolC.Caption(), "100");
    EXPECT_EQ(b.finestra.mix.lblVolS.Caption(), "40");
    b.Solo(contralto);
    EXPECT_EQ(b.finestra.mix.lblVolB.Caption(), "0");
}

TEST(LblMuteCClick, AnIndexOutsideOf0To3DoesNothing) {
    BancoVolumi b;
    for (const int Index : {-1, 4, 100})
        b.finestra.mix.lblMuteC_Click(Index);
    EXPECT_EQ(b.Barre(), (Quattro{2, 2, 2, 2}));
    EXPECT_EQ(b.Passi(), (Quattro{0, 0, 0, 0}));
}

TEST(LblVolClick, LeavesThatVoiceAloneAndADoubleClickBringsAllBack) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoVolumi b;
        b.Solo((voce + 1) % numeroVoci);
        b.Subito(Fatto::Click, etichette.at(voce));
        EXPECT_EQ(b.Barre(), Tranne(voce, 98));
        EXPECT_EQ(b.Passi().at((voce + 1) % numeroVoci), 1) << "a label counts no steps";
        b.Subito(Fatto::DblClick, etichette.at(voce));
        EXPECT_EQ(b.Barre(), (Quattro{0, 0, 0, 0}));
        EXPECT_EQ(b.Passi(), (Quattro{0, 0, 0, 0}));
    }
}

TEST(Volumi, TheLabelsRead100ThoughTheBarsStandAt2UntilTheFirstChange) {
    BancoVolumi b;
    for (const auto& voce : b.finestra.mix.perVoce) {
        EXPECT_EQ(voce.percento.Caption(), "100");
        EXPECT_EQ(voce.volume.Value(), 2);
    }
    b.Subito(Fatto::Change, "VolS", 2);
    EXPECT_EQ(b.finestra.mix.lblVolS.Caption(), "98");
}

TEST(Volumi, AnyOfThisMarksNothingAndALoadLeavesIt) {
    BancoVolumi b;
    b.Voce(soprano, "60;", "1");
    b.Solo(contralto);
    b.Subito(Fatto::Click, "lblVolB");
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
    b.PonFile("a", "62;\r\n1;\r\nn;\r\n 60 \r\n 16 \r\n");
    b.Subito(Fatto::Click, "cmdEseguiFile");
    EXPECT_EQ(b.Barre(), Tranne(basso, 98));
    EXPECT_EQ(b.Passi(), (Quattro{0, 1, 0, 0}));
}

TEST(Volumi, ASilencedVoiceSoundsAtVelocity2AndKeepsItsPlaceInTime) {
    BancoVolumi b;
    b.Voce(soprano, "60;", "1");
    b.Voce(contralto, "55;57;", "0.5");
    b.Solo(soprano);
    b.Solo(soprano);
    b.Suona();
    EXPECT_EQ(b.Messaggi(2),
              (Mandati{{1, 2, 55, 2}, {16, 2, 55, 0}, {17, 2, 57, 2}, {32, 2, 57, 0}}));
}

TEST(StrumentiRapidi, PianoAndOrganGoToAllVoicesInOrderAndAreShown) {
    for (const auto& [voci, programma, nome] :
         std::vector<std::tuple<std::vector<const char*>, int, const char*>>{
             {{"mnuPiano", "mnuPianoCont"}, 0, "0-Acoustic Grand Piano"},
             {{"mnuOrgano", "mnuOrganoCont"}, 16, "16-Hammond Organ"}})
        for (const char* voce : voci) {
            BancoVolumi b;
            b.finestra.mix.SceltaStrum(40);
            b.uscita.messaggi.clear();
            b.specchio.fuochi.clear();
            b.Subito(Fatto::Click, voce);
            EXPECT_EQ(b.Programmi(),
                      (std::vector<std::pair<int, int>>{
                          {1, programma}, {2, programma}, {3, programma}, {4, programma}}));
            for (std::size_t i = 0; i < numeroVoci; ++i) {
                EXPECT_EQ(b.melodia.voci[i].strumento, programma);
                EXPECT_EQ(b.finestra.mix.lblInstr[i].Caption(), nome);
            }
            EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"cmdPlay"});
        }
}

TEST(StrumentiRapidi, MnuOrganoThenSaveWrites16ForAllFourVoices) {
    BancoVolumi b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        b.Voce(voce, "60;", "1");
    b.finestra.mix.mnuPiano_Click();
    b.finestra.mix.mnuOrgano_Click();
    b.finestra.archivio.SalvaMelodia("organo");
    const std::string byte = b.ContenutoFile("organo");
    for (const char* voce : {"contralto;16\r\n", "tenore;16\r\n", "basso;16\r\n", " 16 \r\n"})
        EXPECT_NE(byte.find(voce), std::string::npos) << voce << byte;
}

}  // namespace corvana::prova
