// The bookmark of the whole melody, and those that the user adds.
#include <gtest/gtest.h>

#include "tests/composer/bookmark_rig.h"

namespace corvana::prova {

namespace {

using MessaggiAggiunta = std::vector<std::string>;

}  // namespace

TEST(RiferimentoIntero, AnEmptyListStaysEmpty) {
    BancoRiferimenti b;
    b.finestra.riferimenti.AggiornaRiferimentoIntero();
    EXPECT_TRUE(b.Elenco().empty());
}

TEST(RiferimentoIntero, ShowsTheSopranosCountAndTheLanguagesLabelWithoutABlankBeforeIt) {
    BancoRiferimenti b;
    EXPECT_EQ(b.Aggiornate({"1 ÷ 9 ÷Tutta", "2 ÷ 3 ÷ a"}), (Righe{"1 ÷ 12 ÷Tutta", "2 ÷ 3 ÷ a"}));
    b.globali.testi.TxtMelodiaIntera = "All";
    EXPECT_EQ(b.Aggiornate({"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ a"}), (Righe{"1 ÷ 12 ÷All", "2 ÷ 3 ÷ a"}));
}

TEST(RiferimentoIntero, TakesTheFirstRowForItWhateverItHoldsAndTheTrueOneStaysWhereItWent) {
    BancoRiferimenti b;
    EXPECT_EQ(b.Aggiornate({"2 ÷ 3 ÷ a", "1 ÷ 9 ÷Tutta"}),
              (Righe{"1 ÷ 12 ÷Tutta", "1 ÷ 9 ÷Tutta"}));
}

TEST(RiferimentoIntero, ANoteAddedToTheSopranoIsCountedInItAndOneOfAnotherVoiceIsnt) {
    BancoTre b;
    b.Nota();
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 13 ÷Tutta");
    b.Tocca("VoceAttiva1");
    b.Nota();
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 13 ÷Tutta", "5 ÷ 8 ÷ ritornello", "2 ÷ 3 ÷ a"}));
}

TEST(RiferimentoIntero, ANoteThatIsDroppedIsCountedOffIt) {
    BancoTre b;
    b.Tocca("cmdCanc");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 11 ÷Tutta", "5 ÷ 8 ÷ ritornello", "2 ÷ 3 ÷ a"}));
}

TEST(AggiungiRiferimento, TheFirstOnAMelodyOf12NotesWithRange5To8BringsTheWholeMelodyWithIt) {
    BancoRiferimenti b;
    b.Tratto(5, 8);
    b.Aggiungi("ritornello");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "5 ÷ 8 ÷ ritornello"}));
    b.Tratto(1, 12);
    b.Aggiungi("b");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "5 ÷ 8 ÷ ritornello", "1 ÷ 12 ÷ b"}));
    EXPECT_EQ(b.riquadri.messaggi, (MessaggiAggiunta{"nome?", "nome?"}));
    EXPECT_EQ(b.riquadri.proposte, (MessaggiAggiunta{"", ""}));
}

TEST(AggiungiRiferimento, OfANameOf20Characters12AreKept) {
    BancoRiferimenti b;
    b.Aggiungi("  12345678901234567890");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "1 ÷ 12 ÷ 123456789012"}));
}

TEST(AggiungiRiferimento, RaisesTheFlagAndOpensTheListEvenWhenTheQuestionIsCancelled) {
    for (const std::optional<std::string>& risposta :
         {std::optional<std::string>{}, {""}, {"  "}}) {
        BancoRiferimenti b;
        b.Aggiungi(risposta);
        EXPECT_TRUE(b.Modificata());
        EXPECT_TRUE(b.Aperto());
        EXPECT_TRUE(b.Elenco().empty());
        EXPECT_EQ(b.riquadri.messaggi, MessaggiAggiunta{"nome?"});
    }
}

TEST(AggiungiRiferimento, FlagAndListAreThereBeforeTheQuestion) {
    BancoRiferimenti b;
    bool chiesto = false;
    b.riquadri.durante = [&](const std::string&) {
        chiesto = true;
        EXPECT_TRUE(b.Modificata());
        EXPECT_TRUE(b.Aperto());
        EXPECT_TRUE(b.Elenco().empty());
    };
    b.Aggiungi("a");
    EXPECT_TRUE(chiesto);
    EXPECT_EQ(b.Elenco().size(), 2U);
}

TEST(AggiungiRiferimento, ANameWithASemicolonOrTheMarkIsRefusedWithAWord) {
    for (const char* nome : {"a;b", ";", "a ÷ b", "÷"}) {
        BancoRiferimenti b;
        b.Aggiungi(nome);
        EXPECT_EQ(b.riquadri.messaggi, (MessaggiAggiunta{"nome?", "nome errato"})) << nome;
        EXPECT_TRUE(b.Elenco().empty()) << nome;
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(AggiungiRiferimento, WhatWasCutOffIsntCheckedAndOtherSignsAreTaken) {
    BancoRiferimenti b;
    b.Aggiungi("123456789012;÷");
    b.Aggiungi("a.b,c:?*");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "1 ÷ 12 ÷ 123456789012", "1 ÷ 12 ÷ a.b,c:?*"}));
}

TEST(AggiungiRiferimento, ARangeThatReachesBeyondTheVoiceAsksNothing) {
    for (const auto& [prima, ultima] : {std::pair{0, 5}, {5, 13}, {0, 13}}) {
        BancoRiferimenti b;
        b.Tratto(prima, ultima);
        b.Aggiungi("a");
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << prima;
        EXPECT_FALSE(b.Modificata() || b.Aperto());
    }
    BancoAMano vuoto;
    vuoto.Tocca("cmdAddBm");
    EXPECT_TRUE(vuoto.riquadri.messaggi.empty());
    EXPECT_FALSE(vuoto.Modificata());
}

}  // namespace corvana::prova
