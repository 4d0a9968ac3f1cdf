#include "trainer/exercises.h"

#include <algorithm>

#include "trainer/positions.h"

namespace corvana {

std::optional<int> RigaDaLimiti(int limiteBasso, int limiteAlto) {
    const auto riga =
        std::find_if(righeEsercizio.begin(), righeEsercizio.end(), [=](const auto& r) {
            return r.limiteBasso && r.limiteBasso == limiteBasso && r.limiteAlto == limiteAlto;
        });
    if (riga == righeEsercizio.end()) return std::nullopt;
    return static_cast<int>(riga - righeEsercizio.begin());
}

std::uint8_t PosizioneEstratta(double r, std::uint8_t limiteBasso, std::uint8_t limiteAlto) {
    const auto ampiezza = static_cast<float>(limiteAlto - limiteBasso + 1);
    const float somma = static_cast<float>(r) * ampiezza + static_cast<float>(limiteBasso);
    return static_cast<std::uint8_t>(std::min(static_cast<int>(somma), int{limiteAlto}));
}

std::optional<int> RigaDiPartenza(int limiteBasso, int limiteAlto) {
    if (const auto riga = RigaDaLimiti(limiteBasso, limiteAlto)) return riga;
    const bool daRegolo = limiteBasso >= posizioneMinima && limiteAlto > posizioneMinima;
    // A text edited by hand may name a range that no note lies in: no draw would ever end.
    if (!daRegolo || !HaPosizioni(limiteBasso, limiteAlto)) return 0;
    return std::nullopt;
}

SegniRegolo ConSegno(SegniRegolo segni, int posizione) {
    if (segni.Completi()) return segni;
    (segni.PrimoClick ? segni.SecondoClick : segni.PrimoClick) =
        static_cast<std::int16_t>(posizione);
    return segni;
}

}  // namespace corvana
