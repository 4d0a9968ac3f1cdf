// Deleting folders and melodies.
#include <gtest/gtest.h>

#include "tests/composer/file_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

}  // namespace

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
        for (const auto& [errore, numero] : guastiDisco) {
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
