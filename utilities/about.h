// The window that tells what the program is, on a rounded panel. Logic thread.
#pragma once

#include "core/globals.h"
#include "forms/form.h"

namespace corvana {

class frmAbout final : public Form {
public:
    explicit frmAbout(const Ambiente& ambiente);

    Figura frmBg{*this, "frmBg"};
    Etichetta lblTitle{*this, "lblTitle"}, lblVersion{*this, "lblVersion"};
    Casella Text2{*this, "Text2"};
    Bottone cmdOK{*this, "cmdOK"};

    void Form_Load() override;
    void Form_KeyDown(const Evento& tasto) override;
    void cmdOK_Click();

private:
    Ambiente a_;
};

}  // namespace corvana
