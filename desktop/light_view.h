// The lights of the metronome: controls of the style "luce". A lit one shines beyond its box, and
// over its neighbours. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaLuce final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;

    QRect Portata() const override;
    int Strato() const override;
    /// It lets the mouse through, and is no stop of the Tab key.
    bool Colpibile() const override { return false; }
    bool Cliccabile() const override { return false; }
    bool Detta() const override { return false; }
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
