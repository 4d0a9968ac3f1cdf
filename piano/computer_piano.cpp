#include "piano/computer_piano.h"

namespace corvana {

void PianoDaTastiera::Esamina(const TastiPremuti& tasti, std::int16_t base, Suono& suono,
                              const Mostra& mostra) {
    constexpr std::int16_t canale = 1;
    for (std::size_t distanza = 0; distanza < tastiPiano.size(); ++distanza) {
        const bool premuto = tasti.Premuto(tastiPiano[distanza]);
        if (premuto == giu_[distanza]) continue;
        giu_[distanza] = premuto;
        const auto nota = static_cast<std::int16_t>(base + static_cast<int>(distanza));
        if (premuto)
            suono.NotaOn(canale, nota, VelocitaPiano(distanza));
        else
            suono.NotaOff(canale, nota);
        mostra(nota, premuto);
    }
}

}  // namespace corvana
