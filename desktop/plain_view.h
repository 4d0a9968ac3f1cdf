// Labels, pictures, frames, and the ground of a window. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaSemplice : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    /// A mere ground belongs to what it lies on.
    bool Colpibile() const override;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

/// A text of several lines that is only to be read: style "spiegazione" of a text box.
class VistaSpiegazione final : public VistaDipinta {
public:
    VistaSpiegazione(const CopiaControllo& copia, Mittente mittente);
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
