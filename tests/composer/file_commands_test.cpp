// Making folders and renaming melodies.
#include <gtest/gtest.h>

#include "tests/composer/file_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

const std::vector<std::string> segniComuni = {",", ".", ";", ":", "|", "\\", "/", "!", "%", "&",
                                              "(", ")", "=", "'", "^", "+",  "*", "°", "<", ">"};

}  // namespace

TEST(CmdMkdir, AsksWithTitleAndPromptAndMakesTheFolderUnderTheCurrentOne) {
    BancoFile b;
    b.Rispondi("  mine  ", "cmdMkdir");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome cartella?"});
    EXPECT_EQ(b.riquadri.titoli, Avvisi{"nuova cartella"});
    EXPECT_EQ(b.riquadri.proposte, Avvisi{""});
    EXPECT_TRUE(b.file.EsisteCartella("/m/mine"));
    EXPECT_EQ(b.Elenco(), (Righe{"» ..", "» a.b", "» full", "» mine", "» void", "song"}));
}

TEST(CmdMkdir, ACancelledOrBlankAnswerMakesNothingAndSaysNothing) {
    for (const std::optional<std::string>& risposta :
         {std::optional<std::string>(), std::optional<std::string>("   ")}) {
        BancoFile b;
        b.Rispondi(risposta, "cmdMkdir");
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome cartella?"});
        b.EsceComEra();
    }
}

TEST(CmdMkdir, RefusesEachCharacterOfItsSetAndTakesTheParagraphSign) {
    std::vector<std::string> segni = segniComuni;
    segni.insert(segni.end(), {"-", "?"});
    for (const std::string& segno : segni) {
        BancoFile b;
        b.Rispondi("a" + segno + "b", "cmdMkdir");
        EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome cartella?", "cartella errata"})) << segno;
        b.EsceComEra();
    }
    BancoFile b;
    b.Rispondi("§ \"1\"", "cmdMkdir");
    EXPECT_TRUE(b.file.EsisteCartella("/m/§ \"1\""));
}

TEST(CmdMkdir, AFolderNameHoldingAPointCantBeMadeThoughItMayExistAndBeEntered) {
    BancoFile b;
    b.Rispondi("c.d", "cmdMkdir");
    EXPECT_FALSE(b.file.EsisteCartella("/m/c.d"));
    b.Scegli("» a.b");
    b.Subito(Fatto::Click, "cmdEseguiFile");
    EXPECT_EQ(b.globali.percorsoCorrente, "/m/a.b/");
}

TEST(CmdMkdir, AFolderOfThatNameInWhateverCaseIsToldOf) {
    for (const char* nome : {"void", "VOID", "Void"}) {
        BancoFile b;
        b.Rispondi(nome, "cmdMkdir");
        EXPECT_EQ(b.riquadri.messaggi,
                  (Avvisi{"nome cartella?", std::string("cartella esiste ") + nome}));
        b.EsceComEra();
    }
}

TEST(CmdMkdir, AMelodyOfThatNameIsNoFolder) {
    BancoFile b;
    b.Rispondi("song", "cmdMkdir");
    EXPECT_TRUE(b.file.EsisteCartella("/m/song"));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome cartella?"});
}

TEST(CmdMkdir, WhatFailsIsToldByNumberAndTextAndTheListStays) {
    for (const auto& [errore, numero] : guastiDisco) {
        BancoFile b;
        b.file.erroreScrivi = errore;
        b.file.contenuti["/m/later.mel"] = "";
        b.Rispondi("mine", "cmdMkdir");
        EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome cartella?", numero + ParoleSistema(errore)}));
        b.EsceComEra();
    }
}

TEST(CmdMkdir, InAFolderThatHasVanishedMakesNoneAndBringsNoneBack) {
    BancoFile b;
    b.globali.percorsoCorrente = "/gone/";
    b.finestra.archivio.ListaFD();
    b.Rispondi("mine", "cmdMkdir");
    EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome cartella?", "2\r\n" + ParoleSistema(ENOENT)}));
    EXPECT_FALSE(b.file.EsisteCartella("/gone"));
}

TEST(CmdMkdir, WorksDuringAPlayAndTheListStaysAsItStood) {
    BancoFile b;
    b.Voce(soprano, "60;62;", "1");
    b.riquadri.testi = {"mine"};
    b.CliccaNelTick(3, "cmdMkdir");
    b.Suona();
    EXPECT_TRUE(b.file.EsisteCartella("/m/mine"));
    EXPECT_EQ(b.TickPassati(), 64);
    b.EsceComEra();
}

TEST(CmdRename, AsksWithTitleAndPromptAndTheOldNameAndRenames) {
    BancoFile b;
    b.Scegli("song");
    b.Rispondi(" aria ", "cmdRename");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nuovo nome?"});
    EXPECT_EQ(b.riquadri.titoli, Avvisi{"rinomina"});
    EXPECT_EQ(b.riquadri.proposte, Avvisi{"song"});
    EXPECT_EQ(b.file.contenuti["/m/aria.mel"], "old");
    EXPECT_FALSE(b.file.contenuti.contains("/m/song.mel"));
    EXPECT_EQ(b.Elenco(), (Righe{"» ..", "» a.b", "» full", "» void", "aria"}));
}

TEST(CmdRename, WithoutAMelodyChosenDoesNothingWithoutAWord) {
    for (const char* riga : {"", "» ..", "» void", "» a.b"}) {
        BancoFile b;
        b.Scegli(riga);
        b.Rispondi("aria", "cmdRename");
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << riga;
        b.EsceComEra();
    }
}

TEST(CmdRename, ACancelledOrBlankAnswerRenamesNothing) {
    for (const std::optional<std::string>& risposta :
         {std::optional<std::string>(), std::optional<std::string>("  ")}) {
        BancoFile b;
        b.Scegli("song");
        b.Rispondi(risposta, "cmdRename");
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nuovo nome?"});
        b.EsceComEra();
    }
}

TEST(CmdRename, RefusesEachCharacterOfItsSetAndTakesTheQuestionMark) {
    std::vector<std::string> segni = segniComuni;
    segni.insert(segni.end(), {"-", "§"});
    for (const std::string& segno : segni) {
        BancoFile b;
        b.Scegli("song");
        b.Rispondi("a" + segno + "b", "cmdRename");
        EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nuovo nome?", "nuovo errato"})) << segno;
        b.EsceComEra();
    }
    BancoFile b;
    b.Scegli("song");
    b.Rispondi("why?", "cmdRename");
    EXPECT_EQ(b.file.contenuti["/m/why?.mel"], "old");
}

TEST(CmdRename, AMelodyOfTheNewNameIsToldOfAlsoTheSameAndOneWithItsExtensionInCapitals) {
    for (const char* nome : {"song", "taken", "LOUD"}) {
        BancoFile b;
        b.file.contenuti["/m/taken.mel"] = b.file.contenuti["/m/LOUD.MEL"] = "other";
        b.finestra.archivio.ListaFD();
        b.Scegli("song");
        b.Rispondi(nome, "cmdRename");
        EXPECT_EQ(b.riquadri.messaggi,
                  (Avvisi{"nuovo nome?", std::string("melodia esiste ") + nome}));
        EXPECT_EQ(b.file.contenuti["/m/song.mel"], "old");
        EXPECT_EQ(b.file.contenuti["/m/taken.mel"], "other");
        EXPECT_EQ(b.file.contenuti["/m/LOUD.MEL"], "other");
    }
}

TEST(CmdRename, TheCaseOfLettersAloneMayChange) {
    BancoFile b;
    b.Scegli("song");
    b.Rispondi("Song", "cmdRename");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nuovo nome?"});
    EXPECT_EQ(b.Elenco().back(), "Song");
}

TEST(CmdRename, AFileWithItsExtensionInCapitalsGetsTheUsualOne) {
    BancoFile b;
    b.file.contenuti["/m/LOUD.MEL"] = "other";
    b.finestra.archivio.ListaFD();
    b.Scegli("LOUD");
    b.Rispondi("soft", "cmdRename");
    EXPECT_EQ(b.file.contenuti["/m/soft.mel"], "other");
    EXPECT_FALSE(b.file.contenuti.contains("/m/LOUD.MEL"));
}

TEST(CmdRename, WhatFailsIsToldByNumberAndTextAndTheListStays) {
    for (const auto& [errore, numero] : guastiDisco) {
        BancoFile b;
        b.file.erroreScrivi = errore;
        b.Scegli("song");
        b.file.contenuti["/m/later.mel"] = "";
        b.Rispondi("aria", "cmdRename");
        EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nuovo nome?", numero + ParoleSistema(errore)}));
        EXPECT_EQ(b.finestra.archivio.List1.Scelta(), "song");
        b.EsceComEra();
    }
}

TEST(CmdRename, AFileThatIsGoneIsToldInTheSystemsWords) {
    BancoFile b;
    b.Scegli("song");
    b.file.contenuti.erase("/m/song.mel");
    b.Rispondi("aria", "cmdRename");
    EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nuovo nome?", "2\r\n" + ParoleSistema(ENOENT)}));
}

TEST(CmdRename, WorksDuringAPlayAndTheListStaysAsItStood) {
    BancoFile b;
    b.Voce(soprano, "60;62;", "1");
    b.Scegli("song");
    b.riquadri.testi = {"aria"};
    b.CliccaNelTick(3, "cmdRename");
    b.Suona();
    EXPECT_EQ(b.file.contenuti["/m/aria.mel"], "old");
    EXPECT_EQ(b.TickPassati(), 64);
    b.EsceComEra();
}

}  // namespace corvana::prova
