// The machine's files. Logic thread.
#pragma once

#include "core/files.h"

namespace corvana {

class FileReali final : public ArchivioFile {
public:
    bool Esiste(const std::string& percorso) override;
    int Leggi(const std::string& percorso, std::string& contenuto) override;
    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override;
    int CreaCartella(const std::string& percorso) override;
};

}  // namespace corvana
