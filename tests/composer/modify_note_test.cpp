// Changing the note under the step, and inserting one behind it.
#include <gtest/gtest.h>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

constexpr int tickMs = 31;  // at the tempo 60

/// The first step is done: on "60;", a plain quarter.
struct BancoSulPasso : BancoAMano {
    explicit BancoSulPasso(const char* note = "60;62;64;", const char* attributi = "n;s;n;") {
        Voce(soprano, note, "1;0.5;2;", attributi);
        Passo(1);
        finestra.stato.lblModificato.Visible = false;
    }
    void Modifica() { Tocca("cmdModifica0"); }
    void Inserisci() { Tocca("cmdInsertNote"); }
    std::string Nome() const { return finestra.modifica.lblActualNote.Caption(); }
};

}  // namespace

TEST(ModificaAMano, WithNothingChangedTheFlagGoesUpAndNothingSounds) {
    BancoSulPasso b;
    EXPECT_EQ(b.Sentite([&] { b.Modifica(); }), NoteSentite{});
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;64;", "1;0.5;2;", "n;s;n;"}));
}

TEST(ModificaAMano, AKeyPressedSinceTheStepIsTheNewPitchWhichSoundsAlone) {
    BancoSulPasso b;
    b.Voce(contralto, "48;", "4");
    b.PremiTasto(67);
    EXPECT_EQ(b.Sentite([&] { b.Modifica(); }),
              (NoteSentite{{0, 1, 67, 96}, {31 * tickMs, 1, 67, 0}}));
    EXPECT_EQ(b.Testi(), (TestiVoce{"67;62;64;", "1;0.5;2;", "n;s;n;"}));
    EXPECT_EQ(b.Nome(), "Sol");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Sol;Re;Mi;");
    EXPECT_TRUE(b.passo.modoPasso);
}

TEST(ModificaAMano, TheListsValueTimesItsMultiplierIsTheNewOne) {
    BancoSulPasso b;
    b.ScegliIn("cmbDurata", "(1/8).");
    b.ScegliIn("cmbPer", "4");
    b.Modifica();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;64;", "3;0.5;2;", "n;s;n;"}));
}

TEST(ModificaAMano, AnAttributeIsWrittenAndTheNoteStays) {
    BancoSulPasso b;
    b.ScegliIn("cmbAttributi", "t");
    b.Modifica();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;62;64;", "1;0.5;2;", "t;s;n;"}));
    EXPECT_EQ(b.Nome(), "Do");
}

TEST(ModificaAMano, ToPItMakesARestAndBackRightAfterTheStepANoteOfOneCharacter) {
    BancoSulPasso b;
    b.ScegliIn("cmbAttributi", "p");
    b.Modifica();
    EXPECT_EQ(b.Testi(), (TestiVoce{"00;62;64;", "1;0.5;2;", "p;s;n;"}));
    EXPECT_EQ(b.Nome(), "P");
    b.Passo(1);
    b.Passo(0);
    EXPECT_EQ(b.inserimento.notaAttiva, 0);
    b.ScegliIn("cmbAttributi", "n");
    b.Modifica();
    EXPECT_EQ(b.Testi(), (TestiVoce{"0;62;64;", "1;0.5;2;", "n;s;n;"}));
}

TEST(ModificaAMano, ARestThatStaysOneCanTakeAPitch) {
    BancoSulPasso b("00;62;64;", "p;s;n;");
    b.PremiTasto(67);
    b.Modifica();
    EXPECT_EQ(b.Testi(), (TestiVoce{"67;62;64;", "1;0.5;2;", "p;s;n;"}));
}

TEST(ModificaAMano, TheTripletTakesTwoThirdsOfANewValueAndGoesOut) {
    BancoSulPasso b;
    b.Attributo(3);
    b.ScegliIn("cmbDurata", "1/8");
    b.Modifica();
    EXPECT_EQ(b.Testi()[1], "0.333333333333333;0.5;2;");
    EXPECT_EQ(b.AttributoAcceso(), 6);
    EXPECT_FALSE(b.AccentoInVista());
}

TEST(ModificaAMano, WithTheSameValueTheTripletStaysLitAndOnlyItsAccentIsHidden) {
    BancoSulPasso b;
    b.Attributo(3);
    b.Modifica();
    EXPECT_EQ(b.Testi()[1], "1;0.5;2;");
    EXPECT_EQ(b.AttributoAcceso(), 3);
    EXPECT_FALSE(b.AccentoInVista());
}

TEST(ModificaAMano, WithoutAnActiveNoteOnlyTheFlagGoesUp) {
    BancoSulPasso b;
    b.Attributo(3);
    b.finestra.stato.lblActNote.Caption = "";
    b.ScegliIn("cmbAttributi", "a");
    b.Modifica();
    EXPECT_EQ(b.Testi()[2], "n;s;n;");
    EXPECT_TRUE(b.Modificata());
    EXPECT_TRUE(b.AccentoInVista());
}

TEST(ModificaAMano, InAVoiceThatIsEmptyOnlyFlagAndAccentAreTouched) {
    BancoSulPasso b;
    b.Attributo(3);
    b.Tocca("VoceAttiva2");
    EXPECT_EQ(b.Sentite([&] { b.Modifica(); }), NoteSentite{});
    EXPECT_TRUE(b.melodia.voci[2].Vuota());
    EXPECT_TRUE(b.Modificata());
    EXPECT_FALSE(b.AccentoInVista());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(ModificaAMano, OfALowerVoiceWhatWasChangedSoundsOnItsChannel) {
    BancoSulPasso b;
    b.Voce(contralto, "48;50;52;", "1");
    b.Tocca("VoceAttiva1");
    b.Passo(0);
    b.PremiTasto(55);
    EXPECT_EQ(b.Sentite([&] { b.Modifica(); }).front(), (NotaSentita{0, 2, 55, 96}));
    EXPECT_EQ(b.Testi(contralto)[0], "48;50;55;");
    EXPECT_EQ(b.Testi()[0], "60;62;64;");
}

TEST(ModificaAMano, WithTheLoopTickedWhatWasChangedStillSoundsOnce) {
    BancoSulPasso b;
    b.Tocca("chekLoop", 1);
    b.PremiTasto(67);
    EXPECT_EQ(b.Sentite([&] { b.Modifica(); }).size(), 2U);
    EXPECT_EQ(b.Sentite([&] { b.Inserisci(); }).size(), 2U);
    EXPECT_TRUE(b.finestra.play.chekLoop.Value());
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
}

TEST(InserisciDietroAMano, PutsTheActiveNoteBehindTheStepWhichMovesOntoIt) {
    BancoSulPasso b;
    b.PremiTasto(67);
    b.ScegliIn("cmbDurata", "1/8");
    b.ScegliIn("cmbAttributi", "a");
    b.ScegliIn("cmbPer", "3");
    EXPECT_EQ(b.Sentite([&] { b.Inserisci(); }),
              (NoteSentite{{0, 1, 67, 125}, {47 * tickMs, 1, 67, 0}}));
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;67;62;64;", "1;1.5;0.5;2;", "n;a;s;n;"}));
    EXPECT_EQ(b.passo.IndiceNotaPP, 1);
    EXPECT_EQ(b.finestra.stato.lblNe.Caption(), "2");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "4");
    EXPECT_EQ(b.Nome(), "Sol");
    EXPECT_TRUE(b.Modificata());
    b.Passo(1);
    EXPECT_EQ(b.inserimento.notaAttiva, 62);
}

TEST(InserisciDietroAMano, InALowerVoiceTheNotesOfThatVoiceAreCounted) {
    BancoSulPasso b;
    b.Voce(contralto, "48;50;", "1");
    b.Tocca("VoceAttiva1");
    b.Passo(1);
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "2");
    b.Inserisci();
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "3");
    b.Tocca("cmdCancNota");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "2");
}

TEST(InserisciDietroAMano, ARestGoesInByTheAttributeAlone) {
    BancoSulPasso b;
    b.ScegliIn("cmbAttributi", "p");
    b.Inserisci();
    EXPECT_EQ(b.Testi(), (TestiVoce{"60;00;62;64;", "1;1;0.5;2;", "n;p;s;n;"}));
    EXPECT_EQ(b.Nome(), "P");
    EXPECT_EQ(b.inserimento.notaAttiva, 60);
}

TEST(InserisciDietroAMano, TheTripletTakesTheLitFigureAndStaysLit) {
    BancoSulPasso b;
    b.Figura(4);
    b.Attributo(3);
    b.Inserisci();
    b.Inserisci();
    EXPECT_EQ(b.Testi()[1], "1;0.166666666666667;0.166666666666667;0.5;2;");
    EXPECT_EQ(b.AttributoAcceso(), 3);
    EXPECT_EQ(b.inserimento.contaTerzina, 0);
}

TEST(InserisciDietroAMano, BeforeTheFirstNoteItGoesInFront) {
    BancoSulPasso b;
    b.passo.IndiceNotaPP = -1;
    b.Inserisci();
    EXPECT_EQ(b.Testi()[0], "60;60;62;64;");
    EXPECT_EQ(b.Testi()[1], "1;1;0.5;2;");
    EXPECT_EQ(b.passo.IndiceNotaPP, 0);
}

TEST(InserisciDietroAMano, InAVoiceThatIsEmptyOnlyTheFlagAndTheNameAreTouched) {
    BancoSulPasso b;
    b.Tocca("VoceAttiva2");
    b.PremiTasto(67);
    b.Inserisci();
    EXPECT_TRUE(b.melodia.voci[2].Vuota());
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.Nome(), "Sol");
}

TEST(InserisciDietroAMano, WhereNoNoteIsItIsAFaultThatIsReportedAndChangesNothing) {
    BancoSulPasso b;
    b.Voce(contralto, "48;", "1");
    b.passo.IndiceNotaPP = 2;
    b.Tocca("VoceAttiva1");
    b.Inserisci();
    b.Modifica();
    EXPECT_EQ(b.riquadri.messaggi, (std::vector<std::string>(2, "9\r\nSubscript out of range")));
    EXPECT_EQ(b.Testi(contralto), (TestiVoce{"48;", "1;", "n;"}));
}

TEST(InserisciDietroAMano, WhileTheStepsNoteSoundsItEndsTheSound) {
    BancoSulPasso b;
    b.CliccaNelTick(5, "cmdInsertNote");
    b.Passo(1);
    EXPECT_EQ(b.Testi()[0], "60;62;62;64;");
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

}  // namespace corvana::prova
