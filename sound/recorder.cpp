#include "sound/recorder.h"

#include <set>

namespace corvana {

int Registratore::midiOutOpen(HandleDispositivo& handle, std::int32_t id) {
    if (esitoOpen) return esitoOpen;
    aperture.push_back(id);
    aperto = static_cast<HandleDispositivo>(aperture.size());
    handle = aperto;
    return midiSenzaErrore;
}

int Registratore::midiOutClose(HandleDispositivo handle) {
    if (esitoClose) return esitoClose;
    if (!handle || handle != aperto) return midiHandleErrato;
    ++chiusure;
    aperto = 0;
    return midiSenzaErrore;
}

int Registratore::midiOutReset(HandleDispositivo handle) {
    if (!handle || handle != aperto) return midiHandleErrato;
    reset.push_back(Istante());
    dopoReset_ = messaggi.size();
    return midiSenzaErrore;
}

int Registratore::midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) {
    if (esitoShortMsg) return esitoShortMsg;
    if (!handle || handle != aperto) return midiHandleErrato;
    messaggi.push_back({Istante(), messaggio});
    return midiSenzaErrore;
}

std::string Registratore::midiOutGetErrorTextA(int codice) {
    return "error text " + std::to_string(codice);
}

int Registratore::midiOutGetDevCapsA(std::int32_t id, std::string& nome) {
    if (id == dispositivoPredefinito && !senzaPredefinito) {
        nome = "Corvana";
        return midiSenzaErrore;
    }
    if (id < 0 || id >= midiOutGetNumDevs()) return midiDispositivoErrato;
    nome = nomi[static_cast<std::size_t>(id)];
    return midiSenzaErrore;
}

void Registratore::sndPlaySoundA(const std::string& percorso, unsigned flags) {
    onde.push_back({Istante(), percorso, flags});
}

std::vector<std::pair<int, int>> Registratore::ConStato(int stato) const {
    std::vector<std::pair<int, int>> trovati;
    for (const auto& [istante, messaggio] : messaggi)
        if (static_cast<int>(messaggio & 0xFF) == stato)
            trovati.emplace_back((messaggio >> 8) & 0xFF, messaggio >> 16);
    return trovati;
}

std::vector<std::pair<int, int>> Registratore::NoteAccese() const {
    std::set<std::pair<int, int>> accese;
    for (std::size_t i = dopoReset_; i < messaggi.size(); ++i) {
        const std::uint32_t m = messaggi[i].messaggio;
        if ((m & 0xF0) != 0x90) continue;
        const std::pair nota(static_cast<int>(m & 0x0F) + 1, static_cast<int>((m >> 8) & 0x7F));
        if ((m >> 16) & 0x7F)
            accese.insert(nota);
        else
            accese.erase(nota);
    }
    return {accese.begin(), accese.end()};
}

}  // namespace corvana
