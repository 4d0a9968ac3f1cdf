// The faces that are painted as a whole: labels, pictures, frames, and the ground of a window. One
// that does something when it is clicked is a button to the keyboard and to a screen reader.
// GUI thread.
#pragma once

#include "desktop/face_painter.h"
#include "desktop/view.h"

namespace corvana {

class VistaDipinta : public Vista {
public:
    VistaDipinta(const CopiaControllo& copia, Mittente mittente, QWidget& padre);

    /// In the widget's own pixels.
    virtual void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco);

protected:
    void Rinfresca(Nome nome) override;

private:
    QWidget& CreaWidget(QWidget& padre);
    bool Cliccabile() const;
};

/// A text of several lines that is only to be read: style "spiegazione" of a text box.
class VistaSpiegazione final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

protected:
    void Rinfresca(Nome nome) override;
};

/// Words between dashes, each in its own column: style "colonne"; with "tasti" each looks like a
/// key.
class VistaColonne final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

/// A picture of the program's own set: style "icona:" and its name.
class VistaIcona final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
