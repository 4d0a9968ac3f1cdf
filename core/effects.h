// The windows' hand-made look: gradients, the score bar, pictures that sink under the pointer.
// Logic thread.
#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"

namespace corvana {

/// Paints a band of colour on the control, from the first colour to the second: `direzione` "ab"
/// runs from top to bottom, "ds" across; `forma` "i" is one run, "d2" there and back again.
void Gradiente(Controllo& oggetto, int r1, int g1, int b1, int r2, int g2, int b2,
               std::string_view direzione, std::string_view forma);

/// The bar takes `rapporto` (0 to 1) of the background's height and stands on its bottom. Only for
/// `orientamento` "v"; any other does nothing.
void ImpostaBarra(Controllo& barra, const Controllo& fondo, float rapporto,
                  std::string_view orientamento);

/// What the pictures of a window need to sink under the pointer and to come back.
struct StatoHover {
    std::string
        HoverNome;  ///< lower-case name of what is highlighted, or "ShToolbar"; empty for none
    bool HoverAttivo = false;  ///< a control is displaced
    Controllo* HoverControllo = nullptr;
    int HoverTop = 0;  ///< its place at rest, in twips
    int HoverLeft = 0;
};

/// "over" sinks the control by 10 twips, once; "out" puts back the control that sank, whichever
/// control is named.
void EffettoImmagine(StatoHover& hover, Controllo& controllo, std::string_view stato);

/// The same for a label that lies on a picture: the picture sinks and the label takes `colore`.
void EffettoPulsante(StatoHover& hover, Controllo& sfondo, Controllo& etichetta,
                     std::string_view stato, Colore colore);

/// Makes the window a borderless one with rounded corners of 22 by 22 pixels, of that size in
/// pixels.
void RitagliaForm(Form& form, int larghezza, int altezza);

}  // namespace corvana
