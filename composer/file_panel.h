// The list of folders and melodies, and all that stores melodies or fetches them: file_panel.cpp
// lists and opens, file_commands.cpp makes, renames and deletes, saving.cpp saves into the current
// folder, under a new name and onto a removable medium. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "composer/demo_melodies.h"
#include "core/globals.h"
#include "forms/fault.h"

namespace corvana {

struct VicineFile {
    std::function<std::string()> byte;  ///< the melody as its file; throws `Guasto`
    std::function<void(const std::string& nome)> carica;  ///< loads a melody and plays it
    std::function<void()> fuocoPlay;
};

class PannelloFile {
public:
    /// All must live as long as the panel.
    PannelloFile(const Ambiente& ambiente, Form& finestra, StatoComposer& stato, VicineFile vicine);

private:
    Form& finestra_;

public:
    Cornice Fr2{finestra_, "Fr2"};
    Combo cmbDrive{finestra_, "cmbDrive", &Fr2};  ///< the roots that there are
    Bottone cmdD{finestra_, "cmdD", &Fr2};        ///< goes to the demonstration melodies
    Etichetta lblPercorso{finestra_, "lblPercorso", &Fr2};
    Lista List1{finestra_, "List1", &Fr2};
    Bottone cmdEseguiFile{finestra_, "cmdEseguiFile", &Fr2};
    Bottone cmdRename{finestra_, "cmdRename", &Fr2};
    Bottone cmdDelete{finestra_, "cmdDelete", &Fr2};
    Bottone cmdMkdir{finestra_, "cmdMkdir", &Fr2};
    Bottone cmdChiudi{finestra_, "cmdChiudi", &Fr2};

    bool riempiDrive = false;  ///< `cmbDrive` is being filled: what is chosen in it leads nowhere

    /// The current folder is that of the last time, or that of the demonstration melodies, at the
    /// window's load.
    void Carica();
    /// Keeps the current folder for the next time.
    void Ricorda();

    void mnuApri_Click();
    void cmdChiudi_Click();
    /// Neither refreshes anything during a play: the rows and the current folder belong together.
    void ListaD();
    void ListaFD();
    void cmdD_Click();
    void cmbDrive_Click();
    /// Opens the chosen row: a folder is entered, a melody loaded and played.
    void cmdEseguiFile_Click();
    void List1_DblClick();

    void cmdMkdir_Click();
    void cmdDelete_Click();
    void cmdRename_Click();
    /// True when there is neither a folder nor a melody in it; other files don't count.
    void CartellaVuota(const std::string& percorso, bool& vuota) const;

    /// Writes the melody into the current folder, replacing a file of that name.
    void SalvaMelodia(const std::string& nome);
    void mnuSalva_Click();
    void mnuSaveAs_Click();
    void mnuSalvaA_Click();

    /// The file in the current folder that has the name, or that is to get it.
    std::string Percorso(const std::string& nome) const;

private:
    Righe Radici() const;
    void MostraRadice();
    bool EliminaCartella(const std::string& nome);
    bool EliminaMelodia(const std::string& nome);
    bool EsisteCartellaDiNome(const std::string& nome) const;
    bool Riuscito(int errore);
    /// The answer without outer blanks; empty when the box was cancelled.
    std::string Chiedi(const std::string& domanda, const std::string& titolo,
                       const std::string& proposta);
    using Scrittura = std::function<void(const std::string& percorso)>;
    void SalvaNuova(const std::string& nome);
    void Salva(const std::string& nome, const Scrittura& scrivi);
    void ScriviIn(const std::string& percorso);
    std::string ChiediNome(const std::string& proposta);
    void ScriviSulSupporto(const std::string& nomeFile);
    void MostraErroreSupporto(const Guasto& guasto);

    Ambiente a_;
    StatoComposer& stato_;
    Melodia& melodia_;
    VicineFile vicine_;
    MelodieDemo demo_;
};

}  // namespace corvana
