#include "melody/tokens.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/text.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

using Campi = std::vector<std::string>;

VoceMelodia Voce(const std::string& note, const std::string& durate, const std::string& attributi) {
    VoceMelodia voce;
    voce.testoNote = note;
    voce.testoDurate = durate;
    voce.testoAttributi = attributi;
    return voce;
}

std::string Ripetuto(const std::string& token, long volte) {
    std::string testo;
    for (long i = 0; i < volte; ++i)
        testo += token;
    return testo;
}

int GuastoDiSostituisci(const std::string& testo, long indice) {
    return NumeroDelGuasto([&] { SostituisciToken(testo, indice, "64"); });
}

}  // namespace

TEST(SostituisciToken, ReplacesTheTokenAndKeepsTheClosingSemicolon) {
    EXPECT_EQ(SostituisciToken("60;62;", 1, "64"), "60;64;");
    EXPECT_EQ(SostituisciToken("60;62;", 0, "00"), "00;62;");
    EXPECT_EQ(SostituisciToken("60;", 0, "95"), "95;");
    EXPECT_EQ(SostituisciToken("1;0,75;0,25;", 1, "0,333333333333333"),
              "1;0,333333333333333;0,25;");
}

TEST(SostituisciToken, ATokenThatIsntThereIsAFault) {
    EXPECT_EQ(GuastoDiSostituisci("60;62;", -1), guastoIndice);
    EXPECT_EQ(GuastoDiSostituisci("60;62;", 3), guastoIndice);
    EXPECT_EQ(GuastoDiSostituisci("60;62;", 70000), guastoIndice);
    EXPECT_EQ(GuastoDiSostituisci("", 0), guastoIndice);
}

TEST(Elemento, IsThatOfTheIndexOrAFault) {
    const Campi campi = {"a", "b", ""};
    EXPECT_EQ(Elemento(campi, 0), "a");
    EXPECT_EQ(Elemento(campi, 2), "");
    EXPECT_EQ(NumeroDelGuasto([&] { Elemento(campi, 3); }), guastoIndice);
    EXPECT_EQ(NumeroDelGuasto([&] { Elemento(campi, -1); }), guastoIndice);
    EXPECT_EQ(NumeroDelGuasto([&] { Elemento({}, 0); }), guastoIndice);
}

TEST(Spezza, GivesOneElementMoreThanThereAreNotes) {
    VoceMelodia voce = Voce("60;", "0,5;", "s;");
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, 1);
    EXPECT_EQ(voce.noteVoce, (Campi{"60", ""}));
    EXPECT_EQ(voce.durateVoce, (Campi{"0,5", ""}));
    EXPECT_EQ(voce.attributiVoce, (Campi{"s", ""}));
    EXPECT_EQ(voce.testoNote, "60;");
}

TEST(Spezza, AnEmptyVoiceHasNoElementsAndMinusOneNotes) {
    VoceMelodia voce = Voce("60;62;", "1;1;", "n;n;");
    Spezza(voce);
    voce.testoNote = voce.testoDurate = voce.testoAttributi = "";
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, -1);
    EXPECT_TRUE(voce.noteVoce.empty());
    EXPECT_TRUE(voce.durateVoce.empty());
    EXPECT_TRUE(voce.attributiVoce.empty());
}

TEST(Spezza, CountsTheNotesAndNotTheOtherTexts) {
    VoceMelodia voce = Voce("60;62;64;65;", "1;1;1;1;1;", "n;n;n;");
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, 4);
    EXPECT_EQ(voce.durateVoce.size(), 6U);
    EXPECT_EQ(voce.attributiVoce.size(), 4U);
}

TEST(Spezza, TouchesNeitherTheRangeNorTheInstrument) {
    VoceMelodia voce = Voce("60;62;", "1;1;", "n;n;");
    voce.primaNota = 7;
    voce.ultimaNota = 9;
    voce.strumento = 48;
    Spezza(voce);
    EXPECT_EQ(voce.primaNota, 7);
    EXPECT_EQ(voce.ultimaNota, 9);
    EXPECT_EQ(voce.strumento, 48);
}

TEST(Spezza, TheMostNotesThatAreCountedInSixteenBitsAreSplit) {
    VoceMelodia voce = Voce(Ripetuto("60;", 32767), Ripetuto("1;", 32767), Ripetuto("n;", 32767));
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, 32767);
    EXPECT_EQ(voce.noteVoce.size(), 32768U);
}

TEST(Spezza, OneNoteMoreIsAnOverflowThatLeavesTheVoiceAsItWas) {
    VoceMelodia voce = Voce("60;62;", "1;2;", "n;s;");
    Spezza(voce);
    voce.testoNote = Ripetuto("60;", 32768);
    voce.testoDurate = Ripetuto("1;", 32768);
    voce.testoAttributi = Ripetuto("n;", 32768);
    EXPECT_EQ(NumeroDelGuasto([&] { Spezza(voce); }), guastoTraboccamento);
    EXPECT_EQ(voce.numeroNote, 2);
    EXPECT_EQ(voce.noteVoce, (Campi{"60", "62", ""}));
    EXPECT_EQ(voce.durateVoce, (Campi{"1", "2", ""}));
    EXPECT_EQ(voce.attributiVoce, (Campi{"n", "s", ""}));
    EXPECT_EQ(voce.testoNote.size(), 32768U * 3);
}

RC_GTEST_PROP(SostituisciToken, OnlyTheOneTokenChanges, ()) {
    const auto note =
        *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(36, 96)));
    std::string testo;
    for (const int nota : note)
        testo += std::to_string(nota) + ";";
    const auto indice = *rc::gen::inRange<std::size_t>(0, note.size());
    Campi attesi = Dividi(testo, ';');
    attesi[indice] = "00";
    RC_ASSERT(Dividi(SostituisciToken(testo, static_cast<long>(indice), "00"), ';') == attesi);
}

}  // namespace corvana::prova
