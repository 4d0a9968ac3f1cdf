#include "desktop/letter_painter.h"

#include <QPainterPath>

#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double spessoreContorno = 2;  ///< designed pixels, half of them outside of the letter

/// Letters of one height stand on one line, whichever of them go up or down.
QPainterPath Traccia(const Aspetto& aspetto, const QRectF& area, double scala) {
    const QFont font = Carattere(aspetto.stile, scala);
    const QFontMetricsF misure(font);
    QPainterPath lettera;
    lettera.addText(0, 0, font, SenzaAccesso(InQt(aspetto.Caption)));
    const double mezza = lettera.boundingRect().center().x();
    return lettera.translated(area.center().x() - mezza,
                              area.center().y() + misure.capHeight() / 2);
}

}  // namespace

void DipingiLettera(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                    const Tocco& tocco) {
    DipingiFondo(p, area, a, scala, tocco);
    const QPainterPath lettera = Traccia(a, area, scala);
    p.strokePath(lettera, QPen(tinta::inchiostro, spessoreContorno * scala, Qt::SolidLine,
                               Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(lettera, InQt(a.ForeColor, tinta::carta));
    if (tocco.fuoco) DipingiAnello(p, area, scala);
}

}  // namespace corvana
