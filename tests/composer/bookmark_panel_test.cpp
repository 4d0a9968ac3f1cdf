// The list of bookmarks and its commands. What they write and read back is in bookmark_file_test.
#include <gtest/gtest.h>

#include "tests/composer/bookmark_rig.h"

namespace corvana::prova {

namespace {

using Messaggi = std::vector<std::string>;

/// Twelve notes and three bookmarks, the first of the whole melody.
struct BancoTre : BancoRiferimenti {
    BancoTre() {
        b().List = Righe{"1 ÷ 12 ÷Tutta", "5 ÷ 8 ÷ ritornello", "2 ÷ 3 ÷ a"};
        finestra.riferimenti.frBookMark.Visible = true;
    }
    Lista& b() { return finestra.riferimenti.lstBookMark; }
};

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
    EXPECT_EQ(b.riquadri.messaggi, (Messaggi{"nome?", "nome?"}));
    EXPECT_EQ(b.riquadri.proposte, (Messaggi{"", ""}));
}

TEST(AggiungiRiferimento, OfANameOf20Characters12AreKept) {
    BancoRiferimenti b;
    b.Aggiungi("  12345678901234567890");
    EXPECT_EQ(b.Elenco().back(), "1 ÷ 12 ÷ 123456789012");
}

TEST(AggiungiRiferimento, RaisesTheFlagAndOpensTheListEvenWhenTheQuestionIsCancelled) {
    for (const std::optional<std::string>& risposta :
         {std::optional<std::string>{}, {""}, {"  "}}) {
        BancoRiferimenti b;
        b.Aggiungi(risposta);
        EXPECT_TRUE(b.Modificata());
        EXPECT_TRUE(b.Aperto());
        EXPECT_TRUE(b.Elenco().empty());
        EXPECT_EQ(b.riquadri.messaggi, Messaggi{"nome?"});
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
        EXPECT_EQ(b.riquadri.messaggi, (Messaggi{"nome?", "nome errato"})) << nome;
        EXPECT_TRUE(b.Elenco().empty()) << nome;
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(AggiungiRiferimento, WhatWasCutOffIsntCheckedAndOtherSignsAreTaken) {
    BancoRiferimenti b;
    b.Aggiungi("123456789012;÷");
    EXPECT_EQ(b.Elenco().back(), "1 ÷ 12 ÷ 123456789012");
    b.Aggiungi("a.b,c:?*");
    EXPECT_EQ(b.Elenco().back(), "1 ÷ 12 ÷ a.b,c:?*");
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

TEST(EseguiRiferimento, ADoubleClickOrTheButtonPlaysItsRange) {
    for (const bool doppio : {true, false}) {
        BancoTre b;
        b.finestra.mix.VoceAttiva_Click(basso);
        b.passo.modoPasso = true;
        b.b().ListIndex = 1;
        b.Suona([&] {
            b.Subito(doppio ? Fatto::DblClick : Fatto::Click, doppio ? "lstBookMark" : "cmdPlayBm");
        });
        EXPECT_EQ(b.NoteSuonate(), (std::vector<int>{64, 65, 66, 67}));
        EXPECT_EQ(b.melodia.voci[soprano].primaNota, 4);
        EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 7);
        EXPECT_EQ(b.finestra.voci.lblNini.Text(), "5");
        EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "8");
        EXPECT_EQ(b.melodia.voceAttiva, "soprano");
        EXPECT_FALSE(b.passo.modoPasso || b.Modificata());
        EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Do#;Re;Re#;Mi;Fa;Fa#;Sol;");
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(EseguiRiferimento, TheWholeMelodyIsPlayedByTheFirst) {
    BancoTre b;
    b.Tratto(3, 4);
    b.b().ListIndex = 0;
    b.Suona([&] { b.Subito(Fatto::DblClick, "lstBookMark"); });
    EXPECT_EQ(b.NoteSuonate().size(), 12U);
}

TEST(EseguiRiferimento, WithNothingChosenOrDuringAPlayNothingHappens) {
    BancoTre b;
    b.uscita.messaggi.clear();
    b.Subito(Fatto::DblClick, "lstBookMark");
    EXPECT_TRUE(b.uscita.messaggi.empty());
    b.b().ListIndex = 1;
    b.NelTick(40, [&] {
        b.Subito(Fatto::DblClick, "lstBookMark");
        b.Tocca("cmdPlayBm");
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Stop");
    });
    b.Suona();
    EXPECT_EQ(b.NoteSuonate().size(), 12U);
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "1");
}

TEST(EseguiRiferimento, NotesThatNoLongerExistArePlayedAsFarAsAPlayCanAndNothingIsLeftSounding) {
    for (const auto& [riga, guasto] : {std::pair{"1 ÷ 40 ÷ a", ""},
                                       {"-5 ÷ 40 ÷ a", ""},
                                       {"8 ÷ 5 ÷ a", ""},
                                       {"5 ÷ 40 ÷ a", "13"},
                                       {"40 ÷ 50 ÷ a", "13"},
                                       {"13 ÷ 13 ÷ a", "13"},
                                       {"-3 ÷ 5 ÷ a", "9"},
                                       {"32767 ÷ 32767 ÷ a", "13"},
                                       {"-32767 ÷ -32767 ÷ a", "13"}}) {
        BancoTre b;
        b.b().PonRiga(1, riga);
        b.b().ListIndex = 1;
        b.Suona([&] { b.Subito(Fatto::DblClick, "lstBookMark"); });
        const std::string detto = b.riquadri.messaggi.empty() ? "" : b.riquadri.messaggi.front();
        EXPECT_EQ(detto.substr(0, detto.find('\r')), guasto) << riga;
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play") << riga;
        EXPECT_TRUE(b.uscita.NoteAccese().empty()) << riga;
        EXPECT_TRUE(b.finestra.riferimenti.cmdAddBm.Enabled()) << riga;
        b.Tratto(1, 12);
        b.Suona();
        EXPECT_EQ(b.NoteSuonate().size(), 12U) << riga;
    }
}

TEST(EseguiRiferimento, AnEntryWithoutTwoNumbersIsAFaultThatLeavesTheRange) {
    for (const auto& [riga, guasto] : {std::pair{"", "13"},
                                       {"5", "9"},
                                       {"x ÷ 8 ÷ a", "13"},
                                       {"5 ÷ y ÷ a", "13"},
                                       {"5 ÷ 99999 ÷ a", "6"},
                                       {"-32768 ÷ 8 ÷ a", "6"}}) {
        BancoTre b;
        b.Tratto(2, 4);
        b.b().PonRiga(1, riga);
        b.b().ListIndex = 1;
        b.Subito(Fatto::DblClick, "lstBookMark");
        ASSERT_EQ(b.riquadri.messaggi.size(), 1U) << riga;
        EXPECT_TRUE(b.riquadri.messaggi.front().starts_with(guasto + std::string("\r\n"))) << riga;
        EXPECT_EQ(b.melodia.voci[soprano].primaNota, 1) << riga;
        EXPECT_EQ(b.finestra.voci.lblNini.Text(), "2") << riga;
        EXPECT_TRUE(b.uscita.NoteAccese().empty());
    }
}

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
    EXPECT_EQ(b.b().ListIndex(), -1);
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
    b.b().ListIndex = 0;
    b.Tocca("cmdDelBm");
    b.b().ListIndex = 1;
    b.NelTick(40, [&] { b.Tocca("cmdDelBm"); });
    b.Suona();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.Elenco().size(), 3U);
    EXPECT_FALSE(b.Modificata());
}

TEST(CmdModBm, StoresTheRangeThatTheBoxesShowUnderTheOldName) {
    BancoTre b;
    b.Tratto(6, 9);
    b.b().ListIndex = 1;
    b.Tocca("cmdModBm");
    EXPECT_EQ(b.Elenco(), (Righe{"1 ÷ 12 ÷Tutta", "6 ÷ 9 ÷ ritornello", "2 ÷ 3 ÷ a"}));
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.b().ListIndex(), 1);
}

TEST(CmdModBm, AWholeMelodyThatWasMovedTakesTheUsersForm) {
    BancoTre b;
    b.b().List = Righe{"2 ÷ 3 ÷ a", "1 ÷ 12 ÷Tutta"};
    b.Tratto(6, 9);
    b.b().ListIndex = 1;
    b.Tocca("cmdModBm");
    EXPECT_EQ(b.Elenco(), (Righe{"2 ÷ 3 ÷ a", "6 ÷ 9 ÷ Tutta"}));
}

TEST(CmdModBm, WithTheFirstEntryOrNoneChosenNothingHappens) {
    for (const int scelto : {-1, 0}) {
        BancoTre b;
        b.b().ListIndex = scelto;
        b.Tocca("cmdModBm");
        EXPECT_EQ(b.Elenco()[0], "1 ÷ 12 ÷Tutta");
        EXPECT_FALSE(b.Modificata());
    }
}

TEST(CmdRenameBm, AsksWithTheOldNameAndKeepsTheNumbersAsTheyAreSpelled) {
    BancoTre b;
    b.b().PonRiga(1, "05÷  8÷ ritornello ");
    b.b().ListIndex = 1;
    b.riquadri.testi = {"  un nome di più di dodici lettere - ? "};
    b.Tocca("cmdRenameBm");
    EXPECT_EQ(b.riquadri.messaggi, Messaggi{"nuovo nome?"});
    EXPECT_EQ(b.riquadri.titoli, Messaggi{"rinomina"});
    EXPECT_EQ(b.riquadri.proposte, Messaggi{"ritornello"});
    EXPECT_EQ(b.Elenco()[1], "05÷  8÷ un nome di più di dodici lettere - ?");
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.b().ListIndex(), 1);
}

TEST(CmdRenameBm, TheFirstEntryTooUntilTheNextNote) {
    BancoTre b;
    b.b().ListIndex = 0;
    b.riquadri.testi = {"Intera"};
    b.Tocca("cmdRenameBm");
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 12 ÷ Intera");
    b.Nota();
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 13 ÷Tutta");
}

TEST(CmdRenameBm, AForbiddenCharacterIsRefusedWithAWordAndTheMarkIsNot) {
    for (const char* nome : {"a;b", "a.b", "a,b", "a:b", "a*b", "(a)", "a§", "°"}) {
        BancoTre b;
        b.b().ListIndex = 1;
        b.riquadri.testi = {nome};
        b.Tocca("cmdRenameBm");
        EXPECT_EQ(b.riquadri.messaggi, (Messaggi{"nuovo nome?", "nuovo nome errato"})) << nome;
        EXPECT_EQ(b.Elenco()[1], "5 ÷ 8 ÷ ritornello") << nome;
        EXPECT_FALSE(b.Modificata()) << nome;
    }
    BancoTre b;
    b.b().ListIndex = 1;
    b.riquadri.testi = {"a ÷ b"};
    b.Tocca("cmdRenameBm");
    EXPECT_EQ(b.Elenco()[1], "5 ÷ 8 ÷ a ÷ b");
}

TEST(CmdRenameBm, CancelledOrEmptyOrWithNothingChosenItChangesNothing) {
    for (const std::optional<std::string>& risposta : {std::optional<std::string>{}, {" "}}) {
        BancoTre b;
        b.b().ListIndex = 1;
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
        b.b().ListIndex = caso.scelto;
        b.Tocca("cmdMbUd" + std::to_string(caso.verso));
        EXPECT_EQ(b.Elenco(),
                  (Righe{tre[caso.ordine[0]], tre[caso.ordine[1]], tre[caso.ordine[2]]}))
            << caso.scelto << " " << caso.verso;
        EXPECT_EQ(b.b().ListIndex(), caso.dopo);
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(CmdMbUd, OfTwoEntriesNoneMovesAndNothingIsModified) {
    BancoTre b;
    b.b().List = Righe{"1 ÷ 12 ÷Tutta", "2 ÷ 3 ÷ a"};
    b.b().ListIndex = 1;
    b.Tocca("cmdMbUd0");
    EXPECT_EQ(b.Elenco().front(), "1 ÷ 12 ÷Tutta");
    EXPECT_FALSE(b.Modificata());
}

TEST(Riferimenti, ModifyRenameAndMoveWorkDuringAPlay) {
    BancoTre b;
    b.b().ListIndex = 1;
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
            b.b().PonRiga(1, riga);
            b.b().ListIndex = 1;
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
