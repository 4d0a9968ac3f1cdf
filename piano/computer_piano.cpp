#include "piano/computer_piano.h"

#include <algorithm>

namespace corvana {

namespace {

constexpr std::int16_t canale = 1;

/// The key's place in `tastiAdEventi`, or their number.
std::size_t PostoAdEventi(int codice) {
    return static_cast<std::size_t>(
        std::find_if(tastiAdEventi.begin(), tastiAdEventi.end(),
                     [&](const TastoAdEventi& tasto) { return tasto.codice == codice; }) -
        tastiAdEventi.begin());
}

/// The key whose state decides whether that one may strike: its own, but for backspace.
std::size_t Guardia(std::size_t posto) {
    return tastiAdEventi[posto].codice == vk::back ? PostoAdEventi(vk::virgola) : posto;
}

}  // namespace

void PianoDaTastiera::Esamina(const TastiPremuti& tasti, std::int16_t base, Suono& suono,
                              const Mostra& mostra) {
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
    // A release that went to another window or another program never comes as an event.
    for (std::size_t posto = 0; posto < tastiAdEventi.size(); ++posto)
        if (giuAdEventi_[posto] && !tasti.Premuto(tastiAdEventi[posto].codice))
            Lascia(tastiAdEventi[posto].codice, base, suono, mostra);
}

void PianoDaTastiera::Premi(int codice, std::int16_t base, Suono& suono, const Mostra& mostra) {
    const std::size_t posto = PostoAdEventi(codice);
    if (posto == tastiAdEventi.size() || giuAdEventi_[Guardia(posto)]) return;
    const auto nota = static_cast<std::int16_t>(base + tastiAdEventi[posto].distanza);
    suono.NotaOn(canale, nota, 90);
    mostra(nota, true);
    giuAdEventi_[posto] = true;
}

void PianoDaTastiera::Lascia(int codice, std::int16_t base, Suono& suono, const Mostra& mostra) {
    const std::size_t posto = PostoAdEventi(codice);
    if (posto == tastiAdEventi.size()) return;
    giuAdEventi_[posto] = false;
    const auto nota = static_cast<std::int16_t>(base + tastiAdEventi[posto].distanza);
    suono.NotaOff(canale, nota);
    mostra(nota, false);
}

}  // namespace corvana
