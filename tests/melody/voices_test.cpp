// What the voices are called, and what of one can be played.
#include <gtest/gtest.h>

#include "melody/tokens.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

long Intere(const std::string& note, const std::string& durate, const std::string& attributi) {
    VoceMelodia voce;
    voce.testoNote = note;
    voce.testoDurate = durate;
    voce.testoAttributi = attributi;
    Spezza(voce);
    return NoteIntere(voce);
}

int GuastoDiNota(const std::string& token) {
    return NumeroDelGuasto([&] { NumeroNota(token); });
}

}  // namespace

TEST(Voci, AreFoundByTheirExactNameInTheirOrder) {
    EXPECT_EQ(IndiceVoce("soprano"), 0U);
    EXPECT_EQ(IndiceVoce("contralto"), 1U);
    EXPECT_EQ(IndiceVoce("tenore"), 2U);
    EXPECT_EQ(IndiceVoce("basso"), 3U);
    for (const char* nome : {"", "Soprano", "BASSO", "alto", "basso ", " basso", "bass"})
        EXPECT_EQ(IndiceVoce(nome), std::nullopt) << nome;
}

TEST(Voci, TheActiveOneIsThatOfItsName) {
    Melodia melodia;
    EXPECT_EQ(&melodia.Attiva(), &melodia.voci[soprano]);
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        melodia.voceAttiva = nomiVoci[voce];
        EXPECT_EQ(melodia.IndiceAttiva(), voce);
        EXPECT_EQ(&melodia.Attiva(), &melodia.voci[voce]);
    }
}

TEST(NoteIntere, AreThoseWithATokenInEachText) {
    EXPECT_EQ(Intere("60;62;64;", "1;1;1;", "n;n;n;"), 3);
    EXPECT_EQ(Intere("60;62;64;", "1;1;", "n;n;n;"), 2);
    EXPECT_EQ(Intere("60;62;64;", "1;1;1;", "n;"), 1);
    EXPECT_EQ(Intere("60;", "1;1;1;", "n;n;"), 1);
}

TEST(NoteIntere, AreNoneWhenATextIsEmpty) {
    EXPECT_EQ(Intere("", "", ""), 0);
    EXPECT_EQ(Intere("60;62;", "", "n;n;"), 0);
    EXPECT_EQ(Intere("60;62;", "1;1;", ""), 0);
    EXPECT_EQ(Intere("60;62;", "1;1", "n"), 0);
    EXPECT_EQ(NoteIntere({}), 0);
}

TEST(NumeroNota, IsThatOfTheToken) {
    EXPECT_EQ(NumeroNota("36"), 36);
    EXPECT_EQ(NumeroNota("95"), 95);
    EXPECT_EQ(NumeroNota("00"), 0);
    EXPECT_EQ(NumeroNota(" 60 "), 60);
    EXPECT_EQ(NumeroNota("32767"), 32767);
    EXPECT_EQ(NumeroNota("-32768"), -32768);
}

TEST(NumeroNota, ATokenThatIsNoNumberOrTooLargeIsAFault) {
    for (const char* token : {"", " ", "x", "6x", "DO", "60;"})
        EXPECT_EQ(GuastoDiNota(token), guastoTipo) << token;
    for (const char* token : {"32768", "-32769", "99999999999999999999"})
        EXPECT_EQ(GuastoDiNota(token), guastoTraboccamento) << token;
}

}  // namespace corvana::prova
