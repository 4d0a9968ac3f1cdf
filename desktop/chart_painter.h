// What the pages of the reference chart are drawn with, in designed pixels. Pure painting; GUI
// thread.
#pragma once

#include <QPainter>
#include <QPainterPath>

#include "desktop/chart_geometry.h"

namespace corvana {

struct RigoTavola {
    double da, a;   ///< from left to right
    double basso;   ///< where its lowest line lies
    double spazio;  ///< between two lines

    double Passo(int passo) const { return basso - passo * spazio / 2; }
};

/// Five lines.
void DipingiRigo(QPainter& p, const RigoTavola& rigo);
/// The clef at the staff's beginning.
void DipingiChiaveTavola(QPainter& p, const RigoTavola& rigo, ChiaveRigo chiave);
/// A sign whose 0, 0 comes to `dove`.
void DipingiSegnoTavola(QPainter& p, const QPainterPath& segno, const QPointF& dove, double spazio);
/// The same with its middle at the place's x.
void DipingiSegnoInMezzo(QPainter& p, const QPainterPath& segno, const QPointF& dove,
                         double spazio);

/// A line along an edge of the screen's points, as thick as whole points.
void DipingiFilo(QPainter& p, const QPointF& da, const QPointF& a, const QColor& colore,
                 double spessore = 1);

struct LettereTavola {
    double pixel = 15;
    bool forti = false;
    bool tenui = false;
};
double LarghezzaScritta(const QString& testo, const LettereTavola& lettere);
/// Returns how wide the text is.
double Scrivi(QPainter& p, const QRectF& dove, Qt::Alignment come, const QString& testo,
              const LettereTavola& lettere = {});

}  // namespace corvana
