// Making folders, renaming melodies, deleting either.
#include <gtest/gtest.h>

#include "tests/composer/file_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

const std::vector<std::pair<int, std::string>> guasti = {
    {EACCES, "13\r\n"}, {EROFS, "30\r\n"}, {ENOSPC, "61\r\n"},       {EDQUOT, "61\r\n"},
    {EIO, "71\r\n"},    {ENOENT, "2\r\n"}, {ENAMETOOLONG, "36\r\n"}, {EPERM, "1\r\n"}};

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
    for (const auto& [errore, numero] : guasti) {
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
    for (const auto& [errore, numero] : guasti) {
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

TEST(CmdDelete, AnEmptyFolderIsAskedForAndWithAYesIsGone) {
    BancoFile b;
    b.Elimina("» void", true);
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"elimina cartella void ?"});
    EXPECT_FALSE(b.file.EsisteCartella("/m/void"));
    EXPECT_EQ(b.Elenco(), (Righe{"» ..", "» a.b", "» full", "song"}));
    EXPECT_EQ(b.ColFuoco(), "cmdPlay");
}

TEST(CmdDelete, ANoLeavesTheFolderAndTheMelodyAndPlayTakesTheFocus) {
    for (const char* riga : {"» void", "song"}) {
        BancoFile b;
        b.Elimina(riga, false);
        EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
        EXPECT_EQ(b.ColFuoco(), "cmdPlay");
        b.EsceComEra();
    }
}

TEST(CmdDelete, AFolderThatHoldsAMelodyOrAFolderIsRefused) {
    for (const char* dentro : {"x.mel", "X.MEL", ""}) {
        BancoFile b;
        b.file.contenuti.erase("/m/full/x.mel");
        if (*dentro)
            b.file.contenuti[std::string("/m/full/") + dentro] = "";
        else
            b.file.cartelle.insert("/m/full/inner");
        b.Elimina("» full", true);
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"non vuota"});
        EXPECT_EQ(b.ColFuoco(), "cmdPlay");
        b.EsceComEra();
    }
}

TEST(CmdDelete, AFolderThatHoldsOnlyOtherFilesPassesAsEmptyAndFailsWithTheSystemsText) {
    BancoFile b;
    b.file.contenuti["/m/void/notes.txt"] = "";
    b.Elimina("» void", true);
    EXPECT_EQ(b.riquadri.messaggi,
              (Avvisi{"elimina cartella void ?",
                      std::to_string(ENOTEMPTY) + "\r\n" + ParoleSistema(ENOTEMPTY)}));
    EXPECT_NE(b.ColFuoco(), "cmdPlay");
    b.EsceComEra();
}

TEST(CmdDelete, TheParentsRowOnlyGivesPlayTheFocus) {
    BancoFile b;
    b.Elimina("» ..", true);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.ColFuoco(), "cmdPlay");
    b.EsceComEra();
}

TEST(CmdDelete, WithoutAChosenRowDoesNothing) {
    BancoFile b;
    b.Elimina("", true);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_NE(b.ColFuoco(), "cmdPlay");
    b.EsceComEra();
}

TEST(CmdDelete, AMelodyIsAskedForAndWithAYesItsFileIsGone) {
    BancoFile b;
    b.Elimina("song", true);
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"elimina melodia song ?"});
    EXPECT_FALSE(b.file.contenuti.contains("/m/song.mel"));
    EXPECT_EQ(b.Elenco(), (Righe{"» ..", "» a.b", "» full", "» void"}));
    EXPECT_EQ(b.ColFuoco(), "cmdPlay");
}

TEST(CmdDelete, AFileWithItsExtensionInCapitalsGoesToo) {
    BancoFile b;
    b.file.contenuti["/m/LOUD.MEL"] = "";
    b.finestra.archivio.ListaFD();
    b.Elimina("LOUD", true);
    EXPECT_FALSE(b.file.contenuti.contains("/m/LOUD.MEL"));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"elimina melodia LOUD ?"});
}

TEST(CmdDelete, DeletingTheFileThatIsLoadedLeavesTheMelodyInMemory) {
    BancoFile b;
    b.file.contenuti["/m/song.mel"] = FileDi(dueVoci);
    b.Scegli("song");
    b.Subito(Fatto::Click, "cmdEseguiFile");
    b.Elimina("song", true);
    EXPECT_FALSE(b.file.contenuti.contains("/m/song.mel"));
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;65;");
    EXPECT_EQ(b.melodia.nomeMelodia, "song");
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "song");
}

TEST(CmdDelete, WhatFailsIsToldByNumberAndTextAndTheListStays) {
    for (const char* riga : {"» void", "song"}) {
        for (const auto& [errore, numero] : guasti) {
            BancoFile b;
            b.file.erroreScrivi = errore;
            b.file.contenuti["/m/later.mel"] = "";
            b.Elimina(riga, true);
            ASSERT_EQ(b.riquadri.messaggi.size(), 2U);
            EXPECT_EQ(b.riquadri.messaggi[1], numero + ParoleSistema(errore));
            EXPECT_EQ(b.finestra.archivio.List1.Scelta(), riga);
            b.EsceComEra();
        }
    }
}

TEST(CmdDelete, DuringAPlayDoesNothing) {
    for (const char* riga : {"» void", "song", "» .."}) {
        BancoFile b;
        b.Voce(soprano, "60;62;", "1");
        b.Scegli(riga);
        b.riquadri.risposte = {true};
        b.finestra.inserimento.cmdInsNota.SetFocus();
        b.CliccaNelTick(3, "cmdDelete");
        b.Suona();
        EXPECT_TRUE(b.riquadri.messaggi.empty());
        b.EsceComEra();
    }
}

TEST(CartellaVuota, SeesFoldersAndMelodiesAndNoOtherFiles) {
    BancoFile b;
    const auto vuota = [&b](const char* percorso) {
        bool risposta = std::string(percorso).size() % 2 == 0;
        b.finestra.archivio.CartellaVuota(percorso, risposta);
        return risposta;
    };
    b.file.contenuti["/m/void/notes.txt"] = "";
    EXPECT_TRUE(vuota("/m/void"));
    EXPECT_TRUE(vuota("/m/void/"));
    EXPECT_FALSE(vuota("/m/full"));
    EXPECT_FALSE(vuota("/m"));
    EXPECT_TRUE(vuota("/gone"));
    b.file.cartelle.insert("/m/void/inner");
    EXPECT_FALSE(vuota("/m/void"));
}

}  // namespace corvana::prova
