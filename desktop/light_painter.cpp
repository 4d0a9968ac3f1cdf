#include "desktop/light_painter.h"

#include <QPainterPath>

#include "desktop/aspect.h"
#include "desktop/theme.h"
#include "metronome/pattern.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double raggioPunto = 1.5, raggioSagoma = 11, raggioBagliore = 26;

QPainterPath Contorno(SagomaLuce sagoma, const QPointF& c, double r) {
    QPainterPath contorno;
    switch (sagoma) {
        case SagomaLuce::Punto:
        case SagomaLuce::Disco: contorno.addEllipse(c, r, r); break;
        case SagomaLuce::Quadro: contorno.addRect(c.x() - r, c.y() - r, 2 * r, 2 * r); break;
        case SagomaLuce::Triangolo:
            contorno.addPolygon(
                QPolygonF({{c.x(), c.y() - r}, {c.x() + r, c.y() + r}, {c.x() - r, c.y() + r}}));
            contorno.closeSubpath();
            break;
    }
    return contorno;
}

void DipingiSede(QPainter& p, const QRectF& area, Colore colore, double scala) {
    p.setBrush(tinta::sede);
    p.drawRoundedRect(area.adjusted(0.5 * scala, 0, -0.5 * scala, 0), 2 * scala, 2 * scala);
    p.setBrush(InQt(colore, tinta::luceSpenta));
    p.drawPath(Contorno(SagomaLuce::Punto, area.center(), raggioPunto * scala));
}

void DipingiAlone(QPainter& p, const QPointF& c, const QColor& colore, double raggio) {
    QRadialGradient alone(c, raggio);
    const auto passo = [&](double dove, QColor luce, int opaca) {
        luce.setAlpha(opaca);
        alone.setColorAt(dove, luce);
    };
    passo(0, tinta::bagliore, 255);
    passo(0.45, tinta::bagliore, 235);
    passo(0.62, colore.lighter(135), 190);
    passo(1, colore, 0);
    p.setBrush(alone);
    p.drawEllipse(c, raggio, raggio);
}

}  // namespace

SagomaLuce SagomaDi(Colore colore) {
    switch (colore) {
        case coloreA: return SagomaLuce::Quadro;
        case coloreB: return SagomaLuce::Disco;
        case coloreC: return SagomaLuce::Triangolo;
        default: return SagomaLuce::Punto;
    }
}

bool Accesa(Colore colore) {
    return SagomaDi(colore) != SagomaLuce::Punto;
}

QRectF Bagliore(const QRectF& area, double scala) {
    const double raggio = raggioBagliore * scala;
    return QRectF(-raggio, -raggio, 2 * raggio, 2 * raggio).translated(area.center());
}

void DipingiLuce(QPainter& p, const QRectF& area, Colore colore, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    if (!Accesa(colore)) return DipingiSede(p, area, colore, scala);
    const QColor luce = InQt(colore, tinta::luceSpenta);
    DipingiAlone(p, area.center(), luce, raggioBagliore * scala);
    // Light around the shape parts it from its own glow.
    p.setPen(QPen(tinta::bagliore, 2 * scala, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(luce);
    p.drawPath(Contorno(SagomaDi(colore), area.center(), raggioSagoma * scala));
}

}  // namespace corvana
