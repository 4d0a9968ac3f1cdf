#include "desktop/staff_painter.h"

#include <algorithm>
#include <cmath>

#include "desktop/drawn_once.h"
#include "desktop/music_font.h"
#include "desktop/staff_geometry.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double mezzaTesta = 0.66 * spazioPentagramma;
constexpr double mezzaLineaAggiunta = 1.12 * spazioPentagramma;
constexpr double spessoreLinea = 16;  ///< twips
constexpr double spessoreLineaAggiunta = 20;
constexpr double inclinazione = -24;  ///< degrees by which a head is tilted

/// A horizontal line, as thick as whole pixels and lying on whole pixels.
void Linea(QPainter& p, double da, double a, double y, double spessore, double pixel) {
    const double grosso = std::max(1.0, std::round(spessore / pixel)) * pixel;
    const double alto = std::round((y - grosso / 2) / pixel) * pixel;
    p.fillRect(QRectF(da, alto, a - da, grosso), tinta::inchiostro);
}

void Chiave(QPainter& p, Segno segno, double x, int primaLinea) {
    const bool violino = segno == Segno::ChiaveViolino;
    const QString nome = violino ? QStringLiteral("violino") : QStringLiteral("basso");
    p.save();
    p.translate(x, AltezzaDi(primaLinea));
    p.scale(spazioPentagramma, spazioPentagramma);
    RiempiUnaVolta(p, nome, TracciaSegno(segno), tinta::inchiostro);
    p.restore();
}

/// A head is an ellipse, broader than the space between two lines and exactly as high.
QPainterPath Testa(const QPointF& centro) {
    QPainterPath ellisse;
    ellisse.addEllipse(QPointF(), mezzaTesta, 0.46 * spazioPentagramma);
    return QTransform::fromTranslate(centro.x(), centro.y()).rotate(inclinazione).map(ellisse);
}

}  // namespace

void DipingiFoglio(QPainter& p, const QSizeF& misura, double pixel) {
    p.fillRect(QRectF(QPointF(), misura), tinta::carta);
    p.fillRect(QRectF(misura.width() - pixel, 0, pixel, misura.height()), tinta::filo);
    p.fillRect(QRectF(0, misura.height() - pixel, misura.width(), pixel), tinta::filo);
}

void DipingiPentagrammi(QPainter& p, double pixel) {
    p.setRenderHint(QPainter::Antialiasing);
    for (const int prima : {primaLineaViolino, primaLineaBasso})
        for (int i = 0; i < lineePentagramma; ++i)
            Linea(p, inizioLinee, fineLinee, AltezzaDi(prima + 2 * i), spessoreLinea, pixel);
    const double alto = AltezzaDi(primaLineaViolino + 2 * (lineePentagramma - 1));
    const double basso = AltezzaDi(primaLineaBasso);
    p.fillRect(QRectF(inizioLinee - 12, alto - 8, 24, basso - alto + 16), tinta::inchiostro);
    p.save();
    p.translate(inizioLinee - 30, alto);
    RiempiUnaVolta(p, QStringLiteral("graffa"), TracciaGraffa(basso - alto, 95), tinta::inchiostro);
    p.restore();
    Chiave(p, Segno::ChiaveViolino, inizioLinee + 70, primaLineaViolino);
    Chiave(p, Segno::ChiaveBasso, inizioLinee + 45, primaLineaBasso);
}

void DipingiNota(QPainter& p, int posizione, double x, double pixel) {
    p.setRenderHint(QPainter::Antialiasing);
    for (const int linea : LineeAggiunte(posizione))
        Linea(p, x - mezzaLineaAggiunta, x + mezzaLineaAggiunta, AltezzaDi(linea),
              spessoreLineaAggiunta, pixel);
    p.fillPath(Testa({x, AltezzaDi(posizione)}), tinta::inchiostro);
}

QRectF AreaNota(int posizione, double x) {
    double alto = AltezzaDi(posizione), basso = alto;
    for (const int linea : LineeAggiunte(posizione)) {
        alto = std::min(alto, AltezzaDi(linea));
        basso = std::max(basso, AltezzaDi(linea));
    }
    const double aria = spazioPentagramma;
    return {x - mezzaLineaAggiunta - aria / 4, alto - aria, 2 * mezzaLineaAggiunta + aria / 2,
            basso - alto + 2 * aria};
}

}  // namespace corvana
