#include "core/settings.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

const std::string intere = "Language=en\nCorvanaLastS=\nLastDir=\nIntoLastS=\n";

/// A store whose file holds what the test says, or isn't there.
struct BancoImpostazioni {
    static constexpr const char* percorso = "/config/settings";
    FileInMemoria file;
    RiquadriDaCopione riquadri;
    Impostazioni impostazioni{file, riquadri, percorso};

    BancoImpostazioni() = default;
    explicit BancoImpostazioni(const std::string& contenuto) { Testo() = contenuto; }
    std::string& Testo() { return file.contenuti[percorso]; }
};

}  // namespace

TEST(Impostazioni, WhatWasWrittenIsRead) {
    BancoImpostazioni b("Language=\n");
    b.impostazioni.ScriviValore("Language", "en");
    EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "en");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Impostazioni, WhetherThereIsAValueIsToldWithoutABox) {
    BancoImpostazioni b("Language=\nLastDir=\\x\n");
    EXPECT_TRUE(b.impostazioni.Contiene("Language"));
    EXPECT_TRUE(b.impostazioni.Contiene("LastDir"));
    EXPECT_FALSE(b.impostazioni.Contiene("language"));
    EXPECT_FALSE(b.impostazioni.Contiene("DemoDir"));
    b.file.contenuti.clear();
    EXPECT_FALSE(b.impostazioni.Contiene("Language"));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Impostazioni, ReadingAnAbsentValueShowsError2AndYieldsAnEmptyText) {
    BancoImpostazioni b("Language=en\n");
    EXPECT_EQ(b.impostazioni.LeggiValore("CorvanaLastS"), "");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error2 Querying key: 2"});
}

TEST(Impostazioni, ReadingWithTheStoreAbsentShowsError1) {
    BancoImpostazioni b;
    EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error1 Opening key: 2"});
}

TEST(Impostazioni, AnyOtherErrorOfTheStoreIsToldWithItsCode) {
    BancoImpostazioni b("Language=en\n");
    b.file.erroreLeggi = EACCES;
    EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error1 Opening key: 13"});
}

TEST(Impostazioni, AValueThatCantBeReadShowsError3) {
    for (const char* rotto : {"a\\x", "\\", "abc\\"}) {
        BancoImpostazioni b(std::string("Language=") + rotto + "\n");
        EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "") << rotto;
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error3 Querying key: 84"}) << rotto;
    }
}

TEST(Impostazioni, AnEmptyValueIsReadWithoutABox) {
    BancoImpostazioni b("Language=\n");
    EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Impostazioni, AStoredTextIsCutAtItsFirstZeroCharacter) {
    BancoImpostazioni b("LastDir=\n");
    b.impostazioni.ScriviValore("LastDir", std::string("abc\0def\0g", 9));
    EXPECT_EQ(b.impostazioni.LeggiValore("LastDir"), "abc");
    b.impostazioni.ScriviValore("LastDir", std::string("\0x", 2));
    EXPECT_EQ(b.impostazioni.LeggiValore("LastDir"), "");
}

TEST(Impostazioni, WritingWithTheStoreAbsentDoesNothingAndSaysNothing) {
    BancoImpostazioni b;
    b.impostazioni.ScriviValore("Language", "en");
    EXPECT_TRUE(b.file.contenuti.empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Impostazioni, AFailedWriteSaysNothingAndLeavesTheOldValue) {
    BancoImpostazioni b("Language=it\n");
    b.file.erroreScrivi = ENOSPC;
    b.impostazioni.ScriviValore("Language", "en");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "it");
}

TEST(Impostazioni, WritingOneValueLeavesTheOthersAndAddsANewOne) {
    BancoImpostazioni b("Language=it\nLastDir=/m\n");
    b.impostazioni.ScriviValore("Language", "en");
    b.impostazioni.ScriviValore("IntoLastS", "24;36;");
    EXPECT_EQ(b.Testo(), "Language=en\nLastDir=/m\nIntoLastS=24;36;\n");
}

TEST(Impostazioni, NamesAreComparedWithCase) {
    BancoImpostazioni b("Language=it\n");
    EXPECT_EQ(b.impostazioni.LeggiValore("language"), "");
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
}

TEST(Impostazioni, TheFirstStartMakesTheStoreWithFourEmptyValuesAndNoBox) {
    BancoImpostazioni b;
    b.impostazioni.Prepara();
    for (const char* nome : {"Language", "CorvanaLastS", "LastDir", "IntoLastS"})
        EXPECT_EQ(b.impostazioni.LeggiValore(nome), "") << nome;
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Impostazioni, AStoreThatIsThereIsLeftAsItIs) {
    BancoImpostazioni b(intere + "more=\nno value\n");
    b.impostazioni.Prepara();
    EXPECT_EQ(b.Testo(), intere + "more=\nno value\n");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Impostazioni, ADamagedStoreIsToldOnceAndPutAsideAndAFreshOneTakesItsPlace) {
    for (const auto& [rovinate, box] : std::vector<std::pair<std::string, std::string>>{
             {"", "Error2 Querying key: 2"},
             {std::string("\x7f"
                          "ELF\0\0\n\n\xff",
                          9),
              "Error2 Querying key: 2"},
             {"language=en\n", "Error2 Querying key: 2"},
             {"Language=\\x\n", "Error3 Querying key: 84"},
             {std::string(limiteTesti + 1, 'x'), "Error1 Opening key: 27"}}) {
        BancoImpostazioni b(rovinate);
        b.impostazioni.Prepara();
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{box});
        EXPECT_EQ(b.file.contenuti[std::string(b.percorso) + ".damaged"], rovinate);
        EXPECT_EQ(b.Testo(), "Language=\nCorvanaLastS=\nLastDir=\nIntoLastS=\n");
        b.impostazioni.Prepara();
        for (const char* nome : {"Language", "CorvanaLastS", "LastDir", "IntoLastS"})
            EXPECT_EQ(b.impostazioni.LeggiValore(nome), "") << nome;
        EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
    }
}

TEST(Impostazioni, WhatCanBeReadOfADamagedStoreIsKept) {
    BancoImpostazioni b("CorvanaLastS=43;\\\nLanguage=en\nLastDir=/a\\\\b\nmore=1\n");
    b.impostazioni.Prepara();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error3 Querying key: 84"});
    EXPECT_EQ(b.Testo(), "Language=en\nCorvanaLastS=\nLastDir=/a\\\\b\nIntoLastS=\n");
}

TEST(Impostazioni, ADamagedStoreThatCantBePutAsideStaysAndIsToldAgain) {
    BancoImpostazioni b("garbage");
    b.file.erroreScrivi = EROFS;
    for (int volta = 1; volta <= 2; ++volta) {
        b.impostazioni.Prepara();
        EXPECT_EQ(b.riquadri.messaggi.size(), static_cast<std::size_t>(volta));
    }
    EXPECT_EQ(b.Testo(), "garbage");
    EXPECT_EQ(b.file.contenuti.size(), 1U);
}

TEST(Impostazioni, AFileFarTooLongIsntReadAtAnyTime) {
    BancoImpostazioni b(intere + std::string(limiteTesti, '\n'));
    EXPECT_EQ(b.impostazioni.LeggiValore("Language"), "");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error1 Opening key: 27"});
    b.impostazioni.ScriviValore("Language", "it");
    EXPECT_EQ(b.file.scritture, 0);
}

TEST(Impostazioni, AStoreThatCantBeReadNowIsntReplacedByAnEmptyOne) {
    BancoImpostazioni b("Language=en\n");
    b.file.erroreLeggi = EIO;
    b.impostazioni.Prepara();
    EXPECT_EQ(b.Testo(), "Language=en\n");
    EXPECT_EQ(b.file.scritture, 0);
}

TEST(Impostazioni, WhereNothingCanBeWrittenTheProgramRunsAndForgets) {
    BancoImpostazioni b;
    b.file.erroreScrivi = EROFS;
    b.impostazioni.Prepara();
    b.impostazioni.ScriviValore("Language", "en");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_TRUE(b.file.contenuti.empty());
}

RC_GTEST_PROP(Impostazioni, AnyTextComesBackUpToItsFirstZeroCharacter, (const std::string& testo)) {
    BancoImpostazioni b("Language=it\nLastDir=\nIntoLastS=x\n");
    b.impostazioni.ScriviValore("LastDir", testo);
    RC_ASSERT(b.impostazioni.LeggiValore("LastDir") == testo.substr(0, testo.find('\0')));
    RC_ASSERT(b.impostazioni.LeggiValore("Language") == "it");
    RC_ASSERT(b.impostazioni.LeggiValore("IntoLastS") == "x");
}

RC_GTEST_PROP(Impostazioni, AnyBytesInTheFileGiveAValueOrABox, (const std::string& contenuto)) {
    BancoImpostazioni b(contenuto);
    b.impostazioni.LeggiValore("Language");
    b.impostazioni.ScriviValore("Language", "en");
    b.riquadri.messaggi.clear();
    RC_ASSERT(b.impostazioni.LeggiValore("Language") == "en");
    RC_ASSERT(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
