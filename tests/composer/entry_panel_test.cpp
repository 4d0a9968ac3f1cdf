// What the buttons of step entry insert, and what becomes of them by it.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

/// The lit figure, -1 for none or more than one.
int FiguraAccesa(const BancoAMano& b) {
    int accesa = -1;
    int quante = 0;
    const auto& bottoni = b.finestra.inserimento.cmdSimbNote;
    for (std::size_t i = 0; i < bottoni.size(); ++i)
        if (bottoni[i].BackColor() == Rgb(10, 254, 10)) accesa = static_cast<int>(i), ++quante;
    return quante == 1 ? accesa : -1;
}

}  // namespace

TEST(Inserimento, WithTheQuarterLitTheFirstNoteIsAPlainQuarter) {
    BancoAMano b;
    b.Nota();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;", "1;", "n;"}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "1");
    EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "1");
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 1);
}

TEST(Inserimento, EachFigureGivesItsValueAndIsTheOneThatIsLit) {
    constexpr std::array valori = {"4;", "2;", "1;", "0.5;", "0.25;", "0.125;", "0.0625;"};
    for (int figura = 0; figura < 7; ++figura) {
        BancoAMano b;
        b.Figura(figura);
        b.Figura(figura);
        EXPECT_EQ(FiguraAccesa(b), figura);
        b.Nota();
        EXPECT_EQ(b.Testi()[1], valori.at(static_cast<std::size_t>(figura)));
    }
}

TEST(Inserimento, ThreeTimesAnEighthIsWhatTheToolsCallADottedQuarter) {
    BancoAMano b;
    b.Figura(3);
    b.ScriviIn("PausaPer", "3");
    b.Nota();
    EXPECT_EQ(b.Testi()[1], "1.5;");
    b.Passo(1);
    EXPECT_EQ(b.finestra.modifica.cmbDurata.Text(), "(1/4).");
}

TEST(Inserimento, TwiceADottedQuarterIsThree) {
    BancoAMano b;
    b.ScriviIn("PausaPer", "2");
    b.Attributo(0);
    b.Nota();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;", "3;", "n;"}));
}

TEST(Inserimento, TheDecimalSeparatorIsTheSystems) {
    BancoAMano b(',');
    b.Attributo(0);
    b.Nota();
    EXPECT_EQ(b.Testi()[1], "1,5;");
    b.Attributo(2);
    b.Nota();
    EXPECT_EQ(b.Testi()[1], "2,5;");
}

TEST(Inserimento, EachAttributeGivesItsLetterAndGoesOut) {
    constexpr std::array lettere = {"n;", "s;", "n;", "a;", "t;", "a;"};
    for (int attributo = 0; attributo < 6; ++attributo) {
        BancoAMano b;
        b.Attributo(attributo);
        EXPECT_EQ(b.AttributoAcceso(), attributo);
        b.DoppioClick(60);
        EXPECT_EQ(b.Testi()[2], lettere.at(static_cast<std::size_t>(attributo)));
        EXPECT_EQ(b.AttributoAcceso(), attributo == 3 ? 3 : 6) << attributo;
    }
}

TEST(Inserimento, ATieTakesTheLastNoteOffForOneOfTheSummedValueAtTheNewPitch) {
    BancoAMano b;
    b.Voce(soprano, "60;62;", "1;1;", "n;s;");
    b.inserimento.notaAttiva = 64;
    b.Attributo(2);
    b.Nota();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;64;", "1;2;", "n;n;"}));
    EXPECT_EQ(b.inserimento.valorePrecedente, 1);
}

TEST(Inserimento, ATieInAnEmptyVoiceIsAPlainNoteAndTiesCanBeChained) {
    BancoAMano b;
    b.Tocca("ckConsAtt", 1);
    b.Attributo(2);
    for (int volta = 0; volta < 4; ++volta)
        b.Nota();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;", "4;", "n;"}));
}

TEST(Inserimento, ATieOnARestMakesANoteOfIt) {
    BancoAMano b;
    b.Pausa();
    b.Attributo(2);
    b.Nota();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;", "2;", "n;"}));
}

TEST(Inserimento, ARestWithTheTieLitMakesARestOfTheLastNote) {
    BancoAMano b;
    b.Nota();
    b.Nota();
    b.Attributo(2);
    b.Pausa();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;00;", "1;2;", "n;p;"}));
    EXPECT_EQ(b.AttributoAcceso(), 6);
}

TEST(Inserimento, AKeptAttributeIsThatOfEachNextNoteAndOneThatIsNotKeptOfTheFirstAlone) {
    for (const int kept : {1, 0}) {
        BancoAMano b;
        b.Tocca("ckConsAtt", kept);
        b.Attributo(1);
        for (int volta = 0; volta < 3; ++volta)
            b.Nota();
        EXPECT_EQ(b.Testi()[2], kept ? "s;s;s;" : "s;n;n;");
        EXPECT_EQ(b.AttributoAcceso(), kept ? 1 : 6);
    }
}

TEST(Inserimento, TheHighestNoteIs95AndBeyondTheKeysNothingHappens) {
    BancoAMano b;
    for (const int nota : {36, 95})
        b.NotaDi(nota);
    EXPECT_EQ(b.Testi()[0], "36;95;");
    b.finestra.stato.lblModificato.Visible = false;
    for (const int nota : {35, 96, 0}) {
        EXPECT_EQ(b.Sentite([&] { b.NotaDi(nota); }), NoteSentite{});
        EXPECT_EQ(b.Testi()[0], "36;95;") << nota;
    }
    EXPECT_FALSE(b.Modificata());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Inserimento, GoesIntoTheActiveVoiceAndOnlyTheSopranoCanThenBePasted) {
    BancoAMano b;
    b.Tocca("VoceAttiva2");
    b.Nota();
    EXPECT_EQ(b.Testi(2), (TestiVoce{"60;", "1;", "n;"}));
    EXPECT_TRUE(b.melodia.voci[soprano].Vuota());
    EXPECT_EQ(b.finestra.voci.lblNiniT.Text(), "1");
    EXPECT_FALSE(b.finestra.incolla.cmdPaste.Enabled());
    b.Tocca("VoceAttiva0");
    b.Pausa();
    EXPECT_FALSE(b.finestra.incolla.cmdPaste.Enabled());
    b.Nota();
    EXPECT_TRUE(b.finestra.incolla.cmdPaste.Enabled());
}

TEST(Inserimento, ARestIsShownAsTheActiveNoteWhichStaysAndTicksOnce) {
    BancoAMano b;
    b.inserimento.notaAttiva = 0;
    b.specchio.fuochi.clear();
    EXPECT_EQ(b.Sentite([&] { b.Pausa(); }), (NoteSentite{{0, 10, 81, 60}, {0, 10, 81, 0}}));
    EXPECT_EQ(b.Testi(), (TestiVoce{"00;", "1;", "p;"}));
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "P");
    EXPECT_EQ(b.inserimento.notaAttiva, 0);
    EXPECT_EQ(b.specchio.fuochi, Fuochi{"cmdInsNota"});
    EXPECT_TRUE(b.Modificata());
}

TEST(Inserimento, AClickOnFigureOrAttributeGivesTheFocusToTheInsertionUnlessAMelodyPlays) {
    BancoAMano b;
    b.Nota();
    b.specchio.fuochi.clear();
    b.Figura(3);
    b.Attributo(0);
    EXPECT_EQ(b.specchio.fuochi, (Fuochi{"cmdInsNota", "cmdInsNota"}));
    b.NelTick(2, [&] {
        b.specchio.fuochi.clear();
        b.finestra.inserimento.cmdSimbNote_Click(4);
        b.finestra.inserimento.cmdAttrNota_Click(1);
        EXPECT_EQ(b.specchio.fuochi, Fuochi{});
    });
    b.Suona();
    EXPECT_EQ(FiguraAccesa(b), 4);
    EXPECT_EQ(b.AttributoAcceso(), 1);
}

TEST(Inserimento, AnAttributeOutsideOfTheSixChangesNothing) {
    BancoAMano b;
    b.Attributo(1);
    for (const int Index : {-1, 6, 7})
        b.finestra.inserimento.cmdAttrNota_Click(Index);
    EXPECT_EQ(b.AttributoAcceso(), 1);
}

TEST(Inserimento, AVoiceThatIsFullIsAFaultThatIsReportedAndChangesNothing) {
    BancoAMano b;
    std::string note, durate, attributi;
    for (int i = 0; i < 32767; ++i)
        note += "60;", durate += "1;", attributi += "n;";
    b.Voce(soprano, note, durate, attributi);
    b.Nota();
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"6\r\nOverflow"});
    EXPECT_EQ(b.Testi()[0].size(), note.size());
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 32767);
}

TEST(Inserimento, OfTheAttributesOnlyDotTripletAndTieTellOnARest) {
    constexpr std::array valori = {"1.5;", "1;", "1;", "0.666666666666667;", "1;", "1;"};
    for (int attributo = 0; attributo < 6; ++attributo) {
        BancoAMano b;
        b.Attributo(attributo);
        b.Pausa();
        EXPECT_EQ(b.Testi(), (TestiVoce{"00;", valori.at(std::size_t(attributo)), "p;"}));
    }
}

}  // namespace corvana::prova
