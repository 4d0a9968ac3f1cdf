#include "desktop/chart_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/music_font.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr int lineeDelRigo = 5;
constexpr double rientroChiave = 0.8;  ///< spaces

QFont CarattereTavola(const LettereTavola& lettere) {
    QFont font = Carattere({}, 1);
    font.setPixelSize(static_cast<int>(lettere.pixel));
    if (lettere.forti) font.setWeight(QFont::DemiBold);
    return font;
}

}  // namespace

void DipingiRigo(QPainter& p, const RigoTavola& rigo) {
    for (int i = 0; i < lineeDelRigo; ++i) {
        const double y = rigo.Passo(2 * i);
        DipingiFilo(p, {rigo.da, y}, {rigo.a, y}, tinta::inchiostro);
    }
}

void DipingiChiaveTavola(QPainter& p, const RigoTavola& rigo, ChiaveRigo chiave) {
    const Segno segno = chiave == ChiaveRigo::Violino ? Segno::ChiaveViolino : Segno::ChiaveBasso;
    DipingiSegnoTavola(p, TracciaSegno(segno), {rigo.da + rientroChiave * rigo.spazio, rigo.basso},
                       rigo.spazio);
}

void DipingiSegnoTavola(QPainter& p, const QPainterPath& segno, const QPointF& dove,
                        double spazio) {
    p.setRenderHint(QPainter::Antialiasing);
    p.fillPath(QTransform::fromTranslate(dove.x(), dove.y()).scale(spazio, spazio).map(segno),
               tinta::inchiostro);
}

void DipingiSegnoInMezzo(QPainter& p, const QPainterPath& segno, const QPointF& dove,
                         double spazio) {
    const double mezzo = segno.boundingRect().center().x() * spazio;
    DipingiSegnoTavola(p, segno, dove - QPointF(mezzo, 0), spazio);
}

void DipingiFilo(QPainter& p, const QPointF& da, const QPointF& a, const QColor& colore,
                 double spessore) {
    const QTransform inPunti = p.deviceTransform();
    const double grosso = std::max(1.0, std::round(spessore * inPunti.m11()));
    const QPointF inizio = inPunti.map(da), fine = inPunti.map(a);
    const bool piana = da.y() == a.y();
    const QPointF angolo(std::round(inizio.x() - (piana ? 0 : grosso / 2)),
                         std::round(inizio.y() - (piana ? grosso / 2 : 0)));
    const QSizeF misura = piana ? QSizeF(std::round(fine.x()) - angolo.x(), grosso)
                                : QSizeF(grosso, std::round(fine.y()) - angolo.y());
    p.fillRect(inPunti.inverted().mapRect(QRectF(angolo, misura)), colore);
}

double LarghezzaScritta(const QString& testo, const LettereTavola& lettere) {
    return QFontMetricsF(CarattereTavola(lettere)).horizontalAdvance(testo);
}

double Scrivi(QPainter& p, const QRectF& dove, Qt::Alignment come, const QString& testo,
              const LettereTavola& lettere) {
    p.setFont(CarattereTavola(lettere));
    p.setPen(lettere.tenui ? tinta::inchiostroTenue : tinta::inchiostro);
    p.drawText(dove, static_cast<int>(come) | Qt::TextDontClip, testo);
    return LarghezzaScritta(testo, lettere);
}

}  // namespace corvana
