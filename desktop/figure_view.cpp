#include "desktop/figure_view.h"

#include <cmath>

#include "desktop/figure_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double larghezzaCursore = 8;  ///< designed pixels

}  // namespace

bool VistaFigura::Accesa() const {
    return Stato().BackColor != coloreDiSistema && Stato().BackStyle == fondoOpaco;
}

std::optional<bool> VistaFigura::Spuntata() const {
    if (!Azionabile()) return {};
    return Accesa();
}

void VistaFigura::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    DipingiFigura(p, area, Stato(), Scala(), tocco, Accesa());
}

std::optional<bool> VistaVoceAttiva::Spuntata() const {
    return Verde(Stato().BackColor) > Rosso(Stato().BackColor);
}

void VistaVoceAttiva::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    DipingiVoceAttiva(p, area, Stato(), Scala(), tocco, *Spuntata());
}

QRect VistaCorsa::Portata() const {
    return Area().adjusted(0, 0, static_cast<int>(std::ceil(larghezzaCursore * Scala())), 0);
}

void VistaCorsa::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    p.setRenderHint(QPainter::Antialiasing);
    QRectF linea = area.adjusted(0, 0, larghezzaCursore * Scala(), 0);
    linea.setHeight(4 * Scala());
    linea.moveCenter({linea.center().x(), area.center().y()});
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::filoForte);
    p.drawRoundedRect(linea, linea.height() / 2, linea.height() / 2);
}

}  // namespace corvana
