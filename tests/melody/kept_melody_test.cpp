#include "melody/kept_melody.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/melody/kept_check.h"

namespace corvana::prova {

namespace {

std::string TestoACaso() {
    return *rc::gen::arbitrary<std::string>();
}

/// Any texts and numbers, which need not belong together.
MelodiaTenuta TenutaACaso() {
    MelodiaTenuta m;
    for (VoceTenuta& voce : m.voci)
        voce = {TestoACaso(), TestoACaso(), TestoACaso(), *rc::gen::arbitrary<std::int32_t>()};
    m.tempo = *rc::gen::arbitrary<std::int32_t>();
    m.metroAttivo = *rc::gen::arbitrary<bool>();
    m.pulsazioni = TestoACaso();
    m.durataPulsazioni = TestoACaso();
    m.inizioPuls = *rc::gen::arbitrary<std::int32_t>();
    m.nome = TestoACaso();
    m.nomeMostrato = TestoACaso();
    m.cartella = TestoACaso();
    m.riferimenti = *rc::gen::arbitrary<std::vector<std::string>>();
    return m;
}

MelodiaTenuta Piccola() {
    MelodiaTenuta m;
    m.voci[soprano] = {"60;62;", "1;0.5;", "n;s;", 16};
    m.tempo = 60;
    m.pulsazioni = "2";
    m.durataPulsazioni = "4";
    m.inizioPuls = 1;
    m.nome = "canto\n12:÷";
    m.riferimenti = {"1 ÷ 2 ÷Tutta", ""};
    return m;
}

/// Fields as in a file, under a checksum that is right.
std::string Sotto(const std::string& campi) {
    const std::string corpo = "corvana kept melody 1\n" + campi;
    return corpo + SommaTenuta(corpo);
}

std::string CampiPiccola() {
    const std::string byte = ScriviTenuta(Piccola());
    const std::size_t testata = byte.find('\n') + 1;
    return byte.substr(testata, byte.size() - testata - 16);
}

std::string Cambiati(const std::string& vecchio, const std::string& nuovo) {
    std::string campi = CampiPiccola();
    const std::size_t dove = campi.find(vecchio);
    if (dove == std::string::npos) throw std::logic_error("no " + vecchio);
    return Sotto(campi.replace(dove, vecchio.size(), nuovo));
}

}  // namespace

RC_GTEST_PROP(MelodiaTenuta, WhatIsWrittenIsReadBackTheSame, ()) {
    const MelodiaTenuta melodia = TenutaACaso();
    const auto letta = LeggiTenuta(ScriviTenuta(melodia));
    RC_ASSERT(letta.has_value());
    RC_ASSERT(*letta == melodia);
}

RC_GTEST_PROP(MelodiaTenuta, AnyBytesAreAMelodyOrUnreadable, (const std::string& byte)) {
    RC_ASSERT(ControllaTenuta(byte) == "");
}

RC_GTEST_PROP(MelodiaTenuta, AByteThatHasChangedMakesItUnreadable, ()) {
    std::string byte = ScriviTenuta(TenutaACaso());
    const auto dove = *rc::gen::inRange<std::size_t>(0, byte.size());
    byte[dove] = static_cast<char>(byte[dove] ^ *rc::gen::inRange(1, 256));
    RC_ASSERT(!LeggiTenuta(byte));
}

RC_GTEST_PROP(MelodiaTenuta, AnEndThatIsMissingMakesItUnreadable, ()) {
    const std::string byte = ScriviTenuta(TenutaACaso());
    RC_ASSERT(!LeggiTenuta(byte.substr(0, *rc::gen::inRange<std::size_t>(0, byte.size()))));
}

RC_GTEST_PROP(MelodiaTenuta, FieldsThatAreCutUnderARightChecksumAreUnreadable, ()) {
    const std::string campi = CampiPiccola();
    const auto fine = *rc::gen::inRange<std::size_t>(0, campi.size());
    RC_ASSERT(!LeggiTenuta(Sotto(campi.substr(0, fine))));
    RC_ASSERT(!LeggiTenuta(Sotto(campi + campi.substr(fine))));
}

TEST(FileMelodiaTenuta, OneOfAnotherVersionIsUnreadable) {
    std::string byte = ScriviTenuta(Piccola());
    byte.resize(byte.size() - 16);
    byte[byte.find('1')] = '2';
    EXPECT_FALSE(LeggiTenuta(byte + SommaTenuta(byte)));
}

TEST(FileMelodiaTenuta, OfNumbersAndLengthsOnlyTheOneSpellingIsRead) {
    ASSERT_TRUE(LeggiTenuta(Sotto(CampiPiccola())));
    const std::string strumento = "\n2:16\n";
    ASSERT_TRUE(LeggiTenuta(Cambiati(strumento, "\n2:17\n")));
    for (const char* altro :
         {"\n3:016\n", "\n02:16\n", "\n3:+16\n", "\n3: 16\n", "\n3:16 \n", "\n+2:16\n", "\n2:1x\n",
          "\n0:\n", "\n2;16\n", "\n3:16\n", "\n10:2147483648\n", "\n-2:16\n",
          "\n18446744073709551615:16\n", "\n99999999999999999999:16\n"})
        EXPECT_FALSE(LeggiTenuta(Cambiati(strumento, altro))) << altro;
}

TEST(FileMelodiaTenuta, ACountThatDoesntFitTheRowsIsUnreadable) {
    const std::string righe = "\n1:2\n14:1";
    ASSERT_TRUE(LeggiTenuta(Cambiati(righe, righe)));
    for (const char* altro :
         {"\n1:1\n14:1", "\n1:3\n14:1", "\n2:-1\n14:1", "\n10:2147483647\n14:1"})
        EXPECT_FALSE(LeggiTenuta(Cambiati(righe, altro))) << altro;
}

TEST(FileMelodiaTenuta, ASwitchIsOnOrOff) {
    const std::string interruttore = "\n2:60\n1:0\n";
    ASSERT_TRUE(LeggiTenuta(Cambiati(interruttore, "\n2:60\n1:1\n"))->metroAttivo);
    EXPECT_FALSE(LeggiTenuta(Cambiati(interruttore, "\n2:60\n1:2\n")));
}

}  // namespace corvana::prova
