// The list of the 128 instruments, for whoever opens it: what a choice changes is the caller's.
// The melody window's voices are chosen from, and its melody is played, in instruments_voices.cpp.
// Logic thread.
#pragma once

#include <array>
#include <functional>

#include "core/globals.h"
#include "core/hover.h"
#include "forms/form.h"
#include "utilities/composer_voices.h"

namespace corvana {

/// What a choice changes beyond the main window's instrument.
struct ChiamanteStrum {
    std::function<void()> SaveLastIntoSup = {};  ///< stores the ear trainer's state; may be empty
    VociComposer* composer = nullptr;            ///< null when it isn't open
};

class frmStrum final : public Form {
public:
    explicit frmStrum(const Ambiente& ambiente, ChiamanteStrum chiamante = {});

    Etichetta lblTitolo{*this, "lblTitolo"};
    Lista List1{*this, "List1"};
    /// Only for the melody window.
    Cornice frmVoci{*this, "frmVoci"};
    Figura bgVoci{*this, "bgVoci", &frmVoci};
    std::array<Etichetta, 4> VoceAttiva{{{*this, "VoceAttiva0", &frmVoci},
                                         {*this, "VoceAttiva1", &frmVoci},
                                         {*this, "VoceAttiva2", &frmVoci},
                                         {*this, "VoceAttiva3", &frmVoci}}};
    Etichetta lblVoceAttiva{*this, "lblVoceAttiva", &frmVoci};
    Figura cmdPlaybg{*this, "cmdPlaybg", &frmVoci};
    Etichetta cmdPlaySstru{*this, "cmdPlaySstru", &frmVoci};
    Figura cmdTest{*this, "cmdTest"};
    Figura cmdEscibg{*this, "cmdEscibg"};
    Etichetta cmdEsci{*this, "cmdEsci"};

    void Form_Load() override;
    void Form_KeyDown(const Evento& tasto) override;
    void Form_MouseDown(int Button);
    void Form_Unload(bool& Cancel) override;

    void List1_Click();
    void cmdEsci_Click();
    void cmdTest_Click();
    void VoceAttiva_Click(int Index);
    void cmdPlaySstru_Click();
    /// What was played from here has ended.
    void PlayFinito();

private:
    void Colloca();
    void CollegaVoci();
    void CaricaVoci();
    void ScegliStrumento(std::int32_t programma);
    void ColoraVoci(std::size_t scelta);
    bool PerUnaVoce() const { return a_.globali.ComposerAperto && chiamante_.composer; }
    std::size_t IndiceVoce() const;
    bool InPlay() const;

    Ambiente a_;
    ChiamanteStrum chiamante_;
    HoverFinestra hover_;
};

}  // namespace corvana
