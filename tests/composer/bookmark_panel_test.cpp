// What is done to the bookmarks that are there.
#include <gtest/gtest.h>

#include "tests/composer/bookmark_rig.h"

namespace corvana::prova {

namespace {

using Messaggi = std::vector<std::string>;

}  // namespace

TEST(CmdDelBm, OnYesTheChosenOneGoesAndOnNoItStays) {
    BancoTre b;
    b.Scegli("5 ÷ 8 ÷ ritornello");
    b.Tocca("cmdDelBm");
    EXPECT_EQ(b.riquadri.messaggi, Messaggi{"eliminare 5 ÷ 8 ÷ ritornello ?"});
    EXPECT_EQ(b.Elenco().size(), 3U);
    EXPECT_FALSE(b.Modificata());
    b.riquadri.risposte = {true};
    b.Tocca("cmdDelBm");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "2 ÷ 3 ÷ a"}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.Riferimenti().ListIndex(), -1);
}

TEST(CmdDelBm, OfTheOnlyUserBookmarkEmptiesTheListAndTheNextStartsAFreshWholeMelody) {
    BancoRiferimenti b;
    b.Aggiungi("a");
    b.Scegli("1 ÷ 12 ÷ a");
    b.riquadri.risposte = {true};
    b.Tocca("cmdDelBm");
    EXPECT_TRUE(b.Elenco().empty());
    b.Nota();
    b.Aggiungi("b");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 13 ÷Tutta", "1 ÷ 13 ÷ b"}));
}

TEST(CmdDelBm, TheFirstEntryNoEntryAndAPlayAreNothing) {
    BancoTre b;
    b.riquadri.risposte = {true, true, true};
    b.Tocca("cmdDelBm");
    b.Riferimenti().ListIndex = 0;
    b.Tocca("cmdDelBm");
    b.Riferimenti().ListIndex = 1;
    b.NelTick(40, [&] { b.Tocca("cmdDelBm"); });
    b.Suona();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.Elenco().size(), 3U);
    EXPECT_FALSE(b.Modificata());
}

TEST(CmdModBm, StoresTheRangeThatTheBoxesShowUnderTheOldName) {
    BancoTre b;
    b.Tratto(6, 9);
    b.Riferimenti().ListIndex = 1;
    b.Tocca("cmdModBm");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "6 ÷ 9 ÷ ritornello", "2 ÷ 3 ÷ a"}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.Riferimenti().ListIndex(), 1);
}

TEST(CmdModBm, AWholeMelodyThatWasMovedTakesTheUsersForm) {
    BancoTre b;
    b.Riferimenti().List = Righe{"2 ÷ 3 ÷ a", "1 ÷ 12 ÷Tutta"};
    b.Tratto(6, 9);
    b.Riferimenti().ListIndex = 1;
    b.Tocca("cmdModBm");
    EXPECT_EQ(b.Elenco(), (Righe{"2 ÷ 3 ÷ a", "6 ÷ 9 ÷ Tutta"}));
}

TEST(CmdModBm, WithTheFirstEntryOrNoneChosenNothingHappens) {
    for (const int scelto : {-1, 0}) {
        BancoTre b;
        b.Riferimenti().ListIndex = scelto;
        b.Tocca("cmdModBm");
        EXPECT_EQ(b.Elenco()[0], "1 ÷ 12 ÷Tutta");
        EXPECT_FALSE(b.Modificata());
    }
}

TEST(CmdRenameBm, AsksWithTheOldNameAndKeepsTheNumbersAsTheyAreSpelled) {
    BancoTre b;
    b.Riferimenti().PonRiga(1, "05÷  8÷ ritornello ");
    b.Riferimenti().ListIndex = 1;
    b.riquadri.testi = {"  un nome di più di dodici lettere - ? "};
    b.Tocca("cmdRenameBm");
    EXPECT_EQ(b.riquadri.messaggi, Messaggi{"nuovo nome?"});
    EXPECT_EQ(b.riquadri.titoli, Messaggi{"rinomina"});
    EXPECT_EQ(b.riquadri.proposte, Messaggi{"ritornello"});
    EXPECT_EQ(b.Elenco()[1], "05÷  8÷ un nome di più di dodici lettere - ?");
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.Riferimenti().ListIndex(), 1);
}

TEST(CmdRenameBm, TheFirstEntryTooUntilTheNextNote) {
    BancoTre b;
    b.Riferimenti().ListIndex = 0;
    b.riquadri.testi = {"Intera"};
    b.Tocca("cmdRenameBm");
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 12 ÷ Intera");
    b.Nota();
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 13 ÷Tutta");
}

TEST(CmdRenameBm, AForbiddenCharacterIsRefusedWithAWordAndTheMarkIsNot) {
    for (const char* nome : {"a;b", "a.b", "a,b", "a:b", "a*b", "(a)", "a§", "°"}) {
        BancoTre b;
        b.Riferimenti().ListIndex = 1;
        b.riquadri.testi = {nome};
        b.Tocca("cmdRenameBm");
        EXPECT_EQ(b.riquadri.messaggi, (Messaggi{"nuovo nome?", "nuovo nome errato"})) << nome;
        EXPECT_EQ(b.Elenco()[1], "5 ÷ 8 ÷ ritornello") << nome;
        EXPECT_FALSE(b.Modificata()) << nome;
    }
    BancoTre b;
    b.Riferimenti().ListIndex = 1;
    b.riquadri.testi = {"a ÷ b"};
    b.Tocca("cmdRenameBm");
    EXPECT_EQ(b.Elenco()[1], "5 ÷ 8 ÷ a ÷ b");
}

TEST(CmdRenameBm, CancelledOrEmptyOrWithNothingChosenItChangesNothing) {
    for (const std::optional<std::string>& risposta : {std::optional<std::string>{}, {" "}}) {
        BancoTre b;
        b.Riferimenti().ListIndex = 1;
        b.riquadri.testi = {risposta};
        b.Tocca("cmdRenameBm");
        EXPECT_EQ(b.Elenco()[1], "5 ÷ 8 ÷ ritornello");
        EXPECT_FALSE(b.Modificata());
    }
    BancoTre b;
    b.Tocca("cmdRenameBm");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CmdMbUd, MovesTheChosenOneAboveTheFirstAndTheFirstBelowTheNext) {
    const Righe tre = {"1 ÷ 12 ÷Tutta", "5 ÷ 8 ÷ ritornello", "2 ÷ 3 ÷ a"};
    struct Caso {
        int scelto, verso, dopo;
        std::array<std::size_t, 3> ordine;
    };
    for (const Caso& caso : {Caso{0, 0, 0, {0, 1, 2}},
                             {1, 0, 0, {1, 0, 2}},
                             {2, 0, 1, {0, 2, 1}},
                             {0, 1, 1, {1, 0, 2}},
                             {1, 1, 2, {0, 2, 1}},
                             {2, 1, 2, {0, 1, 2}},
                             {-1, 0, -1, {0, 1, 2}},
                             {-1, 1, -1, {0, 1, 2}}}) {
        BancoTre b;
        b.Riferimenti().ListIndex = caso.scelto;
        b.Tocca("cmdMbUd" + std::to_string(caso.verso));
        EXPECT_EQ(b.Elenco(),
                  (Righe{tre[caso.ordine[0]], tre[caso.ordine[1]], tre[caso.ordine[2]]}))
            << caso.scelto << " " << caso.verso;
        EXPECT_EQ(b.Riferimenti().ListIndex(), caso.dopo);
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(CmdMbUd, OfTwoEntriesNoneMovesAndNothingIsModified) {
    BancoTre b;
    b.Riferimenti().List = Righe{"1 ÷ 12 ÷Tutta", "2 ÷ 3 ÷ a"};
    b.Riferimenti().ListIndex = 1;
    b.Tocca("cmdMbUd0");
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 12 ÷Tutta");
    EXPECT_FALSE(b.Modificata());
}

TEST(Riferimenti, ModifyRenameAndMoveWorkDuringAPlay) {
    BancoTre b;
    b.Riferimenti().ListIndex = 1;
    b.riquadri.testi = {"x"};
    b.NelTick(40, [&] {
        b.Tocca("cmdRenameBm");
        b.Tocca("cmdModBm");
        b.Tocca("cmdMbUd0");
    });
    b.Suona();
    EXPECT_EQ(b.NoteSuonate().size(), 12U);
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷ x", "1 ÷ 12 ÷Tutta", "2 ÷ 3 ÷ a"}));
}

TEST(Riferimenti, ADamagedEntryIsAFaultForRenameAndModifyThatLeavesTheList) {
    for (const char* comando : {"cmdRenameBm", "cmdModBm"})
        for (const char* riga : {"", "5", "5 ÷ 8"}) {
            BancoTre b;
            b.Riferimenti().PonRiga(1, riga);
            b.Riferimenti().ListIndex = 1;
            b.riquadri.testi = {"x"};
            b.Tocca(comando);
            ASSERT_EQ(b.riquadri.messaggi.size(), 1U) << comando << riga;
            EXPECT_TRUE(b.riquadri.messaggi.front().starts_with("9\r\n")) << comando << riga;
            EXPECT_EQ(b.Elenco()[1], riga);
            EXPECT_FALSE(b.Modificata());
        }
}

TEST(Riferimenti, TheListIsHiddenByItsButtonAndOpenedByTheNextBookmark) {
    BancoRiferimenti b;
    EXPECT_FALSE(b.Aperto());
    b.Aggiungi("a");
    b.Tocca("cmdHideBm");
    EXPECT_FALSE(b.Aperto());
    EXPECT_EQ(b.Elenco().size(), 2U);
    b.Aggiungi("b");
    EXPECT_TRUE(b.Aperto());
}

}  // namespace corvana::prova
