#include "sound/outputs/synthesiser.h"

#include <fluidsynth.h>

#include <filesystem>
#include <mutex>
#include <system_error>
#include <utility>

namespace corvana {

namespace {

constexpr double guadagno = 0.4;
constexpr int polifonia = 64;
/// The library sizes its inner queue by the polyphony that it is made with: made larger, a burst of
/// messages within one block fits.
constexpr int polifoniaDiCostruzione = 256;
constexpr int tutti = -1;

std::once_flag preparata;

void PreparaLibreria() {
    // Else it asks the audio library for devices, which may be waiting for a dead sound server.
    const char* nessunDispositivo[] = {nullptr};
    fluid_audio_driver_register(nessunDispositivo);
    for (int livello = FLUID_PANIC; livello < LAST_LOG_LEVEL; ++livello)
        fluid_set_log_function(livello, nullptr, nullptr);
}

bool FileOrdinario(const std::string& percorso) {
    std::error_code errore;
    return std::filesystem::is_regular_file(percorso, errore);
}

}  // namespace

struct Sintetizzatore::Motore {
    Motore() {
        // Reverb would smear the pulses of a metronome over the silence before the next one.
        fluid_settings_setint(impostazioni, "synth.reverb.active", 0);
        fluid_settings_setint(impostazioni, "synth.chorus.active", 0);
        fluid_settings_setint(impostazioni, "synth.threadsafe-api", 0);
        fluid_settings_setint(impostazioni, "synth.lock-memory", 0);
        fluid_settings_setint(impostazioni, "synth.polyphony", polifoniaDiCostruzione);
        fluid_settings_setnum(impostazioni, "synth.sample-rate", frequenza);
        fluid_settings_setnum(impostazioni, "synth.gain", guadagno);
        synth = new_fluid_synth(impostazioni);
        if (synth) fluid_synth_set_polyphony(synth, polifonia);
    }
    Motore(const Motore&) = delete;
    Motore& operator=(const Motore&) = delete;
    ~Motore() {
        delete_fluid_synth(synth);
        delete_fluid_settings(impostazioni);
    }

    fluid_settings_t* impostazioni = new_fluid_settings();
    fluid_synth_t* synth = nullptr;
};

Sintetizzatore::Sintetizzatore(std::unique_ptr<Motore> motore) : motore_(std::move(motore)) {}
Sintetizzatore::~Sintetizzatore() = default;

std::unique_ptr<Sintetizzatore> Sintetizzatore::Carica(const std::string& font) {
    std::call_once(preparata, PreparaLibreria);
    if (!FileOrdinario(font) || !fluid_is_soundfont(font.c_str())) return nullptr;
    auto motore = std::make_unique<Motore>();
    if (!motore->synth || fluid_synth_sfload(motore->synth, font.c_str(), 1) == FLUID_FAILED)
        return nullptr;
    return std::unique_ptr<Sintetizzatore>(new Sintetizzatore(std::move(motore)));
}

void Sintetizzatore::Invia(const MessaggioCorto& m) {
    fluid_synth_t* synth = motore_->synth;
    const int canale = m.Canale();
    switch (m.Tipo()) {
        case tipoNotaOff: fluid_synth_noteoff(synth, canale, m.dato1); break;
        case tipoNotaOn: fluid_synth_noteon(synth, canale, m.dato1, m.dato2); break;
        case tipoPressioneNota: fluid_synth_key_pressure(synth, canale, m.dato1, m.dato2); break;
        case tipoControllo: fluid_synth_cc(synth, canale, m.dato1, m.dato2); break;
        case tipoProgramma: fluid_synth_program_change(synth, canale, m.dato1); break;
        case tipoPressioneCanale: fluid_synth_channel_pressure(synth, canale, m.dato1); break;
        case tipoIntonazione:
            fluid_synth_pitch_bend(synth, canale, m.dato1 | (m.dato2 << 7));
            break;
        default: break;
    }
}

void Sintetizzatore::Zittisci() {
    fluid_synth_all_sounds_off(motore_->synth, tutti);
}

void Sintetizzatore::Azzera() {
    Zittisci();
    for (int canale = 0; canale < canaliMidi; ++canale)
        fluid_synth_cc(motore_->synth, canale, controlloAzzera, 0);
}

int Sintetizzatore::Voci() const {
    return fluid_synth_get_active_voice_count(motore_->synth);
}

void Sintetizzatore::Rendi(Blocco& blocco) {
    fluid_synth_write_float(motore_->synth, frameDiBlocco, blocco.data(), 0, 2, blocco.data(), 1,
                            2);
}

}  // namespace corvana
