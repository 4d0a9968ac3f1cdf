// The mouse over a face: finds the painted control under it and makes its events, but for the
// releases, which are made for the whole window. The control on which a button goes down has the
// mouse until all buttons are up. GUI thread; belongs to the face.
#pragma once

#include <QPointF>

#include "desktop/face_painter.h"
#include "forms/event.h"

class QEvent;
class QMouseEvent;

namespace corvana {

class Faccia;
class VistaDipinta;

class TopoFaccia {
public:
    explicit TopoFaccia(Faccia& faccia) : faccia_(faccia) {}

    /// True for an event of the mouse.
    bool Sente(const QEvent& evento);
    /// The pointer is over something else.
    void Esci();
    /// A control may have become unusable.
    void Controlla();
    /// The pointer's hold on a control.
    Tocco Tatto(const VistaDipinta& vista) const;

private:
    void Premi(const QMouseEvent& mouse);
    void Raddoppia(const QMouseEvent& mouse);
    void Lascia(const QMouseEvent& mouse);
    void Muovi(const QMouseEvent& mouse);
    void Prendi(VistaDipinta* sopra);
    void Libera();
    void Manda(const VistaDipinta& vista, Fatto fatto, const QMouseEvent& mouse) const;
    VistaDipinta& Bersaglio(const QMouseEvent& mouse) const;

    Faccia& faccia_;
    VistaDipinta* sopra_ = nullptr;   ///< under the pointer
    VistaDipinta* presa_ = nullptr;   ///< has the mouse, since a button went down on it
    VistaDipinta* ultima_ = nullptr;  ///< on which a button last went down
    bool dentro_ = false;             ///< the pointer is in what it holds
    bool premuta_ = false;            ///< the left button holds down what feels it
};

}  // namespace corvana
