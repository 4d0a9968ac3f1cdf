// The machine's files. Logic thread.
#pragma once

#include <utility>

#include "core/files.h"

namespace corvana {

class FileReali final : public ArchivioFile {
public:
    /// Removable media are looked for where the system mounts them for this user.
    FileReali();
    /// They are looked for in these folders.
    explicit FileReali(std::vector<std::string> radiciSupporti)
        : radiciSupporti_(std::move(radiciSupporti)) {}

    bool Esiste(const std::string& percorso) override;
    bool EsisteCartella(const std::string& percorso) override;
    int Leggi(const std::string& percorso, std::string& contenuto,
              std::size_t limite = senzaLimite) override;
    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override;
    int ScriviSeLibero(const std::string& percorso, const std::string& contenuto) override;
    int Rinomina(const std::string& percorso, const std::string& nuovo) override;
    int RinominaSeLibero(const std::string& percorso, const std::string& nuovo) override;
    int CreaCartella(const std::string& percorso) override;
    int Elimina(const std::string& percorso) override;
    int EliminaCartella(const std::string& percorso) override;
    using ArchivioFile::Elenca;
    int Elenca(const std::string& percorso, std::vector<VoceCartella>& voci) override;
    std::vector<std::string> Supporti() override;

private:
    using Nominare = int (FileReali::*)(const std::string& percorso, const std::string& nuovo);
    int Scrivi(const std::string& percorso, const std::string& contenuto, Nominare nominare);

    std::vector<std::string> radiciSupporti_;
};

}  // namespace corvana
