// Files in memory, which fail on demand.
#pragma once

#include <cerrno>
#include <map>
#include <string>

#include "core/files.h"

namespace corvana::prova {

class FileInMemoria final : public ArchivioFile {
public:
    std::map<std::string, std::string> contenuti;
    int erroreLeggi = 0;   ///< errno of every read, 0 for none
    int erroreScrivi = 0;  ///< errno of every write, 0 for none
    int scritture = 0;

    bool Esiste(const std::string& percorso) override { return contenuti.contains(percorso); }
    int Leggi(const std::string& percorso, std::string& contenuto) override {
        if (erroreLeggi) return erroreLeggi;
        const auto trovato = contenuti.find(percorso);
        if (trovato == contenuti.end()) return ENOENT;
        contenuto = trovato->second;
        return 0;
    }
    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override {
        if (erroreScrivi) return erroreScrivi;
        ++scritture;
        contenuti[percorso] = contenuto;
        return 0;
    }
    int CreaCartella(const std::string&) override { return erroreScrivi; }
};

}  // namespace corvana::prova
