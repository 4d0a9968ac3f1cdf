// What opens from the main window. Logic thread.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "core/globals.h"

namespace corvana {

/// What the main window asks of the metronome's panel. Empty functions stand for no panel.
struct ComandiMetronomo {
    std::function<void()> carica;  ///< puts the defaults in place
    std::function<void()> apri;
    std::function<void()> alterna;       ///< opens the panel or closes it
    std::function<void()> cambiaLingua;  ///< the language strings are new
};

/// Shows each of the windows that open from the main one. An empty function stands for a window
/// that this build doesn't have: its menu entry and tool button are disabled.
struct Secondarie {
    std::function<void()> frmInto, frmComposer, frmOptions, frmMidiTest, frmStrum, frmAbout;
    std::function<void()> aiuto;
    ComandiMetronomo metronomo;
};

inline void Apri(const std::function<void()>& finestra) {
    if (finestra) finestra();
}

/// Opens the ear trainer on that page, and its help at `contesto`, or where it was.
inline void ApriInto(Globali& globali, const Secondarie& secondarie,
                     std::optional<std::int32_t> contesto, PaginaInto pagina) {
    if (contesto) globali.ContestoInto = *contesto;
    globali.PaginaInto.at(static_cast<std::size_t>(pagina)) = true;
    Apri(secondarie.frmInto);
}

}  // namespace corvana
