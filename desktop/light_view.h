// The lights of the metronome: controls of the style "luce". They have no widgets of their own: one
// layer over what they lie in paints them all, so that a lit one shines beyond its box. GUI thread.
#pragma once

#include <QRectF>
#include <QWidget>
#include <vector>

#include "desktop/view.h"

namespace corvana {

class VistaLuce;

/// Lets the mouse through, and is no stop of the Tab key.
class Luci final : public QWidget {
public:
    /// The layer of that container, which is made when there is none.
    static Luci& In(QWidget& contenitore);

    void Iscrivi(const VistaLuce& luce) { luci_.push_back(&luce); }
    /// The light there is to be painted anew.
    void Sporca(const VistaLuce& luce);
    /// Lies over all its lights and what they shed.
    void Adatta();

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    explicit Luci(QWidget& contenitore);
    QRectF Area(const VistaLuce& luce) const;

    std::vector<const VistaLuce*> luci_;
};

class VistaLuce final : public Vista {
public:
    VistaLuce(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

protected:
    void Rinfresca(Nome nome) override;
    void Riscala() override;

private:
    Luci& luci_;
};

}  // namespace corvana
