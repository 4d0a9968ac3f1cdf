// What comes back of a melody: texts, tempo, instruments, the metronome's settings.
#include <gtest/gtest.h>

#include "tests/composer/loading_rig.h"

namespace corvana::prova {

namespace {

using Programmi = std::vector<std::pair<int, int>>;

}  // namespace

TEST(Carica, TheTextsOfTheVoicesComeBackAndAreSplit) {
    BancoCarica b;
    b.Carica(dueVoci);
    EXPECT_EQ(b.V(soprano).testoNote, "60;62;64;65;");
    EXPECT_EQ(b.V(soprano).testoDurate, "1;1;1;1;");
    EXPECT_EQ(b.V(soprano).testoAttributi, "n;n;n;n;");
    EXPECT_EQ(b.V(soprano).numeroNote, 4);
    EXPECT_EQ(b.V(basso).testoNote, "48;43;");
    EXPECT_EQ(b.V(basso).testoDurate, "2;2;");
    EXPECT_EQ(b.V(basso).testoAttributi, "n;n;");
    EXPECT_EQ(b.V(basso).numeroNote, 2);
    EXPECT_TRUE(b.V(contralto).Vuota());
    EXPECT_TRUE(b.V(tenore).Vuota());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Carica, TheNameIsThatOfTheRow) {
    BancoCarica b;
    b.finestra.stato.lblNome.Caption = "Salvato: other";
    b.Carica(dueVoci);
    EXPECT_EQ(b.melodia.nomeMelodia, "song");
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "song");
}

TEST(Carica, TheRangeIsTheWholeMelodyWhateverItWasBefore) {
    BancoCarica b;
    b.Voce(soprano, "60;62;64;65;67;", "1");
    b.Tratto(3, 4);
    b.passo.modoPasso = true;
    b.Carica(dueVoci);
    EXPECT_EQ(b.V(soprano).primaNota, 0);
    EXPECT_EQ(b.V(soprano).ultimaNota, 3);
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "1");
    EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "4");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "4");
    EXPECT_EQ(b.finestra.voci.lblNiniB.Text(), "1");
    EXPECT_EQ(b.finestra.voci.lblNfineB.Text(), "2");
    EXPECT_EQ(b.finestra.voci.lblNiniC.Text() + b.finestra.voci.lblNfineC.Text(), "");
    EXPECT_FALSE(b.passo.modoPasso);
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
}

TEST(Carica, TheNoteNamesOfEachVoiceAreShown) {
    BancoCarica b;
    b.Carica(dueVoci);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;Mi;Fa;");
    EXPECT_EQ(b.finestra.voci.LblNoteStringB.Caption(), "Do;Sol;");
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "");
}

TEST(Carica, OfALongSopranoTheLast40CharactersOfItsNamesAreShown) {
    std::string note, durate, attributi;
    for (int i = 0; i < 30; ++i)
        note += i % 2 ? "68;" : "60;", durate += "0.0625;", attributi += "n;";
    BancoCarica b;
    b.Carica({note, durate, attributi, " 250 ", " 16 "});
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Sol#;Do;Sol#;Do;Sol#;Do;Sol#;Do;Sol#;");
}

TEST(Carica, SetsTheTempoWhileItLoadsSoThatTheMelodyIsntMarked) {
    BancoCarica b;
    b.CaricaCon({{4, " 250 "}});
    EXPECT_EQ(b.melodia.tempo, 250);
    EXPECT_EQ(b.finestra.play.Slider1.Value(), 250);
    EXPECT_EQ(b.finestra.play.Velocità.Caption(), "250");
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
}

TEST(Carica, LowersTheFlagOfTheMelodyBefore) {
    BancoCarica b;
    b.finestra.stato.lblModificato.Visible = true;
    b.Carica(dueVoci);
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Carica, SendsTheProgramsInTheOrderOfTheVoicesAndShowsAllFour) {
    BancoCarica b;
    b.melodia.voci[contralto].strumento = 41;
    b.melodia.voci[tenore].strumento = 42;
    b.Carica(dueVoci);
    EXPECT_EQ(b.Programmi(), (Programmi{{1, 16}, {2, 41}, {3, 42}, {4, 32}}));
    EXPECT_EQ(b.finestra.mix.lblInstr[0].Caption(), "16-Hammond Organ");
    EXPECT_EQ(b.finestra.mix.lblInstr[1].Caption(), "41-Viola");
    EXPECT_EQ(b.finestra.mix.lblInstr[2].Caption(), "42-Cello");
    EXPECT_EQ(b.finestra.mix.lblInstr[3].Caption(), "32-Acoustic Bass");
}

TEST(Carica, TheInstrumentsOfVoicesWithoutABlockStayAsTheyWere) {
    BancoCarica b;
    for (VoceMelodia& voce : b.melodia.voci)
        voce.strumento = 99;
    b.Carica(dueVoci);
    EXPECT_EQ(b.V(soprano).strumento, 16);
    EXPECT_EQ(b.V(contralto).strumento, 99);
    EXPECT_EQ(b.V(tenore).strumento, 99);
    EXPECT_EQ(b.V(basso).strumento, 32);
}

TEST(Carica, ANegativeInstrumentIsSentForTheSopranoAlone) {
    BancoCarica b;
    b.CaricaCon({{5, " -1 "}, {7, "basso;-1"}});
    EXPECT_EQ(b.V(soprano).strumento, -1);
    EXPECT_EQ(b.V(basso).strumento, -1);
    EXPECT_EQ(b.Programmi(), (Programmi{{1, 255}, {2, 16}, {3, 16}}));
    EXPECT_EQ(b.finestra.mix.lblInstr[basso].Caption(), "-1-");
}

TEST(Carica, TheFirstInstrumentOfAllIsSentForALowerVoiceToo) {
    BancoCarica b;
    b.CaricaCon({{7, "basso;0"}});
    EXPECT_EQ(b.Programmi(), (Programmi{{1, 16}, {2, 16}, {3, 16}, {4, 0}}));
    EXPECT_EQ(b.finestra.mix.lblInstr[basso].Caption(), "0-Acoustic Grand Piano");
}

TEST(Carica, Instrument127WithoutTheMetronomeIsTheShortForm) {
    BancoCarica b;
    b.CaricaCon({{5, " 127 "}});
    EXPECT_EQ(b.V(soprano).strumento, 127);
    EXPECT_EQ(b.finestra.pulsi.Pulsazioni.Text(), "2");
    EXPECT_EQ(b.finestra.mix.lblInstr[soprano].Caption(), "127-Gunshot");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Carica, AFileSavedWithTheMetronomeOnRestoresItsSettingsAndTheMetronomeStaysOff) {
    BancoCarica b;
    b.CaricaCon({{5, "16;5;8;3"}});
    EXPECT_EQ(b.finestra.pulsi.Pulsazioni.Text(), "5");
    EXPECT_EQ(b.finestra.pulsi.DurataPulsazioni.Text(), "8");
    EXPECT_EQ(b.finestra.pulsi.InizioPuls.Value(), 3);
    EXPECT_EQ(b.finestra.pulsi.LblInizioPuls.Caption(), "3");
    EXPECT_EQ(b.finestra.pulsi.battuta.pattern, "abbcb");
    EXPECT_EQ(b.finestra.pulsi.battuta.durataPulso, 0.5);
    EXPECT_EQ(b.finestra.pulsi.battuta.pulsoIniziale, 2);
    EXPECT_FALSE(b.finestra.pulsi.battuta.metroAttivo);
    EXPECT_EQ(b.finestra.pulsi.lblTs.Caption(), "Off");
    EXPECT_FALSE(b.finestra.pulsi.frMetro.Visible());
}

TEST(Carica, AFileSavedWithTheMetronomeOffLeavesItsSettingsAndItsBeingOn) {
    BancoCarica b;
    b.finestra.pulsi.lblTs_Click();
    b.finestra.pulsi.Pulsazioni.PonTesto("5");
    b.finestra.pulsi.InizioPuls.PonValore(4);
    b.Carica(soloSoprano);
    EXPECT_TRUE(b.finestra.pulsi.battuta.metroAttivo);
    EXPECT_EQ(b.finestra.pulsi.Pulsazioni.Text(), "5");
    EXPECT_EQ(b.finestra.pulsi.InizioPuls.Value(), 4);
}

}  // namespace corvana::prova
