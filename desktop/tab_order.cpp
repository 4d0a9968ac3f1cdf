#include "desktop/tab_order.h"

#include <algorithm>

#include "desktop/face.h"

namespace corvana {

namespace {

/// A widget that isn't part of it lies over its middle: the user wouldn't see where he is.
bool Coperta(const Vista& vista) {
    const auto* dipinta = dynamic_cast<const VistaDipinta*>(&vista);
    const bool conWidget = vista.Widget() != nullptr;
    const QWidget& suolo = conWidget ? *vista.Widget() : dipinta->FacciaDove();
    const QPoint mezzo = conWidget ? suolo.rect().center() : dipinta->Area().center();
    const QWidget* sopra = suolo.window()->childAt(suolo.mapTo(suolo.window(), mezzo));
    if (!sopra || sopra == &suolo) return false;
    return !conWidget || !suolo.isAncestorOf(sopra);
}

}  // namespace

Vista* ProssimaFermata(const std::vector<std::unique_ptr<Vista>>& viste, bool avanti) {
    const auto quante = static_cast<std::ptrdiff_t>(viste.size());
    const auto fuoco = std::find_if(viste.begin(), viste.end(),
                                    [](const auto& vista) { return vista->HaFuoco(); });
    const std::ptrdiff_t nessuna = avanti ? -1 : quante;
    const std::ptrdiff_t da = fuoco == viste.end() ? nessuna : fuoco - viste.begin();
    for (std::ptrdiff_t passo = 1; passo <= quante; ++passo) {
        const std::ptrdiff_t dove = da + (avanti ? passo : -passo);
        Vista& vista = *viste[static_cast<std::size_t>((dove % quante + quante) % quante)];
        if (!vista.Fermata() || !vista.Usabile() || vista.HaFuoco() || Coperta(vista)) continue;
        if (fuoco == viste.end() || !vista.Insieme(**fuoco)) return &vista.Ingresso();
    }
    return nullptr;
}

}  // namespace corvana
