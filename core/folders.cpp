#include "core/folders.h"

namespace corvana {

std::string CercaCartellaProgramma(ArchivioFile& file, const std::string& cartellaEseguibile) {
    for (const char* relativa : {"/../share/corvana", "/../data", "/data"}) {
        std::string cartella = cartellaEseguibile + relativa;
        if (file.Esiste(cartella + "/langit.csv")) return cartella;
    }
    return cartellaEseguibile;
}

std::string CartellaStato(const std::string& scelta, const std::string& casa) {
    if (scelta.starts_with('/')) return scelta;
    return casa.empty() ? "" : casa + "/.local/state";
}

}  // namespace corvana
