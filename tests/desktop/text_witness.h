// Reads a window as it is painted: each text with its letters, and how far they stand out from what
// had been painted where they come to lie. Takes no text from the window itself, so that nothing is
// overlooked. GUI thread.
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <QWidget>
#include <vector>

namespace corvana::prova {

struct TestoDipinto {
    QString testo;
    double pixel = 0;      ///< height of the letters, as their font tells it
    double contrasto = 0;  ///< of the letters to nearly all of the ground beneath them
    QColor penna, fondo;   ///< the ground where it is hardest to read
    QRect dove;            ///< in the window, of the letters' ink
    bool intero = true;    ///< nothing of the ink is cut off
};

/// The ratio of their luminances, 1 to 21.
double Contrasto(const QColor& una, const QColor& altra);

/// What is written in the widget and all that stands on it, in the order of painting.
std::vector<TestoDipinto> LeggiDipinto(QWidget& widget);

}  // namespace corvana::prova
