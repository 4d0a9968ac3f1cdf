// Sliders and scroll bars: upright when they are taller than wide. GUI thread.
#pragma once

#include "desktop/view.h"

class QSlider;

namespace corvana {

class VistaBarra final : public Vista {
public:
    VistaBarra(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

protected:
    void Rinfresca(Nome nome) override;

private:
    void PonValori();
    void Collega();

    QSlider* barra_;
    bool mosso_ = false;  ///< the thumb was moved since it was taken
};

}  // namespace corvana
