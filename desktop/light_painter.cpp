#include "desktop/light_painter.h"

#include <QPainterPath>

#include "desktop/aspect.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

QPainterPath Contorno(SagomaLuce sagoma, const QRectF& area, double scala) {
    QPainterPath contorno;
    const QPointF c = area.center();
    const double r = std::min(area.width(), area.height()) / 2;
    switch (sagoma) {
        case SagomaLuce::Punto: contorno.addEllipse(c, 1.5 * scala, 1.5 * scala); break;
        case SagomaLuce::Quadro: contorno.addRect(area); break;
        case SagomaLuce::Disco: contorno.addEllipse(c, r, r); break;
        case SagomaLuce::Triangolo:
            contorno.addPolygon(
                QPolygonF({{c.x(), c.y() - r}, {c.x() + r, c.y() + r}, {c.x() - r, c.y() + r}}));
            contorno.closeSubpath();
            break;
    }
    return contorno;
}

}  // namespace

SagomaLuce SagomaDi(Colore colore) {
    switch (colore) {
        case Rgb(255, 0, 0): return SagomaLuce::Quadro;
        case Rgb(0, 255, 0): return SagomaLuce::Disco;
        case Rgb(0, 0, 255): return SagomaLuce::Triangolo;
        default: return SagomaLuce::Punto;
    }
}

void DipingiLuce(QPainter& p, const QRectF& area, Colore colore, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF sede = area.adjusted(0.5 * scala, 0, -0.5 * scala, 0);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(60, 40, 20, 70));
    p.drawRoundedRect(sede, 2 * scala, 2 * scala);
    const double margine = 0.75 * scala;
    p.setBrush(InQt(colore, tinta::spento));
    p.drawPath(
        Contorno(SagomaDi(colore), sede.adjusted(margine, margine, -margine, -margine), scala));
}

}  // namespace corvana
