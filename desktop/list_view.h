// Lists. A selection by the user is a click with the row's number and, where several rows can be
// selected, all that are. GUI thread.
#pragma once

#include "desktop/view.h"

namespace corvana {

class Elenco;

class VistaLista final : public Vista {
public:
    VistaLista(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    Elenco* NuovoElenco(QWidget& padre);
    void Scelta(int riga);
    void PonRighe();
    void PonScelta();

    Elenco* lista_;
};

}  // namespace corvana
