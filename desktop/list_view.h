// Lists. A selection by the user is a click with the row's number. GUI thread.
#pragma once

#include "desktop/view.h"

class QListWidget;

namespace corvana {

class VistaLista final : public Vista {
public:
    VistaLista(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    void PonRighe();
    void PonScelta();

    QListWidget* lista_;
};

}  // namespace corvana
