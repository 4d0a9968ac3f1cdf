// Saving onto a removable medium.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// A melody with a name and a medium in the machine.
struct BancoSupporto : BancoComposer {
    std::vector<int> puntatori;  ///< the pointer's shape as each box comes up

    BancoSupporto() {
        Voce(soprano, "60;62;", "1");
        finestra.stato.lblModificato.Visible = true;
        melodia.nomeMelodia = "song";
        finestra.stato.lblNome.Caption = "shown";
        file.supportoRimovibile = "/media/stick/";
        riquadri.durante = [this](const std::string&) {
            puntatori.push_back(finestra.MousePointer());
        };
    }
    std::string SulSupporto(const std::string& nome) const {
        const auto trovato = file.contenuti.find("/media/stick/" + nome);
        return trovato == file.contenuti.end() ? "no such file" : trovato->second;
    }
    bool Modificata() const { return finestra.stato.lblModificato.Visible(); }
    /// The one box was this, with the normal pointer back, and the flag stayed.
    void EsceErrore(const std::string& box) const {
        EXPECT_EQ(riquadri.messaggi, Avvisi{box});
        EXPECT_EQ(puntatori, std::vector<int>{puntatoreNormale});
        EXPECT_EQ(finestra.MousePointer(), puntatoreNormale);
        EXPECT_TRUE(Modificata());
        EXPECT_EQ(melodia.nomeMelodia, "song");
    }
};

}  // namespace

TEST(SalvaSuSupporto, WritesTheMelodyToTheMediumAndSaysSo) {
    BancoSupporto b;
    b.Subito(Fatto::Click, "mnuSalvaA");
    EXPECT_EQ(b.SulSupporto("song.mel"), FileDi(soloSoprano));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"song.mel\r\nsalvata"});
    EXPECT_FALSE(b.Modificata());
}

TEST(SalvaSuSupporto, TheEntryOfTheContextMenuDoesTheSame) {
    BancoSupporto b;
    b.Subito(Fatto::Click, "mnucSalvaA");
    EXPECT_EQ(b.SulSupporto("song.mel"), FileDi(soloSoprano));
}

TEST(SalvaSuSupporto, ChangesNeitherTheShownNameNorTheList) {
    BancoSupporto b;
    b.finestra.archivio.ListaFD();
    b.globali.percorsoCorrente = "/media/stick/";
    b.finestra.archivio.mnuSalvaA_Click();
    EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "shown");
    EXPECT_EQ(b.finestra.archivio.List1.List(), Righe{"» .."});
    EXPECT_EQ(b.melodia.nomeMelodia, "song");
}

TEST(SalvaSuSupporto, ThePointerWaitsWhileItWritesAndIsBackBeforeTheMessage) {
    BancoSupporto b;
    b.specchio.registra = true;
    b.finestra.archivio.mnuSalvaA_Click();
    std::vector<Valore> forme;
    for (const auto& cambio : b.specchio.cambi)
        if (cambio.nome == &Valori::MousePointer) forme.push_back(cambio.valore);
    EXPECT_EQ(forme, (std::vector<Valore>{11, 0}));
    EXPECT_EQ(b.puntatori, std::vector<int>{0});
}

TEST(SalvaSuSupporto, AnEmptySopranoStopsItWithoutAWord) {
    BancoSupporto b;
    b.Voce(soprano, "", "1");
    b.Voce(1, "60;", "1");
    b.finestra.archivio.mnuSalvaA_Click();
    EXPECT_EQ(b.SulSupporto("song.mel"), "no such file");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(SalvaSuSupporto, WithoutANameAsksForOneAndProposesNone) {
    BancoSupporto b;
    b.melodia.nomeMelodia.clear();
    b.PonFile("chosen", "");
    b.riquadri.testi = {" mine "};
    b.finestra.archivio.mnuSalvaA_Click();
    EXPECT_EQ(b.riquadri.messaggi, (Avvisi{"nome?", "mine.mel\r\nsalvata"}));
    EXPECT_EQ(b.riquadri.titoli, Avvisi{"salva con nome"});
    EXPECT_EQ(b.riquadri.proposte, Avvisi{""});
    EXPECT_EQ(b.SulSupporto("mine.mel"), FileDi(soloSoprano));
    EXPECT_EQ(b.melodia.nomeMelodia, "mine");
}

TEST(SalvaSuSupporto, ACancelledOrBlankNameStopsItWithoutAWord) {
    for (const std::optional<std::string>& risposta :
         {std::optional<std::string>(), std::optional<std::string>("  ")}) {
        BancoSupporto b;
        b.melodia.nomeMelodia.clear();
        b.riquadri.testi = {risposta};
        b.finestra.archivio.mnuSalvaA_Click();
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome?"});
        EXPECT_EQ(b.melodia.nomeMelodia, "");
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(SalvaSuSupporto, ARefusedNameIsForgottenWhateverNameIsShown) {
    for (const char* nome : {"a?", "a.b", "1÷2§"}) {
        BancoSupporto b;
        b.melodia.nomeMelodia = nome;
        b.finestra.archivio.mnuSalvaA_Click();
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"nome errato"});
        EXPECT_EQ(b.melodia.nomeMelodia, "");
        EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "shown");
        EXPECT_TRUE(b.Modificata());
    }
}

TEST(SalvaSuSupporto, ReplacesAFileOfThatNameWithoutAQuestion) {
    BancoSupporto b;
    b.file.contenuti["/media/stick/song.mel"] = "old";
    b.finestra.archivio.mnuSalvaA_Click();
    EXPECT_EQ(b.SulSupporto("song.mel"), FileDi(soloSoprano));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"song.mel\r\nsalvata"});
}

TEST(SalvaSuSupporto, AFullDiskIsFault61InTheLanguagesWords) {
    for (const int errore : {ENOSPC, EDQUOT}) {
        BancoSupporto b;
        b.file.contenuti["/media/stick/song.mel"] = "old";
        b.file.erroreScrivi = errore;
        b.finestra.archivio.mnuSalvaA_Click();
        b.EsceErrore("Errore: 61\r\n\r\ndisco pieno");
        EXPECT_EQ(b.SulSupporto("song.mel"), "old");
    }
}

TEST(SalvaSuSupporto, ADiskThatIsntReadyIsFault71InTheLanguagesWords) {
    for (const int errore : {ENODEV, ENXIO, ENOMEDIUM, EIO}) {
        BancoSupporto b;
        b.file.erroreScrivi = errore;
        b.finestra.archivio.mnuSalvaA_Click();
        b.EsceErrore("Errore: 71\r\n\r\ndisco non pronto");
    }
}

TEST(SalvaSuSupporto, NoMediumInTheMachineIsADiskThatIsntReady) {
    BancoSupporto b;
    b.file.supportoRimovibile.clear();
    b.finestra.archivio.mnuSalvaA_Click();
    b.EsceErrore("Errore: 71\r\n\r\ndisco non pronto");
    EXPECT_FALSE(b.file.contenuti.contains("song.mel"));
}

TEST(SalvaSuSupporto, AnyOtherFaultIsToldInItsOwnWords) {
    BancoSupporto b;
    b.file.erroreScrivi = EACCES;
    b.finestra.archivio.mnuSalvaA_Click();
    b.EsceErrore("Errore: 13\r\n\r\n" + ParoleSistema(EACCES));
}

TEST(SalvaSuSupporto, ACharacterThatTheCodePageDoesntHaveIsAFaultToo) {
    BancoSupporto b;
    b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 2 ÷Tutta", "1 ÷ 2 ÷ 日"};
    b.finestra.archivio.mnuSalvaA_Click();
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_TRUE(b.riquadri.messaggi[0].starts_with("Errore: 5\r\n\r\n")) << b.riquadri.messaggi[0];
    b.EsceErrore(b.riquadri.messaggi[0]);
}

}  // namespace corvana::prova
