// What sinks or lights up under the pointer in one window. A window that has such controls has one
// of these as a member. Logic thread. The controls must outlive it.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/effects.h"

namespace corvana {

class HoverFinestra {
public:
    /// Shows a control highlighted, or as it is at rest.
    using Effetto = std::function<void(bool sopra)>;

    HoverFinestra() = default;
    HoverFinestra(const HoverFinestra&) = delete;
    HoverFinestra& operator=(const HoverFinestra&) = delete;

    /// The picture sinks under the pointer, under its name in lower case.
    void Affonda(Controllo& immagine);
    /// The picture sinks and the label on it changes its colour, under the label's name in lower
    /// case, whichever of both the pointer is on.
    void Affonda(Controllo& sfondo, Controllo& etichetta, Colore sopra, Colore fuori);
    /// Whatever else the pointer does to a control.
    void Evidenzia(Controllo& controllo, std::string nome, Effetto effetto);
    /// Where the pointer sets back what is highlighted.
    void LasciaSu(std::initializer_list<Controllo*> controlli);

    /// Sets back what is highlighted.
    void Lascia();
    const StatoHover& Stato() const { return stato_; }

private:
    struct Voce {
        std::string nome;
        Effetto effetto;
    };
    void Segui(Controllo& controllo, const std::string& nome);
    void Entra(const std::string& nome);
    void Mostra(bool sopra);

    StatoHover stato_;
    std::vector<Voce> voci_;
};

}  // namespace corvana
