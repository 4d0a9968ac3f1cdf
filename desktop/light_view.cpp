#include "desktop/light_view.h"

#include "desktop/light_painter.h"

namespace corvana {

QRect VistaLuce::Portata() const {
    return Bagliore(QRectF(Area()), Scala()).toAlignedRect();
}

int VistaLuce::Strato() const {
    return Accesa(Stato().BackColor) ? 2 : 1;
}

void VistaLuce::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    DipingiLuce(p, area, Stato().BackColor, Scala());
}

}  // namespace corvana
