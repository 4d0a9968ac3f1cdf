#include "core/folders.h"

namespace corvana {

std::string CercaCartellaProgramma(ArchivioFile& file, const std::string& cartellaEseguibile) {
    for (const char* relativa : {"/../share/corvana", "/../data", "/data"}) {
        std::string cartella = cartellaEseguibile + relativa;
        if (file.Esiste(cartella + "/langit.csv")) return cartella;
    }
    return cartellaEseguibile;
}

}  // namespace corvana
