// What a voice's texts are shown as, and how single tokens are read, put and taken.
#include <gtest/gtest.h>

#include "melody/durations.h"
#include "melody/tokens.h"
#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

/// The list's word for a duration token.
std::string DurataDi(BancoComposer& b, const std::string& token) {
    b.Voce(soprano, "60;", token + ";", "n;");
    b.passo.IndiceNotaPP = 0;
    return b.finestra.modifica.TestoDurata();
}

}  // namespace

TEST(MostraNoteVoce, With30NotesShowsNoMoreThan40CharactersFromTheMiddleOfASolSharp) {
    BancoComposer b;
    b.Voce(soprano, Ripetuto("68;60;", 15), "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), Ripetuto("Sol#;Do;", 5));
    b.Voce(soprano, "68;" + Ripetuto("68;60;", 14) + "62;", "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "#;Do;" + Ripetuto("Sol#;Do;", 4) + "Re;");
    b.Voce(soprano, Ripetuto("68;", 30), "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), Ripetuto("Sol#;", 8));
}

TEST(MostraNoteVoce, Of41CharactersTheFirstIsCutOffAnd40AreShownWhole) {
    BancoComposer b;
    b.Voce(soprano, Ripetuto("68;60;", 5), "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), Ripetuto("Sol#;Do;", 5));
    b.Voce(soprano, Ripetuto("67;", 5) + Ripetuto("60;", 7), "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(),
              "ol;" + Ripetuto("Sol;", 4) + Ripetuto("Do;", 7));
}

TEST(MostraNoteVoce, WithTheLastNoteBoxAt5OnAVoiceOf10NotesTheDisplayEndsAtTheFifthNote) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;65;67;69;71;72;74;76;", "1");
    b.finestra.voci.lblNfine.Text = "5";
    b.finestra.voci.MostraNoteVoce();
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;Mi;Fa;Sol;");
}

TEST(MostraNoteVoce, ARestReadsAsItsLetterInTheNotationInUse) {
    BancoComposer b;
    b.Voce(contralto, "60;00;", "1");
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "Do;P;");
    b.globali.NomiAnglo = true;
    b.Voce(contralto, "60;00;", "1");
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "C;R;");
}

TEST(MostraNoteVoce, EachVoiceHasADisplayOfItsOwnWhichAnEmptyTextClears) {
    BancoComposer b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        b.Voce(voce, Ripetuto("60;", static_cast<int>(voce) + 1), "1");
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;");
    EXPECT_EQ(b.finestra.voci.LblNoteStringC.Caption(), "Do;Do;");
    EXPECT_EQ(b.finestra.voci.LblNoteStringT.Caption(), "Do;Do;Do;");
    EXPECT_EQ(b.finestra.voci.LblNoteStringB.Caption(), "Do;Do;Do;Do;");
    b.Voce(3, "", "1");
    EXPECT_EQ(b.finestra.voci.LblNoteStringB.Caption(), "");
    EXPECT_EQ(b.finestra.voci.LblNoteStringT.Caption(), "Do;Do;Do;");
}

TEST(MostraNoteVoce, ABoxThatIsNoNumberOrGoesBeyondTheVoiceIsAFault) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "1");
    const auto mostra = [&](const char* ultima) {
        b.finestra.voci.lblNfine.Text = ultima;
        return NumeroDelGuasto([&] { b.finestra.voci.MostraNoteVoce(); });
    };
    EXPECT_EQ(mostra(""), 13);
    EXPECT_EQ(mostra("x"), 13);
    EXPECT_EQ(mostra("3"), 13);
    EXPECT_EQ(mostra("4"), 13);
    EXPECT_EQ(mostra("2"), 0);
    EXPECT_EQ(mostra("0"), 0);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "");
}

TEST(TestoDurata, ATokenSpelled1Point50IsNaAndSoIsAThird) {
    BancoComposer b;
    EXPECT_EQ(DurataDi(b, "1.50"), "na");
    EXPECT_EQ(DurataDi(b, "0.333333333333333"), "na");
    EXPECT_EQ(DurataDi(b, "1.5"), "(1/4).");
}

TEST(TestoDurata, IsThatOfTheNoteUnderTheStepInTheActiveVoice) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "4;0.25;", "n;n;");
    b.Voce(contralto, "60;62;", "2;0.5;", "n;n;");
    b.passo.IndiceNotaPP = 1;
    EXPECT_EQ(b.finestra.modifica.TestoDurata(), "1/16");
    b.melodia.voceAttiva = "contralto";
    EXPECT_EQ(b.finestra.modifica.TestoDurata(), "1/8");
    b.passo.IndiceNotaPP = 0;
    EXPECT_EQ(b.finestra.modifica.TestoDurata(), "2/4");
    b.passo.IndiceNotaPP = 3;
    EXPECT_EQ(NumeroDelGuasto([&] { static_cast<void>(b.finestra.modifica.TestoDurata()); }), 9);
}

TEST(ValoreCombo, WithNaAndCmbPer3Gives3) {
    BancoComposer b;
    b.finestra.modifica.cmbDurata.PonTesto("na");
    b.finestra.modifica.cmbPer.PonTesto("3");
    EXPECT_EQ(b.finestra.modifica.ValoreCombo(), 3);
}

TEST(ValoreCombo, IsTheWordsValueTimesTheMultiplier) {
    BancoComposer b;
    EXPECT_EQ(b.finestra.modifica.ValoreCombo(), 1) << "no word chosen";
    for (const Durata& durata : durate)
        for (int per = 1; per <= 12; ++per) {
            b.finestra.modifica.cmbDurata.PonTesto(std::string(durata.parola));
            b.finestra.modifica.cmbPer.PonTesto(std::to_string(per));
            EXPECT_EQ(b.finestra.modifica.ValoreCombo(), durata.valore * per)
                << durata.parola << per;
        }
}

TEST(SostituisciToken, Of60And62At1With64Gives60And64) {
    EXPECT_EQ(SostituisciToken("60;62;", 1, "64"), "60;64;");
}

TEST(TogliNota, WithIndiceNotaPPMinus1On60And62And64Leaves62And64) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;", "1;2;4;", "n;s;t;");
    b.passo.IndiceNotaPP = -1;
    b.finestra.voci.TogliNota();
    const VoceMelodia& voce = b.melodia.voci[soprano];
    EXPECT_EQ(voce.testoNote, "62;64;");
    EXPECT_EQ(voce.testoDurate, "2;4;");
    EXPECT_EQ(voce.testoAttributi, "s;t;");
    EXPECT_EQ(voce.numeroNote, 2);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Re;Mi;");
}

TEST(TogliNota, TakesTheNoteBehindTheStepOutOfTheActiveVoiceAlone) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;", "1");
    b.Voce(contralto, "48;50;52;", "1;2;4;", "n;s;t;");
    b.melodia.voceAttiva = "contralto";
    b.passo.IndiceNotaPP = 1;
    b.finestra.voci.TogliNota();
    EXPECT_EQ(b.melodia.voci[contralto].testoNote, "48;50;");
    EXPECT_EQ(b.melodia.voci[contralto].testoDurate, "1;2;");
    EXPECT_EQ(b.melodia.voci[contralto].testoAttributi, "n;s;");
    EXPECT_EQ(b.finestra.voci.lblNfineC.Text(), "2");
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;");
}

}  // namespace corvana::prova
