// Drop-down lists. A choice by the user is a click with the row's number. GUI thread.
#pragma once

#include <functional>

#include "desktop/view.h"

class QComboBox;

namespace corvana {

class VistaCombo final : public Vista {
public:
    VistaCombo(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

    /// To be called each time that its rows drop down; from then on they have the keyboard.
    void PonApertura(std::function<void()> apertura);

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    void PonRighe();
    void PonScelta();

    QComboBox* combo_;
};

}  // namespace corvana
