// Melodies on the machine's own disk.
#include <gtest/gtest.h>

#include "tests/composer/disk_rig.h"
#include "tests/composer/mel_lines.h"
#include "tests/support/full_disk.h"
#include "tests/support/system_calls.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

void EsceUguale(const Melodia& una, const Melodia& altra) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        EXPECT_EQ(una.voci[voce].testoNote, altra.voci[voce].testoNote);
        EXPECT_EQ(una.voci[voce].testoDurate, altra.voci[voce].testoDurate);
        EXPECT_EQ(una.voci[voce].testoAttributi, altra.voci[voce].testoAttributi);
        if (una.voci[voce].Vuota()) continue;
        EXPECT_EQ(una.voci[voce].strumento, altra.voci[voce].strumento);
    }
    EXPECT_EQ(una.tempo, altra.tempo);
}

/// Saves the melody of one window and loads it in another, over the same folder.
void EsceAndataERitorno(char separatore, const std::string& terzina, const std::string& punto) {
    BancoSuDisco uno(separatore);
    uno.Componi(terzina, punto);
    uno.b.finestra.archivio.SalvaMelodia("song");
    ASSERT_TRUE(uno.b.riquadri.messaggi.empty());
    BancoSuDisco altro(separatore);
    altro.b.globali.percorsoCorrente = uno.b.globali.percorsoCorrente;
    altro.Carica("song");
    EXPECT_TRUE(altro.b.riquadri.messaggi.empty());
    EsceUguale(uno.b.melodia, altro.b.melodia);
    EXPECT_EQ(altro.b.finestra.riferimenti.lstBookMark.List(),
              uno.b.finestra.riferimenti.lstBookMark.List());
    EXPECT_EQ(altro.b.finestra.pulsi.Pulsazioni.Text(), "3");
    EXPECT_EQ(altro.b.finestra.pulsi.InizioPuls.Value(), 2);
    altro.b.finestra.pulsi.lblTs_Click();
    altro.b.finestra.archivio.SalvaMelodia("again");
    EXPECT_EQ(Contenuto(uno.cartella.Di("again.mel")), Contenuto(uno.cartella.Di("song.mel")));
}

/// Saves a melody of one note on a system that has this error for all that is asked of it.
void SalvaCon(int errore, BancoSuDisco& d) {
    d.b.Voce(soprano, "60;", "1");
    d.b.finestra.stato.lblModificato.Visible = true;
    const ChiamateSistema sistema(0, GuastoSistema{errore, false, false, true});
    d.b.finestra.archivio.SalvaMelodia("song");
}

}  // namespace

TEST(SuDisco, AMelodySavedAndLoadedAgainIsTheSameWithThePoint) {
    EsceAndataERitorno('.', "0.333333333333333;", "0.75");
}

TEST(SuDisco, AMelodySavedAndLoadedAgainIsTheSameWithTheComma) {
    EsceAndataERitorno(',', "0,333333333333333;", "0,75");
}

TEST(SuDisco, AFileMadeUnderTheCommaIsPlayedUnderThePoint) {
    BancoSuDisco d('.');
    Scrivi(d.cartella.Di("song.mel"), FileDi({"60;", "0,75;", "n;", " 60 ", " 16 "}));
    d.Carica("song");
    EXPECT_TRUE(d.b.riquadri.messaggi.empty());
    EXPECT_EQ(d.b.melodia.voci[soprano].testoDurate, "0.75;");
    EXPECT_NEAR(d.b.pompa.Adesso(), 24 * 0.031, 1e-6);
}

TEST(SuDisco, TheListShowsWhatLiesInTheFolder) {
    BancoSuDisco d;
    Scrivi(d.cartella.Di("b.mel"), "");
    Scrivi(d.cartella.Di("a.mel"), "");
    Scrivi(d.cartella.Di("c.txt"), "");
    std::filesystem::create_directory(d.cartella.Di("folder"));
    d.b.finestra.archivio.mnuApri_Click();
    EXPECT_EQ(d.b.finestra.archivio.List1.List(), (Righe{"» ..", "» folder", "a", "b"}));
    EXPECT_EQ(d.b.finestra.archivio.lblPercorso.Caption().back(), '/');
}

TEST(SuDisco, AFileThatMayNotGrowLeavesTheOldFileAndTheFlag) {
    BancoSuDisco d;
    Scrivi(d.cartella.Di("song.mel"), "old");
    std::string note, durate, attributi;
    for (int i = 0; i < 1000; ++i)
        note += "60;", durate += "1;", attributi += "n;";
    d.b.Voce(soprano, note, durate, attributi);
    d.b.finestra.stato.lblModificato.Visible = true;
    {
        const DiscoPieno pieno(1000);
        d.b.finestra.archivio.SalvaMelodia("song");
    }
    EXPECT_EQ(d.b.riquadri.messaggi, Avvisi{std::to_string(EFBIG) + "\r\n" + ParoleSistema(EFBIG)});
    d.EsceRifiutata("old");
    d.b.finestra.archivio.SalvaMelodia("song");
    EXPECT_EQ(Contenuto(d.cartella.Di("song.mel")).size(), 3 * 1000U + 2 * 2000U + 3 * 2 + 6 + 6);
    EXPECT_FALSE(d.b.finestra.stato.lblModificato.Visible());
}

TEST(SuDisco, ADiskWithoutRoomIsFault61AndLeavesTheOldFileAndTheFlag) {
    BancoSuDisco d;
    Scrivi(d.cartella.Di("song.mel"), "old");
    SalvaCon(ENOSPC, d);
    EXPECT_EQ(d.b.riquadri.messaggi, Avvisi{"61\r\n" + ParoleSistema(ENOSPC)});
    d.EsceRifiutata("old");
}

TEST(SuDisco, ANameThatAFolderHasIsRefusedByTheDiskAndTheFolderStays) {
    BancoSuDisco d;
    std::filesystem::create_directory(d.cartella.Di("song.mel"));
    Scrivi(d.cartella.Di("song.mel/inside"), "kept");
    d.b.Voce(soprano, "60;", "1");
    d.b.finestra.stato.lblModificato.Visible = true;
    d.b.finestra.archivio.SalvaMelodia("song");
    EXPECT_EQ(d.b.riquadri.messaggi,
              Avvisi{std::to_string(EISDIR) + "\r\n" + ParoleSistema(EISDIR)});
    EXPECT_TRUE(d.b.finestra.stato.lblModificato.Visible());
    EXPECT_EQ(Contenuto(d.cartella.Di("song.mel/inside")), "kept");
    EXPECT_EQ(d.cartella.Quanti(), 1);
}

TEST(SuDisco, AFolderThatLetsNothingBeWrittenLeavesTheOldFileAndTheFlag) {
    BancoSuDisco d;
    Scrivi(d.cartella.Di("song.mel"), "old");
    SalvaCon(EACCES, d);
    EXPECT_EQ(d.b.riquadri.messaggi,
              Avvisi{std::to_string(EACCES) + "\r\n" + ParoleSistema(EACCES)});
    d.EsceRifiutata("old");
}

TEST(SuDisco, AFolderThatIsAFileIsNoneAndStopsASaveWithoutAWord) {
    BancoSuDisco d;
    Scrivi(d.cartella.Di("song.mel"), "old");
    d.b.globali.percorsoCorrente = d.cartella.Di("song.mel") + "/";
    d.b.Voce(soprano, "60;", "1");
    d.b.finestra.stato.lblModificato.Visible = true;
    d.b.finestra.archivio.SalvaMelodia("song");
    EXPECT_TRUE(d.b.riquadri.messaggi.empty());
    d.EsceRifiutata("old");
}

TEST(SuDisco, AMissingFileAndAFolderInItsPlaceAreToldByTheSystemsWords) {
    BancoSuDisco d;
    Scrivi(d.cartella.Di("song.mel"), FileDi(dueVoci));
    d.b.finestra.archivio.ListaFD();
    d.b.Scegli("song");
    std::filesystem::remove(d.cartella.Di("song.mel"));
    d.b.finestra.archivio.cmdEseguiFile_Click();
    std::filesystem::create_directory(d.cartella.Di("song.mel"));
    d.b.finestra.archivio.cmdEseguiFile_Click();
    EXPECT_EQ(d.b.riquadri.messaggi,
              (Avvisi{"2\r\n" + ParoleSistema(ENOENT),
                      std::to_string(EISDIR) + "\r\n" + ParoleSistema(EISDIR)}));
}

TEST(SuDisco, APipeIsntListedAndItsNameDoesntKeepTheLoadWaiting) {
    BancoSuDisco d;
    ASSERT_EQ(mkfifo(d.cartella.Di("x.mel").c_str(), 0600), 0);
    d.b.finestra.archivio.ListaFD();
    EXPECT_EQ(d.b.finestra.archivio.List1.List(), Righe{"» .."});
    d.b.finestra.archivio.List1.List = Righe{"x"};
    d.Carica("x");
    d.b.finestra.archivio.List1.List = Righe{"x"};
    d.b.Scegli("x");
    d.b.finestra.archivio.cmdEseguiFile_Click();
    EXPECT_EQ(d.b.riquadri.messaggi,
              Avvisi{std::to_string(EINVAL) + "\r\n" + ParoleSistema(EINVAL)});
}

}  // namespace corvana::prova
