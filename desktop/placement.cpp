#include "desktop/placement.h"

#include <algorithm>

namespace corvana {

namespace {

int Dentro(int inizio, int misura, int da, int spazio) {
    return std::clamp(inizio, da, da + spazio - misura);
}

/// In points of the screen: what the smallest one that the windows are made for leaves them.
constexpr QSizeF spazioMinimo(1000, 560);

}  // namespace

double ScalaMinima(QSize disegnata, double puntiPerPixel) {
    const QSizeF spazio = spazioMinimo / puntiPerPixel;
    return std::min(
        {1.0, spazio.width() / disegnata.width(), spazio.height() / disegnata.height()});
}

QSize ConLaSuaForma(QSize misura, QSize spazio) {
    return misura.boundedTo(misura.scaled(spazio, Qt::KeepAspectRatio));
}

QRect DentroSchermo(QRect finestra, const QRect& libero) {
    finestra.setSize(finestra.size().boundedTo(libero.size()));
    finestra.moveTo(Dentro(finestra.x(), finestra.width(), libero.x(), libero.width()),
                    Dentro(finestra.y(), finestra.height(), libero.y(), libero.height()));
    return finestra;
}

QRect AlCentro(QSize misura, const QRect& sotto, const QRect& libero) {
    QRect finestra(QPoint(), misura);
    finestra.moveCenter(sotto.center());
    return DentroSchermo(finestra, libero);
}

QRect Accanto(QSize misura, int larghezzaMinima, const QRect& altra, const QRect& libero) {
    const int aSinistra = altra.x() - libero.x();
    const int aDestra = libero.x() + libero.width() - altra.x() - altra.width();
    const bool destra = aDestra >= aSinistra;
    const int spazio = destra ? aDestra : aSinistra;
    if (spazio >= larghezzaMinima) misura.setWidth(std::min(misura.width(), spazio));
    const int x = destra ? altra.x() + altra.width() : altra.x() - misura.width();
    return DentroSchermo({QPoint(x, altra.y()), misura}, libero);
}

}  // namespace corvana
