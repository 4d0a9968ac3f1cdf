// The lines of a melody file that are told by their shape, and what follows from that.
#include <gtest/gtest.h>

#include "melody/mel_reader.h"
#include "tests/melody/mel_lines.h"

namespace corvana::prova {

namespace {

using Campi = std::vector<std::string>;

LetturaMel Letta(const std::string& byte) {
    const LetturaMel letta = LeggiMel(byte, '.');
    EXPECT_FALSE(letta.guasto.has_value()) << letta.guasto->what();
    return letta;
}

/// Whether line 5 is taken for the metronome's form, and its fields.
using FormaQuinta = std::pair<bool, Campi>;
FormaQuinta Quinta(const std::string& riga) {
    const LetturaMel letta = Letta(ConQuinta(riga));
    return {letta.conMetronomo, letta.strumento};
}
FormaQuinta Corta(const std::string& strumento) {
    return {false, {strumento}};
}
FormaQuinta Lunga(const Campi& campi) {
    return {true, campi};
}

std::vector<std::size_t> Voci(const LetturaMel& letta) {
    std::vector<std::size_t> voci;
    for (const BloccoMel& blocco : letta.blocchi)
        voci.push_back(blocco.voce);
    return voci;
}

const std::string bloccoContralto = Righe({"contralto;48", "55;", "1;", "n;"});
const std::string bloccoTenore = Righe({"tenore;19", "50;", "2;", "s;"});
const std::string bloccoBasso = Righe({"basso;32", "43;", "4;", "t;"});
using Indici = std::vector<std::size_t>;

}  // namespace

TEST(QuintaRiga, UpToThreeCharactersAreTheInstrumentAlone) {
    EXPECT_EQ(Quinta(" 16 "), Corta("16"));
    EXPECT_EQ(Quinta(" 127 "), Corta("127"));
    EXPECT_EQ(Quinta("   0   "), Corta("0"));
    EXPECT_EQ(Quinta("1;2"), Corta("1;2"));
    EXPECT_EQ(Quinta(""), Corta(""));
    EXPECT_EQ(Quinta("     "), Corta(""));
}

TEST(QuintaRiga, MoreThanThreeAreTheFieldsOfTheMetronome) {
    EXPECT_EQ(Quinta("16;3;4;1"), Lunga({"16", "3", "4", "1"}));
    EXPECT_EQ(Quinta(" 127;9;16;9 "), Lunga({"127", "9", "16", "9"}));
    EXPECT_EQ(Quinta("0; 2;4 ;1;"), Lunga({"0", " 2", "4 ", "1", ""}));
}

TEST(QuintaRiga, TooFewFieldsOfTheMetronomeAreGivenAsTheyAre) {
    EXPECT_EQ(Quinta("1234"), Lunga({"1234"}));
    EXPECT_EQ(Quinta("16;3;4"), Lunga({"16", "3", "4"}));
    EXPECT_EQ(Quinta("16;3"), Lunga({"16", "3"}));
}

TEST(QuintaRiga, CharactersAreCountedAndNotWhatTheyTakeInMemory) {
    EXPECT_EQ(Quinta("1;\xE9"), Corta("1;é"));
    EXPECT_EQ(Quinta("\x80\x80\x80"), Corta("€€€"));
    EXPECT_EQ(Quinta("1;2\xE9"), Lunga({"1", "2é"}));
}

TEST(RigaRiferimenti, TwoRowsOrMoreComeBackRowForRow) {
    const LetturaMel due = Letta(Dietro({"1 \xF7 4 \xF7Tutta;2 \xF7 3 \xF7 a;"}));
    EXPECT_TRUE(due.conRiferimenti);
    EXPECT_EQ(due.riferimenti, (Campi{"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ a"}));
    EXPECT_EQ(Letta(Dietro({"a;b;c;d;"})).riferimenti, (Campi{"a", "b", "c", "d"}));
}

TEST(RigaRiferimenti, WhatStandsBehindTheLastSemicolonIsDropped) {
    EXPECT_EQ(Letta(Dietro({"a;b;c"})).riferimenti, (Campi{"a", "b"}));
}

TEST(RigaRiferimenti, ASingleRowIsTakenForAHeaderAndDropped) {
    const LetturaMel letta = Letta(Dietro({"1 \xF7 4 \xF7Tutta;"}));
    EXPECT_FALSE(letta.conRiferimenti);
    EXPECT_TRUE(letta.riferimenti.empty());
    EXPECT_TRUE(letta.blocchi.empty());
}

TEST(RigaRiferimenti, ASingleRowCountsAsOneOfTheThreeBlocks) {
    const LetturaMel letta =
        Letta(Dietro({"1 \xF7 4 \xF7Tutta;"}) + bloccoContralto + bloccoTenore + bloccoBasso);
    EXPECT_EQ(Voci(letta), (Indici{1, 2}));
}

TEST(RigaRiferimenti, ALineWithoutSemicolonIsBookmarksOfNoRow) {
    for (const char* riga : {"", "contralto", "1 \xF7 4 \xF7Tutta", " "}) {
        const LetturaMel letta = Letta(Dietro({riga}) + bloccoBasso);
        EXPECT_TRUE(letta.conRiferimenti) << riga;
        EXPECT_TRUE(letta.riferimenti.empty()) << riga;
        EXPECT_EQ(Voci(letta), Indici{3}) << riga;
    }
}

TEST(RigaRiferimenti, AHeaderWithAClosingSemicolonIsBookmarks) {
    const LetturaMel letta = Letta(Dietro({"contralto;48;", "55;", "1;", "n;"}));
    EXPECT_TRUE(letta.conRiferimenti);
    EXPECT_EQ(letta.riferimenti, (Campi{"contralto", "48"}));
    EXPECT_TRUE(letta.blocchi.empty());
}

TEST(RigaRiferimenti, OnlyTheFirstLineBehindTheFiveCanBeBookmarks) {
    const LetturaMel letta = Letta(Dietro({"a;b;", "c;d;"}) + bloccoBasso);
    EXPECT_EQ(letta.riferimenti, (Campi{"a", "b"}));
    EXPECT_EQ(Voci(letta), Indici{3});
}

TEST(Blocchi, AreReadWithAndWithoutBookmarksInTheOrderOfTheFile) {
    EXPECT_EQ(Voci(Letta(ConQuinta(" 16 ", bloccoContralto + bloccoTenore + bloccoBasso))),
              (Indici{1, 2, 3}));
    EXPECT_EQ(Voci(Letta(ConQuinta(" 16 ", bloccoBasso + bloccoContralto))), (Indici{3, 1}));
    EXPECT_EQ(Voci(Letta(Dietro({"a;b;"}) + bloccoTenore + bloccoBasso + bloccoContralto)),
              (Indici{2, 3, 1}));
}

TEST(Blocchi, AFourthIsIgnored) {
    const std::string quattro =
        bloccoContralto + bloccoTenore + bloccoBasso + Righe({"tenore;1", "36;", "8;", "a;"});
    for (const std::string& prima : {ConQuinta(" 16 "), Dietro({"a;b;"})}) {
        const LetturaMel letta = Letta(prima + quattro);
        EXPECT_EQ(Voci(letta), (Indici{1, 2, 3}));
        EXPECT_EQ(letta.blocchi[1].testi, (Campi{"50;", "2;", "s;"}));
    }
}

TEST(Blocchi, WhatStandsBehindTheThirdIsNotRead) {
    EXPECT_EQ(
        Voci(Letta(ConQuinta(" 16 ", bloccoContralto + bloccoTenore + bloccoBasso + "tenore"))),
        (Indici{1, 2, 3}));
}

TEST(Blocchi, AVoiceMayComeTwice) {
    const LetturaMel letta =
        Letta(ConQuinta(" 16 ", bloccoBasso + Righe({"basso;5", "36;", "8;", "a;"})));
    EXPECT_EQ(Voci(letta), (Indici{3, 3}));
    EXPECT_EQ(letta.blocchi[1].strumento, "5");
}

TEST(Blocchi, ALineOfAnyOtherNameIsDroppedAloneAndCounts) {
    for (const char* riga : {"soprano;1", "Basso;32", "alto;3", "basso ;32", "basso:32;1"}) {
        const LetturaMel letta =
            Letta(Dietro({"a;b;", riga}) + bloccoContralto + bloccoTenore + bloccoBasso);
        EXPECT_EQ(Voci(letta), (Indici{1, 2})) << riga;
    }
}

TEST(Blocchi, TheTextsOfADroppedHeaderAreTakenForHeadersToo) {
    const LetturaMel letta = Letta(Dietro({"alto;48", "55;", "1;", "n;"}) + bloccoBasso);
    EXPECT_TRUE(letta.blocchi.empty());
}

TEST(Blocchi, TextsMayBeEmptyAndAnInstrumentAnyText) {
    const LetturaMel letta = Letta(ConQuinta(" 16 ", Righe({"contralto;x y;", "55;", "", ""})));
    EXPECT_EQ(letta.riferimenti, (Campi{"contralto", "x y"}));
    const LetturaMel altra = Letta(Dietro({"a;b;", "contralto;x y;", "55;", "", ""}));
    ASSERT_EQ(altra.blocchi.size(), 1U);
    EXPECT_EQ(altra.blocchi[0].strumento, "x y");
    EXPECT_EQ(altra.blocchi[0].testi, (Campi{"55;", "", ""}));
}

}  // namespace corvana::prova
