#include "melody/edits.h"

#include <gtest/gtest.h>

#include "melody/tokens.h"
#include "tests/melody/edited_voice.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

/// So many notes of 60.
VoceMelodia Lunga(long note) {
    std::string testo;
    std::string durate;
    std::string lettere;
    for (long i = 0; i < note; ++i) {
        testo += "60;";
        durate += "1;";
        lettere += "n;";
    }
    return VoceSpezzata(testo, durate, lettere);
}

/// What a fault of an operation on the voice is, and that it left the texts.
template <class Azione>
int GuastoSenzaDanno(VoceMelodia voce, const Azione& azione) {
    const TestiVoce prima = TestiDellaVoce(voce);
    const int numero = NumeroDelGuasto([&] { azione(voce); });
    EXPECT_EQ(TestiDellaVoce(voce), prima);
    return numero;
}

}  // namespace

TEST(Accoda, PutsTheTokenBehindTheLastOfEachText) {
    VoceMelodia voce;
    Accoda(voce, {"60", "1", "n"});
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"60;", "1;", "n;"}));
    Accoda(voce, {"00", "0,75", "p"});
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"60;00;", "1;0,75;", "n;p;"}));
    EXPECT_TRUE(voce.noteVoce.empty());
}

TEST(Accoda, AVoiceTakes32767NotesAndNotOneMore) {
    VoceMelodia voce = Lunga(32766);
    Accoda(voce, {"62", "1", "n"});
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, 32767);
    EXPECT_EQ(GuastoSenzaDanno(voce, [](VoceMelodia& v) { Accoda(v, {"64", "1", "n"}); }), 6);
}

TEST(InserisciDopo, PutsTheTokenBehindTheIndexInEachText) {
    struct Caso {
        long i;
        TestiVoce attesi;
    };
    for (const Caso& caso : {Caso{-1, {"72;60;62;64;", "4;1;0.5;2;", "a;n;s;t;"}},
                             Caso{0, {"60;72;62;64;", "1;4;0.5;2;", "n;a;s;t;"}},
                             Caso{1, {"60;62;72;64;", "1;0.5;4;2;", "n;s;a;t;"}},
                             Caso{2, {"60;62;64;72;", "1;0.5;2;4;", "n;s;t;a;"}}}) {
        VoceMelodia voce = TreNote();
        InserisciDopo(voce, caso.i, {"72", "4", "a"});
        EXPECT_EQ(TestiDellaVoce(voce), caso.attesi) << caso.i;
    }
}

TEST(InserisciDopo, IntoAnEmptyVoiceItCanOnlyGoInFront) {
    VoceMelodia voce;
    EXPECT_EQ(GuastoSenzaDanno(voce,
                               [](VoceMelodia& v) {
                                   InserisciDopo(v, 0, {"60", "1", "n"});
                               }),
              9);
    InserisciDopo(voce, -1, {"60", "1", "n"});
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"60;", "1;", "n;"}));
}

TEST(InserisciDopo, BehindANoteThatIsntThereIsAFault) {
    for (const long i : {-2L, 3L, 4L, 40000L})
        EXPECT_EQ(GuastoSenzaDanno(TreNote(),
                                   [&](VoceMelodia& v) {
                                       InserisciDopo(v, i, {"72", "4", "a"});
                                   }),
                  9)
            << i;
    EXPECT_EQ(GuastoSenzaDanno(Lunga(32767),
                               [](VoceMelodia& v) {
                                   InserisciDopo(v, 0, {"72", "4", "a"});
                               }),
              6);
}

TEST(InserisciDopo, AVoiceTakes32767NotesAlsoInItsMidst) {
    VoceMelodia voce = Lunga(32766);
    InserisciDopo(voce, 5, {"62", "1", "n"});
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, 32767);
    EXPECT_EQ(voce.noteVoce[6], "62");
}

TEST(InserisciDopo, WithFewerDurationsThanNotesIsAFaultOnlyBehindTheirEnd) {
    const VoceMelodia corta = VoceSpezzata("60;62;64;", "1;", "n;n;n;");
    EXPECT_EQ(GuastoSenzaDanno(corta,
                               [](VoceMelodia& v) {
                                   InserisciDopo(v, 1, {"72", "4", "a"});
                               }),
              9);
}

TEST(TogliTokenDopo, TakesTheTokenBehindTheIndexOutOfAllThreeTexts) {
    VoceMelodia voce = VoceSpezzata("60;62;64;", "1;0.5;2;", "n;s;t;");
    Spezza(voce);
    TogliTokenDopo(voce, 0);
    EXPECT_EQ(voce.testoNote, "60;64;");
    EXPECT_EQ(voce.testoDurate, "1;2;");
    EXPECT_EQ(voce.testoAttributi, "n;t;");
}

TEST(TogliTokenDopo, BehindMinusOneStandsTheFirst) {
    VoceMelodia voce = VoceSpezzata("60;62;64;", "1;0.5;2;", "n;s;t;");
    Spezza(voce);
    TogliTokenDopo(voce, -1);
    EXPECT_EQ(voce.testoNote, "62;64;");
    EXPECT_EQ(voce.testoDurate, "0.5;2;");
    EXPECT_EQ(voce.testoAttributi, "s;t;");
}

TEST(TogliTokenDopo, TheLastAndTheOnlyOneCanBeTaken) {
    VoceMelodia voce = VoceSpezzata("60;62;64;", "1;0.5;2;", "n;s;t;");
    Spezza(voce);
    TogliTokenDopo(voce, 1);
    EXPECT_EQ(voce.testoNote, "60;62;");
    VoceMelodia sola = VoceSpezzata("60;", "1;", "n;");
    Spezza(sola);
    TogliTokenDopo(sola, -1);
    EXPECT_TRUE(sola.Vuota());
    EXPECT_EQ(sola.testoDurate, "");
    EXPECT_EQ(sola.testoAttributi, "");
}

TEST(TogliTokenDopo, WorksFromTheArraysAndLeavesThem) {
    VoceMelodia voce = VoceSpezzata("60;62;", "1;1;", "n;n;");
    Spezza(voce);
    voce.testoNote = "stale;";
    TogliTokenDopo(voce, 0);
    EXPECT_EQ(voce.testoNote, "60;");
    EXPECT_EQ(voce.noteVoce, (std::vector<std::string>{"60", "62", ""}));
    EXPECT_EQ(voce.numeroNote, 2);
}

TEST(TagliaUltima, TakesTheLastNoteOffEachText) {
    VoceMelodia voce = VoceSpezzata("60;62;", "1;0.5;", "n;s;");
    EXPECT_EQ(TagliaUltima(voce), Taglio::Accorciata);
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"60;", "1;", "n;"}));
}

TEST(TagliaUltima, OfASingleNoteEmptiesTheTexts) {
    VoceMelodia voce = VoceSpezzata("60;", "0.333333333333333;", "n;");
    EXPECT_EQ(TagliaUltima(voce), Taglio::Svuotata);
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"", "", ""}));
}

TEST(TagliaUltima, OfNothingOrOfASingleRestThatWasMadeANoteDoesNothing) {
    VoceMelodia voce;
    EXPECT_EQ(TagliaUltima(voce), Taglio::Niente);
    voce = VoceSpezzata("0;", "1;", "n;");
    EXPECT_EQ(TagliaUltima(voce), Taglio::Niente);
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"0;", "1;", "n;"}));
}

TEST(TagliaUltima, ATokenOfOneCharacterAmongOthersGoesLikeAnyOther) {
    VoceMelodia voce = VoceSpezzata("60;0;", "1;2;", "n;n;");
    EXPECT_EQ(TagliaUltima(voce), Taglio::Accorciata);
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"60;", "1;", "n;"}));
    voce = VoceSpezzata("0;60;", "1;2;", "n;n;");
    EXPECT_EQ(TagliaUltima(voce), Taglio::Accorciata);
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"0;", "1;", "n;"}));
}

TEST(TagliaUltima, ASingleTokenThatLooksLikeMoreIsAFault) {
    for (const VoceMelodia& voce :
         {VoceSpezzata("100;", "1;", "n;"), VoceSpezzata("60;62;", "1;", "n;n;"),
          VoceSpezzata("60;62;", "1;1;", "")})
        EXPECT_EQ(GuastoSenzaDanno(voce, [](VoceMelodia& v) { TagliaUltima(v); }), 5)
            << voce.testoNote;
}

TEST(Incolla, RepeatsTheRangeAtTheEndOfEachText) {
    VoceMelodia voce = TreNote();
    Incolla(voce, 1, 2);
    EXPECT_EQ(TestiDellaVoce(voce), (TestiVoce{"60;62;64;62;64;", "1;0.5;2;0.5;2;", "n;s;t;s;t;"}));
}

TEST(Incolla, ReadsTheArraysAndNotTheTextsThatGrow) {
    VoceMelodia voce = TreNote();
    Incolla(voce, 2, 2);
    Incolla(voce, 0, 2);
    EXPECT_EQ(voce.testoNote, "60;62;64;64;60;62;64;");
    EXPECT_EQ(voce.noteVoce.size(), 4U);
}

TEST(Incolla, ARangeThatEndsBeforeItsStartPastesNothing) {
    for (const auto& [da, a] : {std::pair{2L, 1L}, {0L, -1L}, {9L, 8L}, {40000L, 2L}}) {
        VoceMelodia voce = TreNote();
        Incolla(voce, da, a);
        EXPECT_EQ(TestiDellaVoce(voce), TestiDellaVoce(TreNote())) << da;
    }
}

TEST(Incolla, ARangeThatReachesOutsideOfTheVoiceIsAFaultAndNothingIsHalfPasted) {
    for (const auto& [da, a] : {std::pair{-1L, 1L}, {1L, 3L}, {3L, 3L}, {0L, 32766L}})
        EXPECT_EQ(GuastoSenzaDanno(TreNote(), [&](VoceMelodia& v) { Incolla(v, da, a); }), 9) << a;
    EXPECT_EQ(GuastoSenzaDanno(VoceSpezzata("60;62;", "1;", "n;n;"),
                               [](VoceMelodia& v) { Incolla(v, 0, 1); }),
              9);
}

TEST(Incolla, BeyondWhatAVoiceHoldsIsAFault) {
    EXPECT_EQ(GuastoSenzaDanno(Lunga(20000), [](VoceMelodia& v) { Incolla(v, 0, 12767); }), 6);
    VoceMelodia voce = Lunga(20000);
    Incolla(voce, 0, 12766);
    Spezza(voce);
    EXPECT_EQ(voce.numeroNote, 32767);
}

}  // namespace corvana::prova
