#include "desktop/face_table.h"

#include <algorithm>

#include "desktop/button_view.h"
#include "desktop/chart_keys_view.h"
#include "desktop/chart_notes_view.h"
#include "desktop/chart_view.h"
#include "desktop/choice_view.h"
#include "desktop/combo_view.h"
#include "desktop/figure_view.h"
#include "desktop/keyboard_view.h"
#include "desktop/light_view.h"
#include "desktop/list_view.h"
#include "desktop/plain_view.h"
#include "desktop/ruler_view.h"
#include "desktop/slider_view.h"
#include "desktop/staff_view.h"
#include "desktop/text_box_view.h"

namespace corvana {

namespace {

using Nuova = std::unique_ptr<Vista>;

template <class T>
Nuova Widget(const CopiaControllo& copia, Mittente mittente, QWidget& dove) {
    return std::make_unique<T>(copia, mittente, dove);
}

template <class T>
Nuova Dipinta(const CopiaControllo& copia, Mittente mittente, QWidget&) {
    return std::make_unique<T>(copia, mittente);
}

struct RigaFaccia {
    Genere tipo;         ///< `Figura` stands for all kinds that a face paints
    const char* parola;  ///< one of the control's style words; one with a colon begins the word
    Nuova (*crea)(const CopiaControllo&, Mittente, QWidget&);
    bool widget = false;
};

constexpr RigaFaccia facce[] = {
    {Genere::Bottone, "", Widget<VistaBottone>, true},
    {Genere::Casella, "spiegazione", Dipinta<VistaSpiegazione>},
    {Genere::Casella, "", Widget<VistaCasella>, true},
    {Genere::Lista, "", Widget<VistaLista>, true},
    {Genere::Combo, "", Widget<VistaCombo>, true},
    {Genere::Barra, "", Widget<VistaBarra>, true},
    {Genere::Spunta, "", Widget<VistaSpunta>, true},
    {Genere::Figura, "pentagramma", Dipinta<VistaPentagramma>},
    {Genere::Figura, "maschera", Dipinta<VistaNota>},
    {Genere::Figura, "testa", Dipinta<VistaNota>},
    {Genere::Figura, "acuta", Dipinta<VistaNota>},
    {Genere::Figura, "regolo", Dipinta<VistaRegolo>},
    {Genere::Figura, "tastiera", Dipinta<VistaTastiera>},
    {Genere::Figura, "tasto", Dipinta<VistaTasto>},
    {Genere::Figura, "barretta", Dipinta<VistaBarretta>},
    {Genere::Figura, "docentrale", Dipinta<VistaDoCentrale>},
    {Genere::Figura, "luce", Dipinta<VistaLuce>},
    {Genere::Figura, "colonne", Dipinta<VistaColonne>},
    {Genere::Figura, "pagina", Dipinta<VistaPagina>},
    {Genere::Figura, "scala", Dipinta<VistaScala>},
    {Genere::Figura, "valori", Dipinta<VistaValori>},
    {Genere::Figura, "specchio", Dipinta<VistaSpecchio>},
    {Genere::Figura, "armatura", Dipinta<VistaArmatura>},
    {Genere::Figura, "grado", Dipinta<VistaGrado>},
    {Genere::Figura, "consonante", Dipinta<VistaClasse>},
    {Genere::Figura, "melodico", Dipinta<VistaClasse>},
    {Genere::Figura, "dissonante", Dipinta<VistaClasse>},
    {Genere::Figura, "spaziato", Dipinta<VistaSpaziato>},
    {Genere::Figura, "frecce", Dipinta<VistaFrecce>},
    {Genere::Figura, "ammissione", Dipinta<VistaAmmissione>},
    {Genere::Figura, "detto", Dipinta<VistaDetto>},
    {Genere::Figura, "tastino", Dipinta<VistaTastino>},
    {Genere::Figura, "figura:", Dipinta<VistaFigura>},
    {Genere::Figura, "voce", Dipinta<VistaVoceAttiva>},
    {Genere::Figura, "corsa", Dipinta<VistaCorsa>},
    {Genere::Figura, "icona:", Dipinta<VistaIcona>},
    {Genere::Figura, "", Dipinta<VistaSemplice>},
};

Genere ChiLaDipinge(Genere tipo) {
    const bool dipinta =
        tipo == Genere::Finestra || tipo == Genere::Etichetta || tipo == Genere::Cornice;
    return dipinta ? Genere::Figura : tipo;
}

bool Chiede(const RigaFaccia& riga, const QString& parola) {
    const QLatin1String sua(riga.parola);
    return sua.endsWith(QLatin1Char(':')) ? parola.startsWith(sua) : parola == sua;
}

const RigaFaccia& RigaDi(const CopiaControllo& copia) {
    const QStringList stile = ParoleDi(copia.stile);
    return *std::find_if(std::begin(facce), std::end(facce), [&](const RigaFaccia& riga) {
        if (riga.tipo != ChiLaDipinge(copia.tipo)) return false;
        const bool senza = *riga.parola == '\0';
        return senza || std::any_of(stile.begin(), stile.end(),
                                    [&](const QString& parola) { return Chiede(riga, parola); });
    });
}

}  // namespace

bool HaWidget(const CopiaControllo& copia) {
    return RigaDi(copia).widget;
}

std::unique_ptr<Vista> CreaVista(const CopiaControllo& copia, Mittente mittente, QWidget& dove) {
    return RigaDi(copia).crea(copia, mittente, dove);
}

bool ScegliUnaFaccia(const QString& parola) {
    return std::any_of(std::begin(facce), std::end(facce), [&](const RigaFaccia& riga) {
        return *riga.parola != '\0' && Chiede(riga, parola);
    });
}

}  // namespace corvana
