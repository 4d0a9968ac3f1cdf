// The list of the 128 instruments, for whoever opens it: what a choice changes is the caller's.
// Logic thread.
#pragma once

#include <functional>

#include "core/globals.h"
#include "core/hover.h"
#include "forms/form.h"

namespace corvana {

class frmStrum final : public Form {
public:
    /// `SaveLastIntoSup` stores the ear trainer's state; may be empty when that isn't open.
    explicit frmStrum(const Ambiente& ambiente, std::function<void()> SaveLastIntoSup = {});

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

    Ambiente a_;
    std::function<void()> SaveLastIntoSup_;
    HoverFinestra hover_;
};

}  // namespace corvana
