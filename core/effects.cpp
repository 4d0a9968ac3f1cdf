#include "core/effects.h"

#include <cmath>

namespace corvana {

namespace {

constexpr int affondo = 10;  ///< twips that a highlighted picture sinks, down and right

void Sposta(Controllo& controllo, int twip) {
    controllo.Top = controllo.Top + twip;
    controllo.Left = controllo.Left + twip;
}

void Ricorda(StatoHover& hover, Controllo& controllo) {
    hover.HoverControllo = &controllo;
    hover.HoverTop = controllo.Top;
    hover.HoverLeft = controllo.Left;
}

}  // namespace

void Gradiente(Controllo& oggetto, int r1, int g1, int b1, int r2, int g2, int b2,
               std::string_view direzione, std::string_view forma) {
    oggetto.Sfondo = Sfumatura{Rgb(r1, g1, b1), Rgb(r2, g2, b2), direzione == "ds", forma == "d2"};
}

void ImpostaBarra(Controllo& barra, const Controllo& fondo, float rapporto,
                  std::string_view orientamento) {
    if (orientamento != "v") return;
    const int altezza =
        static_cast<int>(std::lround(rapporto * static_cast<float>(fondo.Height())));
    barra.Height = altezza;
    barra.Top = fondo.Top + fondo.Height - altezza;
}

void EffettoImmagine(StatoHover& hover, Controllo& controllo, std::string_view stato) {
    if (stato == "over" && !hover.HoverAttivo) {
        Ricorda(hover, controllo);
        hover.HoverAttivo = true;
        Sposta(controllo, affondo);
    } else if (stato == "out" && hover.HoverAttivo) {
        hover.HoverAttivo = false;
        hover.HoverControllo->Top = hover.HoverTop;
        hover.HoverControllo->Left = hover.HoverLeft;
    }
}

void EffettoPulsante(StatoHover& hover, Controllo& sfondo, Controllo& etichetta,
                     std::string_view stato, Colore colore) {
    const bool sopra = stato == "over";
    if (sopra == hover.HoverAttivo) return;
    hover.HoverAttivo = sopra;
    if (sopra) Ricorda(hover, sfondo);
    Sposta(sfondo, sopra ? affondo : -affondo);
    etichetta.ForeColor = colore;
}

void RitagliaForm(Form& form, int larghezza, int altezza) {
    constexpr int twipPerPixel = 15;
    form.stile = "arrotondata";
    form.Width = larghezza * twipPerPixel;
    form.Height = altezza * twipPerPixel;
}

}  // namespace corvana
