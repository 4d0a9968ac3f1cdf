#include "melody/names.h"

#include <cstddef>

#include "core/text.h"

namespace corvana {

bool NomeRifiutato(std::string_view nome, std::string_view rifiutati) {
    while (!rifiutati.empty()) {
        std::size_t lungo = 1;
        while (lungo < rifiutati.size() &&
               (static_cast<unsigned char>(rifiutati[lungo]) & 0xC0U) == 0x80U)
            ++lungo;
        if (nome.find(rifiutati.substr(0, lungo)) != std::string_view::npos) return true;
        rifiutati.remove_prefix(lungo);
    }
    return false;
}

std::optional<std::string> NomeDaFile(std::string_view file) {
    if (!Minuscolo(file).ends_with(estensioneMelodia)) return std::nullopt;
    return std::string(file.substr(0, file.size() - estensioneMelodia.size()));
}

}  // namespace corvana
