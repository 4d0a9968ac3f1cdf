#include "desktop/button_view.h"
#include "desktop/combo_view.h"
#include "desktop/icon_painter.h"
#include "desktop/light_view.h"
#include "desktop/list_view.h"
#include "desktop/painted_view.h"
#include "desktop/ruler_view.h"
#include "desktop/slider_view.h"
#include "desktop/staff_view.h"
#include "desktop/text_box_view.h"

namespace corvana {

namespace {

std::unique_ptr<Vista> CreaDipinta(const CopiaControllo& copia, Mittente mittente, QWidget& padre,
                                   VistaPentagramma* pentagramma) {
    const QStringList stile = InQt(copia.stile).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (pentagramma && VistaNota::EStileDiNota(stile))
        return std::make_unique<VistaNota>(copia, mittente, *pentagramma);
    if (stile.contains(QLatin1String("pentagramma")))
        return std::make_unique<VistaPentagramma>(copia, mittente, padre);
    if (stile.contains(QLatin1String("regolo")))
        return std::make_unique<VistaRegolo>(copia, mittente, padre);
    if (stile.contains(QLatin1String("colonne")))
        return std::make_unique<VistaColonne>(copia, mittente, padre);
    if (stile.contains(QLatin1String("luce")))
        return std::make_unique<VistaLuce>(copia, mittente, padre);
    if (EIcona(stile)) return std::make_unique<VistaIcona>(copia, mittente, padre);
    return std::make_unique<VistaDipinta>(copia, mittente, padre);
}

std::unique_ptr<Vista> CreaCasella(const CopiaControllo& copia, Mittente mittente, QWidget& padre) {
    if (copia.stile == "spiegazione")
        return std::make_unique<VistaSpiegazione>(copia, mittente, padre);
    return std::make_unique<VistaCasella>(copia, mittente, padre);
}

}  // namespace

std::unique_ptr<Vista> CreaVista(const CopiaControllo& copia, Mittente mittente, QWidget& padre,
                                 VistaPentagramma* pentagramma) {
    switch (copia.tipo) {
        case Genere::Bottone: return std::make_unique<VistaBottone>(copia, mittente, padre);
        case Genere::Casella: return CreaCasella(copia, mittente, padre);
        case Genere::Lista: return std::make_unique<VistaLista>(copia, mittente, padre);
        case Genere::Combo: return std::make_unique<VistaCombo>(copia, mittente, padre);
        case Genere::Barra: return std::make_unique<VistaBarra>(copia, mittente, padre);
        case Genere::Spunta: return std::make_unique<VistaSpunta>(copia, mittente, padre);
        default: return CreaDipinta(copia, mittente, padre, pentagramma);
    }
}

}  // namespace corvana
