// Text boxes: the filter and the limit work at the keystroke. One has lost the focus when another
// control of its window has it; an open menu, another window or another program only borrow it.
// GUI thread.
#pragma once

#include "desktop/view.h"

class QLineEdit;

namespace corvana {

/// The typed text as the filter leaves it; all of it without a filter. Pure.
QString Filtrato(const QString& battuto, char32_t (*filtro)(char32_t));

class VistaCasella final : public Vista {
public:
    VistaCasella(const CopiaControllo& copia, Mittente mittente, QWidget& padre);
    /// What can only be read is one for those alone who don't see it.
    bool Fermata() const override;
    /// The name with the text.
    QString Lettura() const override;

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    void Collega();
    void SegnaFuoco(const QWidget* preso);
    void PonTesto();
    void PonBlocco();
    void PonColori();

    QLineEdit* casella_;
    bool scrive_ = false;  ///< it has the focus, as far as the logic knows
};

}  // namespace corvana
