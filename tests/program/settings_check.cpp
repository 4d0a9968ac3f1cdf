#include "tests/program/settings_check.h"

#include <array>
#include <optional>

#include "core/settings.h"
#include "eartrainer/stored_state.h"
#include "forms/fault.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_boxes.h"
#include "trainer/state.h"

namespace corvana::prova {

namespace {

constexpr std::array valoriTenuti = {"Language", "CorvanaLastS", "LastDir", "IntoLastS"};
const std::string percorsoTenuti = "/config/settings";

/// What a reader of a stored text makes of it; nothing when it refuses it.
template <class F>
auto Preso(const F& leggi, const std::string& testo) -> decltype(leggi(testo)) {
    try {
        return leggi(testo);
    } catch (const Guasto&) {
        return std::nullopt;
    }
}

/// Both texts of state: what is read, written and read again is written the same.
std::string GuastoDelloStato(const std::string& testo) {
    if (const auto letto = Preso(LeggiStato, testo)) {
        const std::string scritto = ComponiStato(*letto);
        const auto dinuovo = Preso(LeggiStato, scritto);
        if (!dinuovo || ComponiStato(*dinuovo) != scritto) return "the trainer's state changes";
    }
    if (const auto letto = Preso(LeggiStatoInto, testo)) {
        const std::string scritto = ComponiStatoInto(*letto);
        const auto dinuovo = Preso(LeggiStatoInto, scritto);
        if (!dinuovo || ComponiStatoInto(*dinuovo) != scritto) return "the ear's state changes";
    }
    return "";
}

struct Archivio {
    explicit Archivio(std::string byte) {
        file.contenuti[percorsoTenuti] = std::move(byte);
        impostazioni.Prepara();
    }
    std::array<std::string, valoriTenuti.size()> Valori() {
        std::array<std::string, valoriTenuti.size()> valori;
        for (std::size_t i = 0; i < valori.size(); ++i)
            valori[i] = impostazioni.LeggiValore(valoriTenuti[i]);
        return valori;
    }
    FileInMemoria file;
    RiquadriDaCopione riquadri;
    Impostazioni impostazioni{file, riquadri, percorsoTenuti};
};

}  // namespace

std::string ControllaImpostazioni(std::string_view byte) {
    const std::string file(byte.substr(0, byte.size() / 2)), valore(byte.substr(byte.size() / 2));
    Archivio a(file);
    const auto detti = a.riquadri.messaggi.size();
    const bool riparata = a.file.Esiste(percorsoTenuti + ".damaged");
    if (detti != (riparata ? 1U : 0U)) return "not told once that it is damaged";
    if (a.file.contenuti[riparata ? percorsoTenuti + ".damaged" : percorsoTenuti] != file)
        return "the file isn't there as it was";
    auto valori = a.Valori();
    for (const std::string& letto : valori)
        if (const std::string guasto = GuastoDelloStato(letto); !guasto.empty()) return guasto;
    a.impostazioni.ScriviValore("LastDir", valore);
    valori[2] = valore.substr(0, valore.find('\0'));
    if (a.Valori() != valori) return "what was stored is read otherwise";
    if (a.riquadri.messaggi.size() != detti) return "a value can't be read";
    Archivio dopo(a.file.contenuti[percorsoTenuti]);
    if (dopo.Valori() != valori || !dopo.riquadri.messaggi.empty())
        return "at the next start it is otherwise";
    return "";
}

}  // namespace corvana::prova
