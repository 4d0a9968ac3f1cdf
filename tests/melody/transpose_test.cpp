// Transposing: all voices or none.
#include <gtest/gtest.h>

#include "melody/edits.h"
#include "tests/melody/edited_voice.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

using QuattroVoci = std::array<VoceMelodia, numeroVoci>;

VoceMelodia VoceDi(const std::string& note) {
    std::string durate;
    std::string attributi;
    for (const char c : note) {
        if (c != ';') continue;
        durate += "0.5;";
        attributi += "s;";
    }
    return VoceSpezzata(note, durate, attributi);
}

}  // namespace

TEST(Trasponi, MovesTheNotesOfAllVoicesInTextsAndArraysAndLeavesTheRest) {
    QuattroVoci voci{VoceDi("60;00;62;"), VoceDi(""), VoceDi("48;"), VoceDi("")};
    EXPECT_TRUE(Trasponi(voci, 5));
    EXPECT_EQ(TestiDellaVoce(voci[0]), (TestiVoce{"65;00;67;", "0.5;0.5;0.5;", "s;s;s;"}));
    EXPECT_EQ(voci[0].noteVoce, (std::vector<std::string>{"65", "00", "67", ""}));
    EXPECT_EQ(voci[0].numeroNote, 3);
    EXPECT_EQ(voci[2].testoNote, "53;");
    EXPECT_TRUE(voci[1].Vuota());
}

TEST(Trasponi, UpToTheEndsOfTheFiveOctavesAndNotBeyond) {
    struct Caso {
        const char* note;
        int semitoni;
        bool va;
    };
    for (const Caso& caso : {Caso{"83;", 12, true},
                             {"84;", 12, false},
                             {"48;", -12, true},
                             {"47;", -12, false},
                             {"95;", 1, false},
                             {"36;", -1, false},
                             {"95;36;", 0, true},
                             {"94;", 1, true},
                             {"37;", -1, true}}) {
        QuattroVoci voci{VoceDi("60;"), VoceDi(""), VoceDi(caso.note)};
        EXPECT_EQ(Trasponi(voci, caso.semitoni), caso.va) << caso.note << caso.semitoni;
    }
}

TEST(Trasponi, ARefusalInTheLastVoiceLeavesAllOfThem) {
    QuattroVoci voci{VoceDi("60;62;"), VoceDi("60;"), VoceDi("90;"), VoceDi("")};
    EXPECT_FALSE(Trasponi(voci, 12));
    EXPECT_EQ(voci[0].testoNote, "60;62;");
    EXPECT_EQ(voci[0].noteVoce[0], "60");
    EXPECT_EQ(voci[1].testoNote, "60;");
}

TEST(Trasponi, RestsAcceptAnythingHoweverTheyAreSpelled) {
    QuattroVoci voci{VoceDi("00;0;00;")};
    EXPECT_TRUE(Trasponi(voci, 12));
    EXPECT_EQ(voci[0].testoNote, "00;0;00;");
    EXPECT_TRUE(Trasponi(voci, -12));
    EXPECT_EQ(voci[0].testoNote, "00;0;00;");
}

TEST(Trasponi, ArraysThatOutlivedTheirTextsAreNoNotes) {
    QuattroVoci voci{VoceDi("60;"), VoceDi("95;")};
    SvuotaTesti(voci[1]);
    EXPECT_TRUE(Trasponi(voci, 12));
    EXPECT_EQ(voci[1].testoNote, "");
    EXPECT_EQ(voci[1].noteVoce[0], "95");
}

TEST(Trasponi, ATokenThatIsNoNumberIsAFaultThatMovesNothing) {
    QuattroVoci voci{VoceDi("60;"), VoceDi("DO;")};
    EXPECT_EQ(NumeroDelGuasto([&] { Trasponi(voci, 1); }), 13);
    EXPECT_EQ(voci[0].testoNote, "60;");
    voci[1] = VoceDi("32767;");
    EXPECT_FALSE(Trasponi(voci, 12));
}

}  // namespace corvana::prova
