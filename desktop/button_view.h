// Push buttons and check boxes. GUI thread.
#pragma once

#include "desktop/view.h"

class QAbstractButton;

namespace corvana {

class VistaBottone final : public Vista {
public:
    VistaBottone(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

protected:
    void Rinfresca(Nome nome) override;

private:
    QAbstractButton* bottone_;
};

class VistaSpunta final : public Vista {
public:
    VistaSpunta(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    QAbstractButton* spunta_;
};

}  // namespace corvana
