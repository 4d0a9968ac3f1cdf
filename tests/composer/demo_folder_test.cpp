// The demonstration melodies in the user's own folder.
#include <gtest/gtest.h>

#include "composer/composer.h"
#include "tests/composer/mel_lines.h"
#include "tests/support/open_window.h"
#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

const std::string propria = "/programma/Melodie/Demo/";
const std::string utente = "/home/u/Doc/Corvana/Melodie/Demo/";
const std::string provvisoria = "/home/u/Doc/Corvana/Melodie/Demo.nuova/";

using Contenuti = std::map<std::string, std::string>;

/// A program with two melodies, and the user's folder of documents, which isn't there yet.
struct BancoCartellaDemo : Banco {
    BancoCartellaDemo() {
        globali.CartellaDocumenti = "/home/u/Doc/";
        file.cartelle = {"/programma", "/programma/Melodie", "/programma/Melodie/Demo"};
        file.contenuti[propria + "a.mel"] = "A";
        file.contenuti[propria + "b.mel"] = "B";
        file.contenuti[propria + "readme.txt"] = "no melody";
    }
    /// Opens the window and closes it; what stands between is the current folder.
    std::string Apri() {
        suono.ApriMidi(-1);
        frmComposer finestra{Tutto(), {[] { return ""; }, [] { return ""; }, {}}};
        ApriSenzaCiclo(finestre, pompa, coda, finestra);
        const std::string cartella = globali.percorsoCorrente;
        if (poi) poi(finestra);
        finestre.Scarica(finestra);
        return cartella;
    }
    /// The same, with a click on the button for them; what stands then is the current folder.
    std::string ApriEChiedi() {
        std::string cartella;
        poi = [&](frmComposer& finestra) {
            finestra.archivio.mnuApri_Click();
            finestra.archivio.cmdD_Click();
            cartella = globali.percorsoCorrente;
            righe = finestra.archivio.List1.List();
            radice = finestra.archivio.cmbDrive.Text();
        };
        Apri();
        poi = {};
        return cartella;
    }
    Contenuti In(const std::string& cartella) const {
        Contenuti in;
        for (const auto& [nome, byte] : file.contenuti)
            if (nome.starts_with(cartella)) in[nome.substr(cartella.size())] = byte;
        return in;
    }
    /// Nothing was made in the user's documents.
    void EsceSenzaResti() const {
        EXPECT_EQ(In("/home/u/Doc/Corvana"), Contenuti{});
        for (const std::string& cartella : file.cartelle)
            EXPECT_FALSE(cartella.starts_with("/home/u/Doc/Corvana")) << cartella;
        EXPECT_TRUE(riquadri.messaggi.empty());
    }

    std::function<void(frmComposer&)> poi;
    Righe righe;
    std::string radice;
};

const Contenuti deposte = {{"a.mel", "A"}, {"b.mel", "B"}};

}  // namespace

TEST(CartellaDemo, AreLaidAtTheFirstOpeningAndTheComposerBeginsThere) {
    BancoCartellaDemo b;
    EXPECT_EQ(b.Apri(), utente);
    EXPECT_EQ(b.In(utente), deposte);
    EXPECT_FALSE(b.file.EsisteCartella(provvisoria));
    EXPECT_EQ(b.impostazioni.LeggiValore("LastDir"), utente);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CartellaDemo, WhatTheUserChangedOrDeletedIsNeverTouchedAgain) {
    BancoCartellaDemo b;
    b.Apri();
    b.file.contenuti[utente + "a.mel"] = "mine";
    b.file.contenuti.erase(utente + "b.mel");
    b.file.contenuti[utente + "c.mel"] = "C";
    for (int volta = 0; volta < 3; ++volta)
        EXPECT_EQ(b.ApriEChiedi(), utente);
    EXPECT_EQ(b.In(utente), (Contenuti{{"a.mel", "mine"}, {"c.mel", "C"}}));
}

TEST(CartellaDemo, AFolderThatTheUserDeletedIsntLaidAgainAtAnOpening) {
    BancoCartellaDemo b;
    b.Apri();
    b.file.contenuti = {
        {Banco::percorsoImpostazioni, b.file.contenuti[Banco::percorsoImpostazioni]},
        {propria + "a.mel", "A"}};
    b.file.cartelle = {"/programma/Melodie/Demo", "/home/u/Doc"};
    b.impostazioni.ScriviValore("LastDir", "");
    EXPECT_EQ(b.Apri(), propria);
    b.EsceSenzaResti();
}

TEST(CartellaDemo, AFolderThatWasThereBeforeIsTheUsersAndIsLeftAlone) {
    BancoCartellaDemo b;
    b.file.CreaCartella(utente);
    b.file.contenuti[utente + "mine.mel"] = "mine";
    EXPECT_EQ(b.Apri(), utente);
    EXPECT_EQ(b.In(utente), (Contenuti{{"mine.mel", "mine"}}));
    // Nor is it laid when it goes.
    b.file.contenuti.erase(utente + "mine.mel");
    b.file.EliminaCartella(utente);
    b.Apri();
    EXPECT_FALSE(b.file.EsisteCartella(utente));
}

TEST(CartellaDemo, TheButtonGoesToThemAndLaysThemAgainWhereTheFolderIsEmptyOrGone) {
    for (const bool via : {false, true}) {
        BancoCartellaDemo b;
        b.file.cartelle.insert("/home/u/Doc");
        b.Apri();
        b.file.contenuti.erase(utente + "a.mel");
        b.file.contenuti.erase(utente + "b.mel");
        if (via) b.file.EliminaCartella(utente);
        b.impostazioni.ScriviValore("LastDir", "/programma/");
        EXPECT_EQ(b.ApriEChiedi(), utente) << via;
        EXPECT_EQ(b.In(utente), deposte) << via;
        EXPECT_EQ(b.righe, (Righe{"» ..", "a", "b"}));
        EXPECT_EQ(b.radice, "/home/u/Doc/");
    }
}

TEST(CartellaDemo, AFolderThatHoldsAnythingElseIsntEmpty) {
    BancoCartellaDemo b;
    b.Apri();
    b.file.contenuti.erase(utente + "a.mel");
    b.file.contenuti.erase(utente + "b.mel");
    b.file.contenuti[utente + "notes.txt"] = "mine";
    EXPECT_EQ(b.ApriEChiedi(), utente);
    EXPECT_EQ(b.In(utente), (Contenuti{{"notes.txt", "mine"}}));
}

TEST(CartellaDemo, TheButtonDuringAPlayLeadsNowhere) {
    BancoCartellaDemo b;
    std::string dopo;
    b.impostazioni.ScriviValore("LastDir", "/programma/");
    b.poi = [&](frmComposer& finestra) {
        finestra.stato.inEsecuzione = true;
        finestra.archivio.cmdD_Click();
        dopo = b.globali.percorsoCorrente;
        finestra.stato.inEsecuzione = false;
    };
    b.Apri();
    EXPECT_EQ(dopo, "/programma/");
}

TEST(CartellaDemo, TheProgramsOwnFolderAsTheLastOneMeansTheUsers) {
    for (const char* ultima : {"/programma/Melodie/Demo/", "/programma/Melodie/Demo", ""}) {
        BancoCartellaDemo b;
        b.impostazioni.ScriviValore("LastDir", ultima);
        EXPECT_EQ(b.Apri(), utente) << ultima;
    }
}

TEST(CartellaDemo, AnotherLastFolderStaysAndTheyAreLaidAllTheSame) {
    BancoCartellaDemo b;
    b.impostazioni.ScriviValore("LastDir", "/music");
    EXPECT_EQ(b.Apri(), "/music/");
    EXPECT_EQ(b.In(utente), deposte);
}

TEST(CartellaDemo, WithoutAFolderOfDocumentsTheProgramsOwnServes) {
    BancoCartellaDemo b;
    b.globali.CartellaDocumenti = "";
    EXPECT_EQ(b.Apri(), propria);
    EXPECT_EQ(b.ApriEChiedi(), propria);
    EXPECT_EQ(b.In("/Corvana"), Contenuti{});
    EXPECT_EQ(b.In("Corvana"), Contenuti{});
}

TEST(CartellaDemo, WhereNothingCanBeWrittenTheProgramsOwnServesWithoutAWord) {
    for (const int errore : {EROFS, EACCES, ENOSPC, EIO}) {
        BancoCartellaDemo b;
        b.file.erroreScrivi = errore;
        EXPECT_EQ(b.Apri(), propria);
        EXPECT_EQ(b.ApriEChiedi(), propria);
        b.EsceSenzaResti();
    }
}

TEST(CartellaDemo, ADiskThatFillsUpHalfWayLeavesNothingAndTheyAreLaidTheNextTime) {
    BancoCartellaDemo b;
    b.file.guasti[provvisoria + "b.mel"] = ENOSPC;
    EXPECT_EQ(b.Apri(), propria);
    b.EsceSenzaResti();
    b.file.guasti.clear();
    EXPECT_EQ(b.Apri(), utente);
    EXPECT_EQ(b.In(utente), deposte);
}

TEST(CartellaDemo, AMelodyThatCantBeReadAndAFolderThatCantBeMadeLeaveNoHalfFolder) {
    for (const std::string& dove : {propria + "b.mel", provvisoria}) {
        BancoCartellaDemo b;
        b.file.guasti[dove] = EACCES;
        EXPECT_EQ(b.Apri(), propria);
        b.EsceSenzaResti();
    }
}

TEST(CartellaDemo, WhatAnInterruptionLeftBesideItsPlaceDoesntComeAlong) {
    BancoCartellaDemo b;
    b.file.CreaCartella(provvisoria);
    b.file.contenuti[provvisoria + "a.mel"] = "hal";
    b.file.contenuti[provvisoria + "old.mel.nuovo"] = "x";
    EXPECT_EQ(b.Apri(), utente);
    EXPECT_EQ(b.In(utente), deposte);
    EXPECT_EQ(b.In(provvisoria), Contenuti{});
}

TEST(CartellaDemo, AFolderThatCantTakeItsPlaceIsTakenAway) {
    BancoCartellaDemo b;
    b.file.CreaCartella("/home/u/Doc/Corvana/Melodie");
    b.file.contenuti["/home/u/Doc/Corvana/Melodie/Demo"] = "a file";
    EXPECT_EQ(b.Apri(), propria);
    EXPECT_EQ(b.In("/home/u/Doc/Corvana/Melodie/"), (Contenuti{{"Demo", "a file"}}));
    EXPECT_FALSE(b.file.EsisteCartella(provvisoria));
    EXPECT_TRUE(b.file.EsisteCartella("/home/u/Doc/Corvana/Melodie"));
}

TEST(CartellaDemo, AProgramWithoutAnyLaysNone) {
    BancoCartellaDemo b;
    b.file.contenuti.erase(propria + "a.mel");
    b.file.contenuti.erase(propria + "b.mel");
    EXPECT_EQ(b.Apri(), propria);
    b.EsceSenzaResti();
}

}  // namespace corvana::prova
