// The list of the 128 instruments, for whoever opens it: what a choice changes is the caller's.
// Logic thread.
#pragma once

#include <functional>

#include "core/globals.h"
#include "core/hover.h"
#include "forms/form.h"

namespace corvana {

/// What a choice changes beyond the main window's instrument. Empty functions stand for windows
/// that aren't open.
struct ChiamanteStrum {
    std::function<void()> SaveLastIntoSup = {};          ///< stores the ear trainer's state
    std::function<void(std::int32_t)> SceltaStrum = {};  ///< gives it to the composer's voice
    std::int32_t strumentoVoce = 0;                      ///< what that voice has
    std::int16_t canaleVoce = 1;                         ///< and the channel that it sounds on
};

class frmStrum final : public Form {
public:
    explicit frmStrum(const Ambiente& ambiente, ChiamanteStrum chiamante = {});

    Etichetta lblTitolo{*this, "lblTitolo"};
    Lista List1{*this, "List1"};
    Figura cmdEscibg{*this, "cmdEscibg"};
    Etichetta cmdEsci{*this, "cmdEsci"};
    Figura cmdTest{*this, "cmdTest"};

    void Form_Load() override;
    void Form_KeyDown(const Evento& tasto) override;
    void Form_MouseDown(int Button);
    void Form_Unload(bool& Cancel) override;

    void List1_Click();
    void cmdEsci_Click();
    void cmdTest_Click();

private:
    void Colloca();
    bool PerUnaVoce() const;
    std::int32_t InVigore() const;

    Ambiente a_;
    ChiamanteStrum chiamante_;
    HoverFinestra hover_;
};

}  // namespace corvana
