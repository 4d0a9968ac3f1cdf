// What the reference chart's pages are made of: "pagina", a page with its title; "consonante",
// "melodico" and "dissonante", the name or number of an interval in its class, which the frame
// tells as the colour does; "spaziato", words in columns; "frecce", what joins two rows of these.
// GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaPagina final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

class VistaClasse final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

class VistaSpaziato final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

class VistaFrecce final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
