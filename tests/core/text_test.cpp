#include "core/text.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "forms/fault.h"

namespace corvana::prova {

namespace {

using Campi = std::vector<std::string>;

int NumeroDelGuasto(const std::string& testo, long basso = 0, long alto = 255) {
    try {
        NumeroIntero(testo, basso, alto);
    } catch (const Guasto& guasto) {
        return guasto.Numero();
    }
    return 0;
}

}  // namespace

TEST(Dividi, NSeparatorsGiveOneFieldMoreAndAnEmptyTextGivesNone) {
    EXPECT_EQ(Dividi("", ';'), Campi{});
    EXPECT_EQ(Dividi("a", ';'), Campi{"a"});
    EXPECT_EQ(Dividi("a;b", ';'), (Campi{"a", "b"}));
    EXPECT_EQ(Dividi(";", ';'), (Campi{"", ""}));
    EXPECT_EQ(Dividi("a;;c;", ';'), (Campi{"a", "", "c", ""}));
}

RC_GTEST_PROP(Dividi, JoinedAgainGivesTheText, (const std::string& testo)) {
    std::string unito;
    const Campi campi = Dividi(testo, ';');
    for (std::size_t i = 0; i < campi.size(); ++i)
        unito += (i ? ";" : "") + campi[i];
    RC_ASSERT(unito == testo);
}

TEST(NumeroIntero, TakesWholeNumbersWithBlanksAroundThem) {
    EXPECT_EQ(NumeroIntero("43", 0, 255), 43);
    EXPECT_EQ(NumeroIntero("  7 ", 0, 255), 7);
    EXPECT_EQ(NumeroIntero("-7", -10, 10), -7);
    EXPECT_EQ(NumeroIntero("0", 0, 255), 0);
    EXPECT_EQ(NumeroIntero("255", 0, 255), 255);
}

TEST(NumeroIntero, ATextThatIsNoNumberIsAMismatch) {
    for (const char* testo : {"", " ", "x", "4x", "x4", "4 3", "4.5", "--4", "0x10", "Ô"})
        EXPECT_EQ(NumeroDelGuasto(testo), guastoTipo) << testo;
    EXPECT_EQ(NumeroDelGuasto(std::string("4\0", 2)), guastoTipo);
}

TEST(NumeroIntero, ANumberOutsideOfItsBoundsIsAnOverflow) {
    for (const char* testo : {"-1", "256", "99999999999999999999", "-99999999999999999999"})
        EXPECT_EQ(NumeroDelGuasto(testo), guastoTraboccamento) << testo;
}

RC_GTEST_PROP(NumeroIntero, AnyTextGivesANumberWithinTheBoundsOrAFault,
              (const std::string& testo)) {
    try {
        const long numero = NumeroIntero(testo, -100, 100);
        RC_ASSERT(numero >= -100 && numero <= 100);
    } catch (const Guasto& guasto) {
        RC_ASSERT(guasto.Numero() == guastoTipo || guasto.Numero() == guastoTraboccamento);
    }
}

TEST(Percento, HasTwoDecimalsAndTheLastIsRounded) {
    EXPECT_EQ(Percento(1, 2), "50.00%");
    EXPECT_EQ(Percento(1, 4), "25.00%");
    EXPECT_EQ(Percento(0, 7), "0.00%");
    EXPECT_EQ(Percento(7, 7), "100.00%");
    EXPECT_EQ(Percento(1, 3), "33.33%");
    EXPECT_EQ(Percento(2, 3), "66.67%");
    EXPECT_EQ(Percento(1, 20), "5.00%");
    EXPECT_EQ(Percento(1, 2000), "0.05%");
}

TEST(Percento, AHalfIsRoundedUp) {
    EXPECT_EQ(Percento(1, 800), "0.13%");
    EXPECT_EQ(Percento(3, 800), "0.38%");
    EXPECT_EQ(Percento(1, 20001), "0.00%");
    EXPECT_EQ(Percento(1, 20000), "0.01%");
}

TEST(Percento, OfTheLargestCountsIsRight) {
    EXPECT_EQ(Percento(32767, 32767), "100.00%");
    EXPECT_EQ(Percento(1, 32767), "0.00%");
    EXPECT_EQ(Percento(32766, 32767), "100.00%");
}

TEST(UnBytePerCarattere, KeepsAsciiAndPutsAQuestionMarkForAnythingElse) {
    EXPECT_EQ(UnBytePerCarattere("abc 09~"), "abc 09~");
    EXPECT_EQ(UnBytePerCarattere("perché"), "perch?");
    EXPECT_EQ(UnBytePerCarattere("♯♭ 𝄞"), "?? ?");
    EXPECT_EQ(UnBytePerCarattere(""), "");
}

TEST(Minuscolo, ChangesTheLettersAToZAndNothingElse) {
    EXPECT_EQ(Minuscolo("CorvanaMainF"), "corvanamainf");
    EXPECT_EQ(Minuscolo("@AZ[`az{ 09"), "@az[`az{ 09");
    EXPECT_EQ(Minuscolo("PERCHÉ"), "perchÉ");
}

TEST(SenzaBlanchi, TakesTheOuterBlanksAndNoInnerOne) {
    EXPECT_EQ(SenzaBlanchi("  a b "), "a b");
    EXPECT_EQ(SenzaBlanchi("a"), "a");
    EXPECT_EQ(SenzaBlanchi(""), "");
    EXPECT_EQ(SenzaBlanchi("   "), "");
    EXPECT_EQ(SenzaBlanchi("\t16\t"), "\t16\t");
}

}  // namespace corvana::prova
