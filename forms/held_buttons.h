// Which buttons of the mouse are down, and on which control each of them went down. Logic thread.
#pragma once

#include <optional>
#include <vector>

#include "forms/control.h"

namespace corvana {

class BottoniPremuti {
public:
    struct Pressione {
        Controllo* controllo;
        Evento giu;  ///< as the button went down
    };

    void Segna(Controllo& controllo, const Evento& giu) { giu_.push_back({&controllo, giu}); }
    /// Takes out the press of that button.
    std::optional<Pressione> Prendi(int bottone);
    /// Takes out a press on a control of that window, of any when null.
    std::optional<Pressione> PrendiDi(const Form* form);

private:
    std::vector<Pressione> giu_;
};

/// The release that ends `pressione`. The button came up at `su`, a place in the control
/// `riferimento` of the same window; where that is null the place isn't known, and it is that of
/// the press.
Evento Rilascio(const BottoniPremuti::Pressione& pressione, const Evento& su,
                const Controllo* riferimento);

}  // namespace corvana
