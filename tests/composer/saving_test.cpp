// Saving into the current folder: the file's bytes, what the window shows, what fails.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// Two notes in the soprano, changed since they were saved, by instrument 16 at tempo 60.
struct BancoSalva : BancoComposer {
    BancoSalva() {
        Voce(soprano, "60;62;", "1");
        finestra.stato.lblModificato.Visible = true;
        finestra.stato.lblNome.Caption = "before";
    }
    std::string Salvato(const std::string& nome = "song") {
        finestra.archivio.SalvaMelodia(nome);
        return ContenutoFile(nome);
    }
    bool Modificata() const { return finestra.stato.lblModificato.Visible(); }
    /// Nothing was written and the window shows what it showed.
    void EsceIntatta() const {
        EXPECT_EQ(file.scritture, scrittePrima_);
        EXPECT_TRUE(Modificata());
        EXPECT_EQ(finestra.stato.lblNome.Caption(), "before");
    }

private:
    int scrittePrima_ = file.scritture;
};

}  // namespace

TEST(SalvaMelodia, WithOnlyASopranoAndTheMetronomeOffIsExactlyFiveLines) {
    BancoSalva b;
    EXPECT_EQ(b.Salvato(), "60;62;\r\n1;1;\r\nn;n;\r\n 60 \r\n 16 \r\n");
}

TEST(SalvaMelodia, Instrument127WithTheMetronomeOffHasALineOfThreeCharactersBetweenBlanks) {
    BancoSalva b;
    b.melodia.voci[soprano].strumento = 127;
    EXPECT_EQ(b.Salvato(), FileDi({"60;62;", "1;1;", "n;n;", " 60 ", " 127 "}));
}

TEST(SalvaMelodia, WithTheMetronomeOnTheInstrumentsLineHoldsItsSettings) {
    BancoSalva b;
    b.finestra.pulsi.lblTs_Click();
    b.finestra.pulsi.Pulsazioni.PonTesto("3");
    b.finestra.pulsi.DurataPulsazioni.PonTesto("8");
    b.finestra.pulsi.InizioPuls.PonValore(2);
    b.finestra.play.Slider1.PonValore(200);
    EXPECT_EQ(b.Salvato(), FileDi({"60;62;", "1;1;", "n;n;", " 200 ", "16;3;8;2"}));
}

TEST(SalvaMelodia, WritesTheBookmarksInTheBytesOfTheCodePageAndAVoiceInItsBlock) {
    BancoSalva b;
    b.Voce(soprano, "60;62;64;65;", "1");
    b.Voce(basso, "48;43;", "2");
    b.melodia.voci[basso].strumento = 32;
    b.finestra.pulsi.lblTs_Click();
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 4 ÷Tutta", "2 ÷ 3 ÷ motivo"};
    EXPECT_EQ(b.Salvato(), FileDi(dueVoci));
}

TEST(SalvaMelodia, ASingleBookmarkRowIsWrittenToo) {
    BancoSalva b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 2 ÷Tutta"};
    EXPECT_EQ(b.Salvato(), FileDi(soloSoprano) + "1 \xF7 2 \xF7Tutta;\r\n");
}

TEST(SalvaMelodia, TheBlocksStandInTheOrderOfTheVoices) {
    BancoSalva b;
    for (const std::size_t voce : {basso, contralto, tenore})
        b.Voce(voce, "48;", "2");
    const std::string blocchi = FileDi({"contralto;16", "48;", "2;", "n;", "tenore;16", "48;", "2;",
                                        "n;", "basso;16", "48;", "2;", "n;"});
    EXPECT_EQ(b.Salvato(), FileDi(soloSoprano) + blocchi);
}

TEST(SalvaMelodia, AContraltoWithANoteTextButEmptyDurationsIsWrittenWithAnEmptyLine) {
    BancoSalva b;
    b.Voce(contralto, "48;", "", "n;");
    EXPECT_EQ(b.Salvato(), FileDi(soloSoprano) + "contralto;16\r\n48;\r\n\r\nn;\r\n");
}

TEST(SalvaMelodia, AVoiceWithoutNoteTextHasNoBlockWhateverElseItHolds) {
    BancoSalva b;
    b.Voce(tenore, "", "1;", "n;");
    EXPECT_EQ(b.Salvato(), FileDi(soloSoprano));
}

TEST(SalvaMelodia, AnEmptySopranoIsWrittenAsEmptyLines) {
    BancoSalva b;
    b.Voce(soprano, "", "", "");
    EXPECT_EQ(b.Salvato(), "\r\n\r\n\r\n 60 \r\n 16 \r\n");
}

TEST(SalvaMelodia, ReplacesTheFileOfThatName) {
    BancoSalva b;
    b.PonFile("song", "old");
    EXPECT_EQ(b.Salvato(), FileDi(soloSoprano));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(SalvaMelodia, LowersTheFlagNamesTheFileAndRefreshesTheList) {
    BancoSalva b;
    b.Salvato();
    EXPECT_FALSE(b.Modificata());
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "Salvato: song");
    EXPECT_EQ(b.finestra.archivio.List1.List(), (Righe{"» ..", "song"}));
}

TEST(SalvaMelodia, DoesntSetNomeMelodia) {
    BancoSalva b;
    b.melodia.nomeMelodia = "mine";
    b.Salvato();
    EXPECT_EQ(b.melodia.nomeMelodia, "mine");
}

TEST(SalvaMelodia, LeavesTheMelodyInMemoryAsItIs) {
    BancoSalva b;
    b.melodia.voci[soprano].testoNote = "60;62;64;";
    b.Salvato();
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;");
    EXPECT_EQ(b.melodia.voci[soprano].numeroNote, 2);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Re;");
}

TEST(SalvaMelodia, AnEmptyNameStopsWithoutAWord) {
    BancoSalva b;
    b.finestra.archivio.SalvaMelodia("");
    b.EsceIntatta();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(SalvaMelodia, AFolderThatDoesntExistStopsItWithoutAWord) {
    BancoSalva b;
    b.globali.percorsoCorrente = "/gone/";
    b.finestra.archivio.SalvaMelodia("song");
    b.EsceIntatta();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(SalvaMelodia, WhatCantBeWrittenIsToldByNumberAndTextAndTheOldFileAndTheFlagStay) {
    const std::vector<std::pair<int, std::string>> guasti = {
        {EACCES, "13\r\n" + ParoleSistema(EACCES)}, {EROFS, "30\r\n" + ParoleSistema(EROFS)},
        {ENOSPC, "61\r\n" + ParoleSistema(ENOSPC)}, {EDQUOT, "61\r\n" + ParoleSistema(EDQUOT)},
        {ENXIO, "71\r\n" + ParoleSistema(ENXIO)},   {EIO, "71\r\n" + ParoleSistema(EIO)},
        {EISDIR, "21\r\n" + ParoleSistema(EISDIR)}};
    for (const auto& [errore, testo] : guasti) {
        BancoSalva b;
        b.PonFile("song", "old");
        b.file.erroreScrivi = errore;
        b.finestra.archivio.SalvaMelodia("song");
        b.EsceIntatta();
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{testo});
        EXPECT_EQ(b.ContenutoFile("song"), "old");
    }
}

TEST(SalvaMelodia, AfterAFailureTheSameMelodyCanBeSavedAgain) {
    BancoSalva b;
    b.file.erroreScrivi = ENOSPC;
    b.finestra.archivio.SalvaMelodia("song");
    b.file.erroreScrivi = 0;
    EXPECT_EQ(b.Salvato(), FileDi(soloSoprano));
    EXPECT_FALSE(b.Modificata());
}

TEST(SalvaMelodia, ACharacterThatTheCodePageDoesntHaveIsAFaultBeforeAnythingIsWritten) {
    BancoSalva b;
    b.PonFile("song", "old");
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 2 ÷Tutta", "1 ÷ 2 ÷ 日"};
    b.finestra.archivio.SalvaMelodia("song");
    b.EsceIntatta();
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_TRUE(b.riquadri.messaggi[0].starts_with("5\r\n")) << b.riquadri.messaggi[0];
    EXPECT_NE(b.riquadri.messaggi[0].find("日"), std::string::npos);
    EXPECT_EQ(b.ContenutoFile("song"), "old");
}

TEST(MenuSalva, OpensTheListAndSavesUnderTheMelodysName) {
    BancoSalva b;
    b.melodia.nomeMelodia = "mine";
    b.Subito(Fatto::Click, "mnuSalva");
    EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
    EXPECT_EQ(b.ContenutoFile("mine"), FileDi(soloSoprano));
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "Salvato: mine");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(MenuSalva, WithoutANameAsksForOne) {
    BancoSalva b;
    b.riquadri.testi = {"mine"};
    b.finestra.archivio.mnuSalva_Click();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome?"});
    EXPECT_EQ(b.melodia.nomeMelodia, "mine");
    EXPECT_EQ(b.ContenutoFile("mine"), FileDi(soloSoprano));
}

TEST(MenuSalva, TheEntryOfTheContextMenuDoesTheSame) {
    BancoSalva b;
    b.melodia.nomeMelodia = "mine";
    b.Subito(Fatto::Click, "mnuSalvaCont");
    EXPECT_EQ(b.ContenutoFile("mine"), FileDi(soloSoprano));
    EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
}

TEST(MenuSalva, DuringAPlayTheFileMenuIsOutOfReach) {
    BancoSalva b;
    b.melodia.nomeMelodia = "mine";
    b.CliccaNelTick(3, "mnuSalva");
    b.Suona();
    EXPECT_EQ(b.ContenutoFile("mine"), "no such file");
    EXPECT_TRUE(b.Modificata());
}

}  // namespace corvana::prova
