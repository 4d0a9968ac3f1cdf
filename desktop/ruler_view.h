// The ruler beside the staves. The mouse marks the band under it; from the keyboard the arrows
// choose a band and the space bar marks it. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaRegolo final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;

    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
    bool Fermata() const override { return true; }
    /// With the place that the keyboard would mark.
    QString Lettura() const override;
    bool Azionabile() const override { return false; }
    bool SenteIlPuntatore() const override { return true; }
    void Sorvola(const QPointF& dove) override;
    void Lasciata() override { Indica(0); }
    bool PremiTasto(const QKeyEvent& tasto) override;
    bool UsaFrecce() const override { return true; }

private:
    void Indica(int posizione);
    void Sposta(int passi);
    void Segna() const;

    int sotto_ = 0;    ///< position under the pointer
    int scelta_ = 46;  ///< position that the keyboard would mark: at first the lowest treble line
};

}  // namespace corvana
