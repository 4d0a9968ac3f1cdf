// Step entry: the figures, the multiplier and the buttons that insert. Logic thread.
#pragma once

#include "composer/composer_state.h"
#include "forms/form.h"

namespace corvana {

class PannelloInserimento {
public:
    /// All must live as long as the panel.
    PannelloInserimento(Form& finestra, StatoInserimento& stato);

private:
    Form& finestra_;

public:
    std::array<Figura, numeroFigure> cmdSimbNote{{{finestra_, "cmdSimbNote0"},
                                                  {finestra_, "cmdSimbNote1"},
                                                  {finestra_, "cmdSimbNote2"},
                                                  {finestra_, "cmdSimbNote3"},
                                                  {finestra_, "cmdSimbNote4"},
                                                  {finestra_, "cmdSimbNote5"},
                                                  {finestra_, "cmdSimbNote6"}}};
    Casella PausaPer{finestra_, "PausaPer"};
    Bottone cmdInsNota{finestra_, "cmdInsNota"}, cmdInsPausa{finestra_, "cmdInsPausa"};

    Colore ColoreAcceso = Rgb(10, 254, 10);
    Colore ColoreSpento = coloreDiSistema;

    /// A plain quarter note comes next, at the window's load.
    void Carica();
    void Abilita(bool abilita);

private:
    StatoInserimento& stato_;
};

}  // namespace corvana
