#include "metronome/conf_metro.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

/// The pattern window, opened at 4 on the main one.
struct BancoConf : BancoProgramma {
    BancoConf() {
        Clicca(3, "mnuMetro");
        Clicca(4, "cmdSetup");
    }
    frmConfMetro& Conf() { return dynamic_cast<frmConfMetro&>(*finestre.Davanti()); }
    void Scrivi(double t, const std::string& casella, const std::string& testo) {
        Evento e;
        e.fatto = Fatto::Change;
        e.testo = testo;
        Manda(t, e, casella);
    }
    void ConferendoPattern(const std::string& sequenza, const std::string& tempo) {
        Scrivi(5, "txtPattern", sequenza);
        Scrivi(5.1, "txtTempo", tempo);
        Clicca(6, "cmdOk");
        Vai(7);
    }
};

}  // namespace

TEST(ConfMetro, OpeningAndClosingWithoutChangesChangesNothing) {
    BancoConf b;
    b.Clicca(5, "cmdOk");
    b.Vai(6);
    const StatoMetronomo predefinito;
    EXPECT_EQ(b.stato.MetroSequenza, predefinito.MetroSequenza);
    EXPECT_EQ(b.stato.MetroTempo, predefinito.MetroTempo);
    EXPECT_EQ(b.stato.MetroNotaA, 76);
    EXPECT_EQ(b.stato.MetroNotaB, 85);
    EXPECT_EQ(b.stato.MetroNotaC, 33);
    EXPECT_EQ(b.stato.MetroIndiceA, 8);
    EXPECT_EQ(b.stato.MetroIndiceB, 9);
    EXPECT_EQ(b.stato.MetroIndiceC, 1);
    EXPECT_TRUE(b.Pulsi().empty()) << "no sample sounds while the lists are being filled";
}

TEST(ConfMetro, ACustomPatternKeepsItsLabelWhenNothingIsChanged) {
    BancoConf b;
    b.Quando(3.5, [&] {
        b.stato.MetroSequenza = "abcab";
        b.stato.MetroTempo = "5/8";
    });
    b.Clicca(5, "cmdOk");
    b.Vai(6);
    EXPECT_EQ(b.stato.MetroSequenza, "abcab");
    EXPECT_EQ(b.stato.MetroTempo, "5/8");
}

TEST(ConfMetro, AnEmptyLabelOfACustomPatternBecomesP) {
    BancoConf b;
    b.ConferendoPattern("abcab", "");
    EXPECT_EQ(b.stato.MetroTempo, "P.");
}

TEST(ConfMetro, AFixedPatternKeepsTheOldLabel) {
    BancoConf b;
    b.ConferendoPattern("abb", "7/8");
    EXPECT_EQ(b.stato.MetroSequenza, "abb");
    EXPECT_EQ(b.stato.MetroTempo, "2/4");
}

TEST(ConfMetro, AnEmptiedPatternBecomesAbAndTheLabelStays) {
    BancoConf b;
    b.Quando(3.5, [&] { b.stato.MetroTempo = "5/8"; });
    b.ConferendoPattern("", "3/4");
    EXPECT_EQ(b.stato.MetroSequenza, "ab");
    EXPECT_EQ(b.stato.MetroTempo, "5/8");
}

TEST(ConfMetro, TheCloseBoxSavesLikeTheButton) {
    BancoConf b;
    b.Scrivi(5, "txtPattern", "abcab");
    b.Scrivi(5.1, "txtTempo", "5/8");
    b.Chiudi(6);
    EXPECT_TRUE(b.Vai(7));
    EXPECT_EQ(b.stato.MetroSequenza, "abcab");
    EXPECT_EQ(b.stato.MetroTempo, "5/8");
}

TEST(ConfMetro, AfterACustomPatternTheTimeSignatureGoesTo24AndThePatternIsGone) {
    BancoConf b;
    b.Scrivi(5, "txtPattern", "abcab");
    b.Scrivi(5.1, "txtTempo", "5/8");
    b.Clicca(6, "cmdOk");
    b.Clicca(7, "cmdSSmetro");
    b.Quando(7.5, [&] { EXPECT_EQ(b.metronomo.lblTs.Caption(), "5/8"); });
    b.Clicca(7.6, "cmdSSmetro");
    b.Clicca(9, "lblTs");
    b.Vai(10);
    EXPECT_EQ(b.metronomo.lblTs.Caption(), "2/4");
    EXPECT_EQ(b.stato.MetroSequenza, "ab");
}

TEST(ConfMetro, TheMainWindowTakesTheResultOnlyAtTheNextStart) {
    BancoConf b;
    b.ConferendoPattern("abcab", "5/8");
    EXPECT_EQ(b.metronomo.lblTs.Caption(), "2/4");
}

TEST(ConfMetro, TypedLettersAreTakenInEitherCaseAndOthersDropped) {
    EXPECT_EQ(frmConfMetro::txtPattern_KeyPress(U'A'), U'a');
    EXPECT_EQ(frmConfMetro::txtPattern_KeyPress(U'b'), U'b');
    EXPECT_EQ(frmConfMetro::txtPattern_KeyPress(U'C'), U'c');
    EXPECT_EQ(frmConfMetro::txtPattern_KeyPress(8), 8U);
    for (const char32_t altro : {U'd', U'D', U' ', U'1', U'à', U'@', U'`'})
        EXPECT_EQ(frmConfMetro::txtPattern_KeyPress(altro), 0U);
}

TEST(ConfMetro, ThePatternsBoxAloneFiltersWhatIsTyped) {
    BancoProgramma b;
    const frmConfMetro conf(b.Tutto());
    EXPECT_EQ(conf.txtPattern.Filtro, &frmConfMetro::txtPattern_KeyPress);
    EXPECT_EQ(conf.txtTempo.Filtro, nullptr);
}

TEST(ConfMetro, TheBoxesHaveTheirLimits) {
    BancoProgramma b;
    const frmConfMetro conf(b.Tutto());
    EXPECT_EQ(conf.txtPattern.MaxLength, 20);
    EXPECT_EQ(conf.txtTempo.MaxLength, 5);
}

TEST(ConfMetro, TheListsHoldTheirNotesAndTheirLettersTheirColours) {
    BancoProgramma b;
    const frmConfMetro conf(b.Tutto());
    EXPECT_EQ(conf.InstrA.List(),
              (Righe{"38", "40", "46", "49", "53", "61", "65", "66", "76", "77", "81"}));
    EXPECT_EQ(conf.InstrB1.List(),
              (Righe{"27", "35", "36", "45", "48", "54", "69", "75", "82", "85"}));
    EXPECT_EQ(conf.InstrC.List(), (Righe{"31", "33", "34", "37", "42", "43", "44", "51"}));
    EXPECT_EQ(conf.lblA.ForeColor(), Rgb(255, 0, 0));
    EXPECT_EQ(conf.lblB1.ForeColor(), Rgb(0, 255, 0));
    EXPECT_EQ(conf.lblC.ForeColor(), Rgb(0, 0, 255));
}

TEST(ConfMetro, IsPaintedAsThePanel) {
    BancoConf b;
    b.Quando(5, [&] {
        EXPECT_EQ(b.Conf().Sfondo(),
                  (Sfumatura{Rgb(202, 143, 85), Rgb(234, 213, 165), true, false}));
    });
    b.Vai(6);
}

TEST(ConfMetro, ItOpensOnTheRowsAndTextsInForce) {
    BancoConf b;
    b.Quando(5, [&] {
        EXPECT_EQ(b.Conf().InstrA.Scelta(), "76");
        EXPECT_EQ(b.Conf().InstrB1.Scelta(), "85");
        EXPECT_EQ(b.Conf().InstrC.Scelta(), "33");
        EXPECT_EQ(b.Conf().txtPattern.Text(), "ab");
        EXPECT_EQ(b.Conf().txtTempo.Text(), "2/4");
    });
    b.Vai(6);
}

TEST(ConfMetro, AClickOnAListTakesTheNoteAndSoundsIt) {
    BancoConf b;
    b.Clicca(5, "InstrA", 0);
    b.Clicca(6, "InstrB1", 3);
    b.Clicca(7, "InstrC", 7);
    b.Clicca(8, "cmdOk");
    b.Vai(9);
    EXPECT_EQ(b.stato.MetroNotaA, 38);
    EXPECT_EQ(b.stato.MetroNotaB, 45);
    EXPECT_EQ(b.stato.MetroNotaC, 51);
    EXPECT_EQ(b.stato.MetroIndiceA, 0);
    EXPECT_EQ(b.stato.MetroIndiceB, 3);
    EXPECT_EQ(b.stato.MetroIndiceC, 7);
    const std::vector<std::pair<double, int>> attesi = {{5, 38}, {6, 45}, {7, 51}};
    EXPECT_EQ(b.Pulsi(), attesi);
}

TEST(ConfMetro, AClickOnALetterSoundsItsNoteAndChangesNothing) {
    BancoConf b;
    b.Clicca(5, "lblA");
    b.Clicca(6, "lblB1");
    b.Clicca(7, "lblC");
    b.Vai(8);
    const std::vector<std::pair<double, int>> attesi = {{5, 76}, {6, 85}, {7, 33}};
    EXPECT_EQ(b.Pulsi(), attesi);
    const auto& m = b.uscita.messaggi;
    EXPECT_EQ(m[m.size() - 2].messaggio, 60U << 8 | 0x90U) << "a note off of 60 goes before";
    EXPECT_EQ(m.back().messaggio, 127U << 16 | 33U << 8 | 0x99U);
}

TEST(ConfMetro, APresetFillsBothBoxes) {
    const std::vector<std::pair<std::string, std::string>> righe = {
        {"abcb", "2/4"}, {"abcbcb", "3/4"}, {"abcbcbcb", "4/4"}};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const auto& [sequenza, tempo] = righe[i];
        BancoConf b;
        b.Clicca(5, "seqPreset", static_cast<int>(i));
        b.Quando(6, [&] {
            EXPECT_EQ(b.Conf().seqPreset.Scelta(), sequenza + "  " + tempo);
            EXPECT_EQ(b.Conf().txtPattern.Text(), sequenza);
            EXPECT_EQ(b.Conf().txtTempo.Text(), tempo);
        });
        b.Vai(7);
    }
}

TEST(ConfMetro, TheTestPlaysThePatternAtFullVolumeEightTenthsApart) {
    BancoConf b;
    b.Slitta(3.5, "MetroVol", 0);
    b.Scrivi(5, "txtPattern", "abcd");
    b.Clicca(6, "cmdTest");
    b.Clicca(6.5, "cmdOk");  // served when the test is done
    b.Vai(12);
    const std::vector<std::pair<double, int>> attesi = {{6.8, 76}, {7.6, 85}, {8.4, 33}, {9.2, 33}};
    const auto pulsi = b.Pulsi();
    ASSERT_EQ(pulsi.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        EXPECT_NEAR(pulsi[i].first, attesi[i].first, 1e-9);
        EXPECT_EQ(pulsi[i].second, attesi[i].second);
    }
    EXPECT_EQ(b.uscita.messaggi.back().messaggio >> 16, 127U);
    EXPECT_EQ(b.uscita.reset.size(), 4U);
    EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
}

TEST(ConfMetro, WithoutADeviceItWorksInSilence) {
    BancoConf b;
    b.uscita.esitoOpen = 2;
    b.Clicca(5, "InstrA", 0);
    b.Clicca(6, "cmdTest");
    b.Clicca(7, "cmdOk");
    b.Vai(8);
    EXPECT_EQ(b.stato.MetroNotaA, 38);
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U) << "only the box of the device that didn't open";
}

}  // namespace corvana::prova
