#include "desktop/ruler_painter.h"

#include "desktop/theme.h"
#include "trainer/positions.h"

namespace corvana {

namespace {

constexpr double raggio = 60;  ///< twips

QRectF Fascia(const Posizione& posizione, double larghezza) {
    return {0, static_cast<double>(posizione.fasciaDa), larghezza,
            static_cast<double>(posizione.fasciaA - posizione.fasciaDa)};
}

bool EDo(const Posizione& posizione) {
    return RispostaDi(posizione) == 1;
}

/// A mark at the band's middle: long on a C, so that the octaves can be counted.
void Tacca(QPainter& p, const Posizione& posizione, double larghezza) {
    const QRectF fascia = Fascia(posizione, larghezza);
    const double lunga = EDo(posizione) ? 0.62 * larghezza : 0.3 * larghezza;
    const double spessa = EDo(posizione) ? 22 : 14;
    p.fillRect(QRectF(larghezza - lunga, fascia.center().y() - spessa / 2, lunga, spessa),
               EDo(posizione) ? tinta::accento : tinta::filoForte);
}

void Evidenzia(QPainter& p, const QRectF& fascia) {
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::accento);
    p.drawRoundedRect(fascia.adjusted(15, -6, -15, 6), 30, 30);
}

/// The bands of one staff lie on one slip of paper.
void Striscia(QPainter& p, int da, int a, double larghezza) {
    const QRectF striscia(7, da - 22, larghezza - 14, a - da + 44);
    p.setPen(QPen(tinta::filo, 15));
    p.setBrush(tinta::striscia);
    p.drawRoundedRect(striscia, raggio, raggio);
}

}  // namespace

void DipingiRegolo(QPainter& p, const QSizeF& misura, int evidenziata) {
    p.setRenderHint(QPainter::Antialiasing);
    const auto posizioni = Posizioni();
    const Posizione* sol = CercaPosizione(40);
    const Posizione* fa = CercaPosizione(31);
    Striscia(p, posizioni.back().fasciaDa, sol->fasciaA, misura.width());
    Striscia(p, fa->fasciaDa, posizioni.front().fasciaA, misura.width());
    for (const Posizione& posizione : posizioni)
        if (posizione.numero == evidenziata)
            Evidenzia(p, Fascia(posizione, misura.width()));
        else
            Tacca(p, posizione, misura.width());
}

}  // namespace corvana
