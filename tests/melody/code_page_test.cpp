#include "melody/code_page.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

/// The characters of the codes 0x80 to 0xFF in their order; the five codes that are free are the
/// control characters of the same number.
constexpr const char8_t* sopraAscii =
    u8"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"
    u8"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
    u8"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";

std::string TuttiIByte() {
    std::string byte;
    for (int i = 0; i < 256; ++i)
        byte += static_cast<char>(i);
    return byte;
}

std::string TuttiICaratteri() {
    std::string testo = TuttiIByte().substr(0, 128);
    for (const char8_t* c = sopraAscii; *c; ++c)
        testo += static_cast<char>(*c);
    return testo;
}

std::string ParoleDelGuasto(const std::string& testo) {
    try {
        InCodicePagina(testo);
    } catch (const Guasto& guasto) {
        return guasto.what();
    }
    return "";
}

int GuastoDi(const std::string& testo) {
    return NumeroDelGuasto([&] { InCodicePagina(testo); });
}

}  // namespace

TEST(CodicePagina, EachByteIsTheCharacterOfItsCode) {
    EXPECT_EQ(DaCodicePagina(TuttiIByte()), TuttiICaratteri());
}

TEST(CodicePagina, EachCharacterIsTheByteOfItsCode) {
    EXPECT_EQ(InCodicePagina(TuttiICaratteri()), TuttiIByte());
}

TEST(CodicePagina, ASingleByteComesBackTheSame) {
    for (const char byte : TuttiIByte())
        EXPECT_EQ(InCodicePagina(DaCodicePagina({&byte, 1})), std::string(1, byte)) << int{byte};
}

TEST(CodicePagina, TheSeparatorOfBookmarksIsCode247) {
    EXPECT_EQ(DaCodicePagina("1 \xF7 4"), "1 ÷ 4");
    EXPECT_EQ(InCodicePagina("1 ÷ 4"), "1 \xF7 4");
}

TEST(CodicePagina, AnEmptyTextStaysEmpty) {
    EXPECT_EQ(DaCodicePagina(""), "");
    EXPECT_EQ(InCodicePagina(""), "");
}

TEST(CodicePagina, ACharacterThatThePageDoesntHaveIsNamedInTheFault) {
    for (const char* mancante : {"♯", "𝄞", "я", "Ā", "日", "\uFFFD", "\u0080", "\u0092"}) {
        const std::string c = mancante;
        EXPECT_EQ(GuastoDi("motivo " + c + "!"), guastoArgomento) << c;
        const std::string parole = ParoleDelGuasto("é motivo " + c + "!");
        EXPECT_NE(parole.find("\"" + c + "\""), std::string::npos) << parole;
    }
}

TEST(CodicePagina, TheFirstOfTwoMissingCharactersIsNamed) {
    const std::string parole = ParoleDelGuasto("a♭b♯");
    EXPECT_NE(parole.find("♭"), std::string::npos) << parole;
    EXPECT_EQ(parole.find("♯"), std::string::npos) << parole;
}

TEST(CodicePagina, AContinuationWithoutItsBeginningIsRefused) {
    for (const char* testo : {"\x80", "a\xBF", "\xF7", "1 \xF7 4"})
        EXPECT_EQ(GuastoDi(testo), guastoArgomento) << testo;
}

TEST(CodicePagina, ACharacterThatIsCutOffIsRefused) {
    for (const char* testo :
         {"\xC3", "\xE2\x82", "\xE2", "\xF0\x9D\x84", "\xC3 ", "\xE2\x82z", "\xE2z\x82", "\xF0zzz"})
        EXPECT_EQ(GuastoDi(testo), guastoArgomento) << testo;
}

TEST(CodicePagina, ACharacterThatIsSpelledLongerThanNeedBeIsRefused) {
    for (const char* testo : {"\xC0\x80", "\xC1\x81", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x81\x81",
                              "\xE0\x83\xB7", "\xE0\x9F\xBF", "\xF0\x80\x81\x81"})
        EXPECT_EQ(GuastoDi(testo), guastoArgomento) << testo;
}

TEST(CodicePagina, SurrogatesAndBytesThatNoTextHoldsAreRefused) {
    for (const char* testo :
         {"\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF8", "\xFE", "\xFF"})
        EXPECT_EQ(GuastoDi(testo), guastoArgomento) << testo;
}

RC_GTEST_PROP(CodicePagina, AnyBytesComeBackTheSame, (const std::string& byte)) {
    RC_ASSERT(InCodicePagina(DaCodicePagina(byte)) == byte);
}

RC_GTEST_PROP(CodicePagina, AnyTextIsRefusedOrComesBackTheSame, (const std::string& testo)) {
    try {
        RC_ASSERT(DaCodicePagina(InCodicePagina(testo)) == testo);
    } catch (const Guasto& guasto) {
        RC_ASSERT(guasto.Numero() == guastoArgomento);
    }
}

}  // namespace corvana::prova
