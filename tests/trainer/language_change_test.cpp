// Choosing a language, at the start and in the running program.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

struct BancoLingue : BancoPrincipale {
    BancoLingue() {
        file.contenuti["/programma/langit.csv"] =
            "1;CorvanaMainF;Esci\n12;CorvanaMainF;Prima\n28;CorvanaMainF;Esatte: \n"
            "34;CorvanaMainF;Al minuto: \n";
        file.contenuti["/programma/langen.csv"] =
            "1;CorvanaMainF;Exit\n12;CorvanaMainF;First\n28;CorvanaMainF;Right: \n"
            "34;CorvanaMainF;A minute: \n";
    }
    void PonLinguaScelta(const std::string& lingua) {
        impostazioni.ScriviValore("Language", lingua);
    }
    std::string Lingua() { return impostazioni.LeggiValore("Language"); }
    void Vai(double fine) {
        Fine(fine);
        EXPECT_TRUE(Avvia());
    }
};

}  // namespace

TEST(LinguaIniziale, EnglishGivesEnglishTextsAndAngloNames) {
    BancoLingue b;
    b.PonLinguaScelta("en");
    b.Vai(3);
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Exit");
    EXPECT_EQ(b.finestra.risposte.pdo.Caption(), "C");
    EXPECT_TRUE(b.finestra.menu.Nominote2.Checked());
}

TEST(LinguaIniziale, AnyOtherGivesItalianTextsAndIsNotReplaced) {
    for (const char* lingua : {"it", "", "xx"}) {
        BancoLingue b;
        b.PonLinguaScelta(lingua);
        b.Chiudi(3);
        EXPECT_FALSE(b.Avvia());
        EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci") << lingua;
        EXPECT_EQ(b.finestra.risposte.pdo.Caption(), "DO") << lingua;
        EXPECT_TRUE(b.finestra.menu.Nominote1.Checked()) << lingua;
        EXPECT_EQ(b.Lingua(), lingua);
    }
}

TEST(LinguaIniziale, WithoutItsFileTheDesignTextsStayAndNothingIsReported) {
    BancoLingue b;
    b.file.contenuti.erase("/programma/langit.csv");
    b.Vai(3);
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.finestra.intervalli.difficolt.List()[0], "Chiave di Sol: SI - MI");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(LinguaIniziale, AFaultInItsFileIsToldAndTheProgramStarts) {
    BancoLingue b;
    b.file.contenuti["/programma/langit.csv"] = "1;CorvanaMainF;Via\nrotta\n3;CorvanaMainF;x\n";
    b.Vai(3);
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"Error Reading file!!!"});
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Via");
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
}

TEST(CambioLingua, ToEnglishChangesTextsNamesPathsAndTheStoredValue) {
    BancoLingue b;
    b.Clicca(3, "mnuEn");
    b.Vai(4);
    EXPECT_TRUE(b.globali.NomiAnglo);
    EXPECT_EQ(b.globali.PercorsoLingua, "/programma/langen.csv");
    EXPECT_EQ(b.globali.FileAiuto, "/programma/corvanaen.chm");
    EXPECT_EQ(b.Lingua(), "en");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Exit");
    EXPECT_EQ(b.finestra.intervalli.difficolt.List()[0], "First");
    EXPECT_EQ(b.finestra.risposte.pdo.Caption(), "C");
    EXPECT_TRUE(b.finestra.menu.Nominote2.Checked());
    EXPECT_FALSE(b.finestra.menu.Nominote1.Checked());
}

TEST(CambioLingua, AndBackToItalian) {
    BancoLingue b;
    b.PonLinguaScelta("en");
    b.Clicca(3, "mnuIt");
    b.Vai(4);
    EXPECT_FALSE(b.globali.NomiAnglo);
    EXPECT_EQ(b.globali.PercorsoLingua, "/programma/langit.csv");
    EXPECT_EQ(b.globali.FileAiuto, "/programma/corvana.chm");
    EXPECT_EQ(b.Lingua(), "it");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.finestra.risposte.pdo.Caption(), "DO");
}

TEST(CambioLingua, TheNextStartBeginsWithIt) {
    BancoLingue b;
    b.Clicca(3, "mnuEn");
    b.Chiudi(4);
    EXPECT_FALSE(b.Avvia());
    BancoLingue dopo;
    dopo.file.contenuti = b.file.contenuti;
    dopo.Vai(3);
    EXPECT_EQ(dopo.finestra.cmdEsci.Caption(), "Exit");
    EXPECT_TRUE(dopo.globali.NomiAnglo);
}

TEST(CambioLingua, HidesTheResultsWhoseTextsAreOfTheOldOne) {
    BancoLingue b;
    b.Clicca(3, "Start");
    b.Tasto(4, 'H');
    b.Clicca(5, "Start");
    b.Quando(5.5, [&] {
        EXPECT_TRUE(b.punteggio.frmRisultati.Visible());
        EXPECT_EQ(b.punteggio.Lresatte.Caption(), "Esatte: 1");
    });
    b.Clicca(6, "mnuEn");
    b.Vai(7);
    EXPECT_FALSE(b.punteggio.frmRisultati.Visible());
    EXPECT_EQ(b.globali.testi.TxtRisposteEsatte, "Right: ");
}

TEST(CambioLingua, TheSpeedIsShownBehindTheNewText) {
    BancoLingue b;
    b.PonStato("43;53;16;90;a");
    b.Clicca(3, "mnuEn");
    b.Quando(2.9, [&] { EXPECT_EQ(b.finestra.automatico.Velocità.Caption(), "Al minuto: 90"); });
    b.Vai(4);
    EXPECT_EQ(b.finestra.automatico.Velocità.Caption(), "A minute: 90");
}

TEST(CambioLingua, NoteNamesMayBeChosenApartFromIt) {
    BancoLingue b;
    b.Clicca(3, "mnuEn");
    b.Clicca(4, "Nominote1");
    b.Vai(5);
    EXPECT_EQ(b.finestra.risposte.pdo.Caption(), "DO");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Exit");
    EXPECT_EQ(b.Lingua(), "en");
}

TEST(CambioLingua, KeepsTheSelectionOfTheListAndTheLimits) {
    BancoLingue b;
    b.PonStato("18;26;16;30;n");
    b.Clicca(3, "mnuEn");
    b.Vai(4);
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 5);
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 18);
    EXPECT_EQ(b.NoteInVista(), (std::vector<int>{18, 26}));
}

TEST(CambioLingua, WithoutItsFileTheTextsStayAndTheChoiceIsStored) {
    BancoLingue b;
    b.file.contenuti.erase("/programma/langen.csv");
    b.Clicca(3, "mnuEn");
    b.Vai(4);
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.finestra.risposte.pdo.Caption(), "C");
    EXPECT_EQ(b.Lingua(), "en");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CambioLingua, TellsTheDesktopItsWordsAndTheHelpAtTheStartAndAtEachChange) {
    BancoLingue b;
    b.file.contenuti["/programma/langen.csv"] += "384;CorvanaMainF;&Yes\n385;CorvanaMainF;&Not\n";
    b.file.contenuti["/programma/langit.csv"] += "384;CorvanaMainF;S\n385;CorvanaMainF;N\n";
    b.PonLinguaScelta("en");
    b.Clicca(3, "mnuIt");
    b.Vai(4);
    EXPECT_EQ(b.specchio.lingue, (std::vector<std::string>{"&Yes &Not /programma/corvanaen.chm",
                                                           "S N /programma/corvana.chm"}));
}

TEST(CambioLingua, WithoutAFileTheDesktopSpeaksItalian) {
    BancoLingue b;
    b.file.contenuti.erase("/programma/langit.csv");
    b.Vai(3);
    EXPECT_EQ(b.specchio.lingue, (std::vector<std::string>{"&Sì &No /programma/corvana.chm"}));
}

TEST(CambioLingua, TellsTheMetronomesPanel) {
    BancoLingue b;
    b.Clicca(3, "mnuEn");
    b.Vai(4);
    EXPECT_EQ(b.aperte, std::vector<std::string>{"metronomo cambiaLingua"});
}

}  // namespace corvana::prova
