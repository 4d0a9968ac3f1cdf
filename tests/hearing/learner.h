// A learner who only hears: he has listened to the notes of an instrument, and works out from the
// sound alone what is asked. The instrument is the test's parameter.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "tests/hearing/classroom.h"
#include "tests/hearing/trained_ear.h"

namespace corvana::prova {

/// What he hears between two clicks.
using Udito = std::span<const float>;
using Volume = OrecchioEsperto::Volume;

struct Lezione {
    PaginaInto pagina;
    std::vector<Mossa> preparativi;
    std::string start;
    double ascolto;  ///< seconds from a click to the answer
    /// Names the control to click.
    std::function<std::string(Aula&, Udito)> risposta;
    int domande = 40;
};

class Allievo : public testing::TestWithParam<int> {
protected:
    /// Roots of the intervals that he knows in pairs.
    static constexpr int radicePiuBassa = 50, radicePiuAlta = 66;

    /// One note, struck at that instant of what is heard.
    int Nota(Udito udito, double quando) const;
    /// Several, likewise: the place of theirs among those that are possible.
    std::size_t Quale(Udito udito, double quando, const std::vector<std::vector<int>>& possibili,
                      Volume volume) const;
    /// Two notes, or twice the same one.
    std::pair<int, int> Coppia(Udito udito, double quando) const;

    /// Answers all questions and must be right each time.
    void Impegnati(const Lezione& lezione) const;
};

}  // namespace corvana::prova
