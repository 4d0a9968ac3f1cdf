#include "sound/outputs/wave.h"

#include <SDL2/SDL.h>

#include <algorithm>
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
};

bool Ammissibile(const std::string& percorso) {
    std::error_code errore;
    return std::filesystem::is_regular_file(percorso, errore) &&
           std::filesystem::file_size(percorso, errore) <= dimensioneMassima;
}

std::vector<float> Converti(const SDL_AudioSpec& formato, const Uint8* dati, Uint32 byte) {
    SDL_AudioCVT passaggio{};
    if (SDL_BuildAudioCVT(&passaggio, formato.format, formato.channels, formato.freq, AUDIO_F32SYS,
                          1, frequenza) < 0)
        return {};
    const auto crescita = static_cast<std::size_t>(std::max(passaggio.len_mult, 1));
    std::vector<Uint8> spazio(byte * crescita);
    std::copy_n(dati, byte, spazio.begin());
    passaggio.buf = spazio.data();
    passaggio.len = passaggio.len_cvt = static_cast<int>(byte);
    if (passaggio.needed && SDL_ConvertAudio(&passaggio) < 0) return {};
    std::vector<float> campioni(static_cast<std::size_t>(passaggio.len_cvt) / sizeof(float));
    std::memcpy(campioni.data(), spazio.data(), campioni.size() * sizeof(float));
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
