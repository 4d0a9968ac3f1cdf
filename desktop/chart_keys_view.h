// The pictures of the reference chart's second page: "specchio", the body of the table of keys,
// "armatura", a row's key signature on the double staff, and "grado", a degree and its name.
// GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaSpecchio final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

class VistaArmatura final : public VistaDipinta {
public:
    /// The number in its control's name tells the row, from 1.
    VistaArmatura(const CopiaControllo& copia, Mittente mittente);
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

private:
    std::size_t riga_;
};

/// The number and the name stand in columns of their own.
class VistaGrado final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
