// The pictures of the reference chart's first page: "scala", the seven notes on a staff above their
// names, and "valori", the notes and rests of the seven values. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaScala final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

class VistaValori final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
