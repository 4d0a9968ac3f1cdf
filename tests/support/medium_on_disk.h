// The machine's own files, with a folder that stands for a removable medium.
#pragma once

#include "core/real_files.h"

namespace corvana::prova {

class FileConSupporto final : public ArchivioFile {
public:
    std::vector<std::string> supporti;  ///< folders with a closing separator

    bool Esiste(const std::string& percorso) override { return veri_.Esiste(percorso); }
    bool EsisteCartella(const std::string& percorso) override {
        return veri_.EsisteCartella(percorso);
    }
    int Leggi(const std::string& percorso, std::string& contenuto,
              std::size_t limite = senzaLimite) override {
        return veri_.Leggi(percorso, contenuto, limite);
    }
    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override {
        return veri_.ScriviAtomico(percorso, contenuto);
    }
    int ScriviSeLibero(const std::string& percorso, const std::string& contenuto) override {
        return veri_.ScriviSeLibero(percorso, contenuto);
    }
    int Rinomina(const std::string& percorso, const std::string& nuovo) override {
        return veri_.Rinomina(percorso, nuovo);
    }
    int RinominaSeLibero(const std::string& percorso, const std::string& nuovo) override {
        return veri_.RinominaSeLibero(percorso, nuovo);
    }
    int CreaCartella(const std::string& percorso) override { return veri_.CreaCartella(percorso); }
    int Elimina(const std::string& percorso) override { return veri_.Elimina(percorso); }
    int EliminaCartella(const std::string& percorso) override {
        return veri_.EliminaCartella(percorso);
    }
    using ArchivioFile::Elenca;
    int Elenca(const std::string& percorso, std::vector<VoceCartella>& voci) override {
        return veri_.Elenca(percorso, voci);
    }
    std::vector<std::string> Supporti() override { return supporti; }

private:
    FileReali veri_{{}};
};

}  // namespace corvana::prova
