// The melody window with its list open on a folder: three folders, one of them empty, and a melody.
#pragma once

#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

/// What can be wrong with a disk, and how the box that tells of it begins.
inline const std::vector<std::pair<int, std::string>> guastiDisco = {
    {EACCES, "13\r\n"}, {EROFS, "30\r\n"}, {ENOSPC, "61\r\n"},       {EDQUOT, "61\r\n"},
    {EIO, "71\r\n"},    {ENOENT, "2\r\n"}, {ENAMETOOLONG, "36\r\n"}, {EPERM, "1\r\n"}};

struct BancoFile : BancoComposer {
    BancoFile() {
        TestiLingua& testi = globali.testi;
        testi.titNuovaCartella = "nuova cartella";
        testi.prmNomeCartella = "nome cartella?";
        testi.msgNomeCartellaErrato = "cartella errata";
        testi.msgCartellaEsiste = "cartella esiste ";
        testi.titRinominaMelodia = "rinomina";
        testi.prmNuovoNome = "nuovo nome?";
        testi.msgNuovoNomeErrato = "nuovo errato";
        testi.msgNuovoNomeEsiste = "melodia esiste ";
        testi.msgEliminaCartella = "elimina cartella ";
        testi.msgEliminaMelodia = "elimina melodia ";
        testi.msgCartellaNonVuota = "non vuota";
        file.cartelle = {"/m", "/m/full", "/m/void", "/m/a.b"};
        file.contenuti["/m/song.mel"] = "old";
        file.contenuti["/m/full/x.mel"] = "";
        globali.percorsoCorrente = "/m/";
        finestra.archivio.mnuApri_Click();
    }
    const Righe& Elenco() const { return finestra.archivio.List1.List(); }
    /// Clicks what asks for a name, to which the user answers so.
    void Rispondi(const std::optional<std::string>& risposta, const std::string& bottone) {
        riquadri.testi = {risposta};
        Subito(Fatto::Click, bottone);
    }
    /// Chooses the row and clicks the button, whose question is answered so.
    void Elimina(const std::string& riga, bool si) {
        Scegli(riga);
        riquadri.risposte = {si};
        finestra.inserimento.cmdInsNota.SetFocus();
        Subito(Fatto::Click, "cmdDelete");
    }
    std::string ColFuoco() const { return specchio.fuochi.empty() ? "" : specchio.fuochi.back(); }
    /// The folders and the melody are there, and the list shows what it showed.
    void EsceComEra() const {
        EXPECT_EQ(file.cartelle.count("/m/void") + file.cartelle.count("/m/full"), 2U);
        EXPECT_EQ(file.contenuti.count("/m/song.mel") + file.contenuti.count("/m/aria.mel"), 1U);
        EXPECT_EQ(Elenco(), (Righe{"» ..", "» a.b", "» full", "» void", "song"}));
    }
};

}  // namespace corvana::prova
