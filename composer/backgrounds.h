// The grounds on which the melody window's controls lie together. They do nothing, and are made
// before all that lies on them. Logic thread.
#pragma once

#include <array>

#include "forms/form.h"
#include "melody/melody.h"

namespace corvana {

struct SfondiComposer {
    /// `finestra` must live as long.
    explicit SfondiComposer(Form& finestra)
        : Shape0(finestra, "Shape0"),
          Shape1(finestra, "Shape1"),
          Shape2(finestra, "Shape2"),
          Shape3(finestra, "Shape3"),
          Shape4(finestra, "Shape4"),
          Shape5(finestra, "Shape5"),
          Shape6(finestra, "Shape6"),
          Shape7(finestra, "Shape7"),
          Shape8(finestra, "Shape8"),
          segnoTempo(finestra, "segnoTempo") {}

    Figura Shape0;                          ///< of the play
    Figura Shape1, Shape2, Shape3, Shape4;  ///< of the voices
    Figura Shape5, Shape6, Shape7;          ///< of pulses, steps and step entry
    Figura Shape8;                          ///< what is seen while the cards are closed
    Figura segnoTempo;                      ///< what the tempo counts

    const std::array<Figura*, numeroVoci> righe{&Shape1, &Shape2, &Shape3, &Shape4};
};

}  // namespace corvana
