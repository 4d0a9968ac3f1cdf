// The texts of bookmarks.
#include "melody/bookmark.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "melody/names.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

TEST(Riferimento, OfTheUserHasABlankAroundEachMarkAndBeforeItsName) {
    EXPECT_EQ(Riferimento(5, 8, "ritornello").Testo(), "5 ÷ 8 ÷ ritornello");
    EXPECT_EQ(Riferimento(1, 32767, "a b").Testo(), "1 ÷ 32767 ÷ a b");
}

TEST(Riferimento, OfTheWholeMelodyHasNoBlankBeforeItsName) {
    EXPECT_EQ(Riferimento::Intero(12, "Tutta la melodia").Testo(), "1 ÷ 12 ÷Tutta la melodia");
    EXPECT_EQ(Riferimento::Intero(0, "").Testo(), "1 ÷ 0 ÷");
}

TEST(Riferimento, IsReadBackFromItsText) {
    const Riferimento letto = Riferimento::Leggi("5 ÷ 8 ÷ ritornello ");
    EXPECT_EQ(letto.PrimaNota(), 4);
    EXPECT_EQ(letto.UltimaNota(), 7);
    EXPECT_EQ(letto.Nome(), "ritornello");
    const Riferimento intero = Riferimento::Leggi("1 ÷ 12 ÷Tutta");
    EXPECT_EQ(intero.UltimaNota(), 11);
    EXPECT_EQ(intero.Nome(), "Tutta");
}

TEST(Riferimento, ANewNameLeavesItsNumbersAsTheyAreSpelled) {
    for (const auto& [testo, atteso] : {std::pair{"5 ÷ 8 ÷ vecchio", "5 ÷ 8 ÷ nuovo"},
                                        {"1 ÷ 12 ÷Tutta", "1 ÷ 12 ÷ nuovo"},
                                        {"05÷  8÷x", "05÷  8÷ nuovo"},
                                        {"x ÷ y ÷ ", "x ÷ y ÷ nuovo"}}) {
        Riferimento riferimento = Riferimento::Leggi(testo);
        riferimento.Rinomina("nuovo");
        EXPECT_EQ(riferimento.Testo(), atteso);
    }
}

TEST(Riferimento, AFieldThatIsntThereOrIsNoNumberIsAFault) {
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("5").UltimaNota(); }), 9);
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("5 ÷ 8").Nome(); }), 9);
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("5").Rinomina("x"); }), 9);
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("").PrimaNota(); }), 13);
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("x ÷ 8 ÷ a").PrimaNota(); }), 13);
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("5 ÷ 32768 ÷ a").UltimaNota(); }), 6);
    EXPECT_EQ(NumeroDelGuasto([] { Riferimento::Leggi("-32768 ÷ 8 ÷ a").PrimaNota(); }), 6);
    EXPECT_EQ(Riferimento::Leggi("-32767 ÷ 8 ÷ a").PrimaNota(), -32768);
    EXPECT_EQ(Riferimento::Leggi("5 ÷ 8").UltimaNota(), 7);
}

TEST(TestoRiferimenti, HasEachInItsOrderFollowedByASemicolon) {
    const std::vector<std::string> righe = {"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ a", "1 ÷ 1 ÷ b"};
    EXPECT_EQ(TestoRiferimenti(righe), "1 ÷ 4 ÷Tutta;2 ÷ 3 ÷ a;1 ÷ 1 ÷ b;");
    EXPECT_EQ(TestoRiferimenti({}), "");
}

TEST(NomeRiferimento, LosesItsOuterBlanksAndWhatLiesBehindTwelveLetters) {
    for (const auto& [risposta, nome] : {std::pair{"", ""},
                                         {"   ", ""},
                                         {"  a b ", "a b"},
                                         {"123456789012", "123456789012"},
                                         {"12345678901234567890", "123456789012"},
                                         {" 1234567890123", "123456789012"},
                                         {"12345678901 3", "12345678901 "},
                                         {"àèìòùàèìòùàèìòù", "àèìòùàèìòùàè"}})
        EXPECT_EQ(NomeRiferimento(risposta), nome) << risposta;
}

TEST(NomeRiferimento, WhatTheTextIsSplitAtIsRefused) {
    for (const char* nome : {";", "÷", "a;b", "a ÷ b"})
        EXPECT_TRUE(NomeRifiutato(nome, rifiutatiInAggiunta)) << nome;
    for (const char* nome : {"", "a,b", "a-b?", ":", "§"})
        EXPECT_FALSE(NomeRifiutato(nome, rifiutatiInAggiunta)) << nome;
}

RC_GTEST_PROP(Riferimento, AnyTextIsGivenBackAsItWas, ()) {
    const auto pezzi = *rc::gen::container<std::vector<std::string>>(
        rc::gen::element<std::string>("÷", " ", "1", "12", "x", "\xC3", "\xB7", ";"));
    std::string testo;
    for (const std::string& pezzo : pezzi)
        testo += pezzo;
    RC_ASSERT(Riferimento::Leggi(testo).Testo() == testo);
}

RC_GTEST_PROP(Riferimento, WhatWasMadeIsReadBack, ()) {
    const long prima = *rc::gen::inRange(-32767, 32768);
    const long ultima = *rc::gen::inRange(-32767, 32768);
    const auto nome = *rc::gen::container<std::string>(rc::gen::inRange('!', '~'));
    const Riferimento letto = Riferimento::Leggi(Riferimento(prima, ultima, nome).Testo());
    RC_ASSERT(letto.PrimaNota() == prima - 1 && letto.UltimaNota() == ultima - 1 &&
              letto.Nome() == nome);
}

}  // namespace corvana::prova
