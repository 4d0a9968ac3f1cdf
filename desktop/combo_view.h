// Drop-down lists. A choice by the user is a click with the row's number. GUI thread.
#pragma once

#include <functional>

#include "desktop/view.h"

class QComboBox;

namespace corvana {

class VistaCombo final : public Vista {
public:
    VistaCombo(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

    void PonApertura(const std::function<void()>& apertura) override;

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    void PonRighe();
    void PonScelta();

    QComboBox* combo_;
};

}  // namespace corvana
