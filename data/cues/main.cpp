// Writes the cue waves: cue_maker FOLDER.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "cues.h"

namespace {

void Scrivi(std::ostream& file, std::uint32_t valore, int byte) {
    for (int i = 0; i < byte; ++i)
        file.put(static_cast<char>((valore >> (8 * i)) & 0xFF));
}

void ScriviTestata(std::ostream& file, std::uint32_t byte) {
    constexpr std::uint32_t canali = 1;
    constexpr std::uint32_t byteCampione = 2;
    constexpr std::uint32_t frequenza = corvana::frequenzaSegnali;
    file << "RIFF";
    Scrivi(file, 36 + byte, 4);
    file << "WAVEfmt ";
    Scrivi(file, 16, 4);
    Scrivi(file, 1, 2);
    Scrivi(file, canali, 2);
    Scrivi(file, frequenza, 4);
    Scrivi(file, frequenza * byteCampione * canali, 4);
    Scrivi(file, byteCampione * canali, 2);
    Scrivi(file, 8 * byteCampione, 2);
    file << "data";
    Scrivi(file, byte, 4);
}

bool ScriviOnda(const std::filesystem::path& percorso, const std::vector<double>& onda) {
    std::ofstream file(percorso, std::ios::binary);
    ScriviTestata(file, static_cast<std::uint32_t>(2 * onda.size()));
    for (const double campione : onda)
        Scrivi(file, static_cast<std::uint32_t>(static_cast<std::int32_t>(campione * 32767)), 2);
    file.close();
    return !file.fail();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: cue_maker FOLDER\n";
        return 2;
    }
    const std::filesystem::path cartella = argv[1];
    std::error_code errore;
    std::filesystem::create_directories(cartella, errore);
    const bool scritte = ScriviOnda(cartella / "rok.wav", corvana::Campana()) &&
                         ScriviOnda(cartella / "rko.wav", corvana::Colpo());
    if (!scritte) std::cerr << "cue_maker: can't write to " << cartella << "\n";
    return scritte ? 0 : 1;
}
