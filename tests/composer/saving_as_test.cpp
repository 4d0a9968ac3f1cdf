// Saving under a new name.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

struct BancoConNome : BancoComposer {
    int scrittePrima = file.scritture;

    BancoConNome() {
        Voce(soprano, "60;62;", "1");
        finestra.stato.lblModificato.Visible = true;
        melodia.nomeMelodia = finestra.stato.lblNome.Caption = "old";
    }
    /// Asks for the name, to which the user answers so.
    void Rispondi(const std::optional<std::string>& risposta) {
        riquadri.testi = {risposta};
        finestra.archivio.mnuSaveAs_Click();
    }
};

}  // namespace

TEST(SalvaConNome, AsksWithPromptAndTitleAndProposesNothingWithoutAChosenRow) {
    BancoConNome b;
    b.Rispondi("new");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome?"});
    EXPECT_EQ(b.riquadri.titoli, Avvisi{"salva con nome"});
    EXPECT_EQ(b.riquadri.proposte, Avvisi{""});
    EXPECT_EQ(b.melodia.nomeMelodia, "new");
    EXPECT_EQ(b.ContenutoFile("new"), FileDi(soloSoprano));
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "Salvato: new");
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
}

TEST(SalvaConNome, ProposesTheTextOfTheChosenRow) {
    BancoConNome b;
    b.finestra.archivio.Fr2.Visible = true;
    b.PonFile("a song", "");
    b.Rispondi("new");
    EXPECT_EQ(b.riquadri.proposte, Avvisi{"a song"});
}

TEST(SalvaConNome, OnAFolderOffersItsSignAndNameWhichTheTestOfCharactersDoesntCatch) {
    BancoConNome b;
    b.file.cartelle.insert("/programma/Melodie/Demo/mine");
    b.finestra.archivio.mnuApri_Click();
    b.Scegli("» mine");
    b.Rispondi("» mine");
    EXPECT_EQ(b.riquadri.proposte, Avvisi{"» mine"});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome?"});
    EXPECT_EQ(b.ContenutoFile("» mine"), FileDi(soloSoprano));
}

TEST(SalvaConNome, OpensTheListAndAsksNothingWhenTheSopranoIsEmpty) {
    BancoConNome b;
    b.Voce(soprano, "", "1");
    b.Voce(1, "60;", "1");
    b.Rispondi("new");
    EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.melodia.nomeMelodia, "old");
}

TEST(SalvaConNome, TheEntriesOfBothMenusDoTheSame) {
    for (const char* voce : {"mnuSaveAs", "mnuSaveAsCont"}) {
        BancoConNome b;
        b.riquadri.testi = {"new"};
        b.Subito(Fatto::Click, voce);
        EXPECT_TRUE(b.finestra.archivio.Fr2.Visible());
        EXPECT_EQ(b.ContenutoFile("new"), FileDi(soloSoprano));
    }
}

TEST(SalvaConNome, TakesOuterBlanksOffAndLeavesInnerOnesAndQuotes) {
    BancoConNome b;
    b.Rispondi("  my \"new\" song ");
    EXPECT_EQ(b.melodia.nomeMelodia, "my \"new\" song");
    EXPECT_EQ(b.ContenutoFile("my \"new\" song"), FileDi(soloSoprano));
}

TEST(SalvaConNome, ARefusedNameGivesTheOldOneBackWhenANameIsShown) {
    for (const char* segno : {",", ".", "-", ";", ":", "|", "\\", "/", "!", "%", "&", "(",
                              ")", "=", "'", "^", "+", "*", "°",  "§", "<", ">", "?"}) {
        BancoConNome b;
        b.Rispondi(std::string("a") + segno + "b");
        EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome?", "nome errato"})) << segno;
        EXPECT_EQ(b.melodia.nomeMelodia, "old") << segno;
        EXPECT_EQ(b.file.scritture, b.scrittePrima) << segno;
        EXPECT_TRUE(b.finestra.stato.lblModificato.Visible()) << segno;
    }
}

TEST(SalvaConNome, ARefusedNameLeavesNoneWhenLblNomeIsBlank) {
    for (const char* mostrato : {"", "   "}) {
        BancoConNome b;
        b.finestra.stato.lblNome.Caption = mostrato;
        b.Rispondi("a?");
        EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome?", "nome errato"}));
        EXPECT_EQ(b.melodia.nomeMelodia, "");
        EXPECT_EQ(b.finestra.stato.lblNome.Caption(), mostrato);
    }
}

TEST(SalvaConNome, ACancelledBoxSavesNothingAndLeavesTheMelodyWithoutAName) {
    for (const std::optional<std::string>& risposta :
         {std::optional<std::string>(), std::optional<std::string>("  ")}) {
        BancoConNome b;
        b.Rispondi(risposta);
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome?"});
        EXPECT_EQ(b.melodia.nomeMelodia, "");
        EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "old");
        EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
        EXPECT_EQ(b.file.scritture, b.scrittePrima);
    }
}

TEST(SalvaConNome, ACancelledBoxIsNoYesToTheNameThatItProposed) {
    BancoConNome b;
    b.finestra.archivio.Fr2.Visible = true;
    b.PonFile("a song", "another");
    b.riquadri.risposte = {true};
    b.Rispondi(std::nullopt);
    EXPECT_EQ(b.riquadri.proposte, Avvisi{"a song"});
    EXPECT_EQ(b.melodia.nomeMelodia, "");
    EXPECT_EQ(b.ContenutoFile("a song"), "another");
}

TEST(SalvaConNome, ANoToReplacingAMelodyWritesNothingAndTheNewNameStaysInForce) {
    BancoConNome b;
    b.PonFile("new", "another");
    b.riquadri.risposte = {false};
    b.Rispondi("new");
    EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome?", "esiste new\r\nsostituire?"}));
    EXPECT_EQ(b.ContenutoFile("new"), "another");
    EXPECT_EQ(b.melodia.nomeMelodia, "new");
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "old");
    EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
}

TEST(SalvaConNome, AYesToReplacingAMelodyReplacesIt) {
    BancoConNome b;
    b.PonFile("new", "another");
    b.riquadri.risposte = {true};
    b.Rispondi("new");
    EXPECT_EQ(b.ContenutoFile("new"), FileDi(soloSoprano));
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
}

TEST(SalvaConNome, AFailedSaveKeepsTheNewNameAndTheFlag) {
    BancoConNome b;
    b.file.erroreScrivi = ENOSPC;
    b.Rispondi("new");
    EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome?", "61\r\n" + ParoleSistema(ENOSPC)}));
    EXPECT_EQ(b.melodia.nomeMelodia, "new");
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "old");
    EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
}

}  // namespace corvana::prova
