#include "sound/outputs/wave.h"

#include <SDL2/SDL.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>

#include "sound/outputs/synthesiser.h"

namespace corvana {

namespace {

constexpr std::uintmax_t dimensioneMassima = 8'000'000;

struct Rilascio {
    void operator()(Uint8* dati) const { SDL_FreeWAV(dati); }
    void operator()(SDL_AudioStream* flusso) const { SDL_FreeAudioStream(flusso); }
};

bool Ammissibile(const std::string& percorso) {
    std::error_code errore;
    return std::filesystem::is_regular_file(percorso, errore) &&
           std::filesystem::file_size(percorso, errore) <= dimensioneMassima;
}

std::vector<float> Converti(const SDL_AudioSpec& formato, const Uint8* dati, Uint32 byte) {
    const std::unique_ptr<SDL_AudioStream, Rilascio> flusso(SDL_NewAudioStream(
        formato.format, formato.channels, formato.freq, AUDIO_F32SYS, 1, frequenza));
    if (!flusso || SDL_AudioStreamPut(flusso.get(), dati, static_cast<int>(byte)) < 0 ||
        SDL_AudioStreamFlush(flusso.get()) < 0)
        return {};
    const int pronti = SDL_AudioStreamAvailable(flusso.get());
    std::vector<float> campioni(static_cast<std::size_t>(pronti) / sizeof(float));
    const int letti = SDL_AudioStreamGet(flusso.get(), campioni.data(),
                                         static_cast<int>(campioni.size() * sizeof(float)));
    if (letti < 0) return {};
    campioni.resize(static_cast<std::size_t>(letti) / sizeof(float));
    return campioni;
}

}  // namespace

std::optional<Onda> CaricaOnda(const std::string& percorso) {
    if (!Ammissibile(percorso)) return std::nullopt;
    SDL_AudioSpec formato{};
    Uint8* grezzi = nullptr;
    Uint32 byte = 0;
    if (!SDL_LoadWAV(percorso.c_str(), &formato, &grezzi, &byte)) return std::nullopt;
    const std::unique_ptr<Uint8, Rilascio> dati(grezzi);
    Onda onda{Converti(formato, dati.get(), byte)};
    if (onda.campioni.empty()) return std::nullopt;
    return onda;
}

}  // namespace corvana
