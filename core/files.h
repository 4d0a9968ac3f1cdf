// Files, as the logic reads and writes them: whole, and never half of one. Logic thread.
#pragma once

#include <string>

namespace corvana {

class ArchivioFile {
public:
    ArchivioFile() = default;
    ArchivioFile(const ArchivioFile&) = delete;
    ArchivioFile& operator=(const ArchivioFile&) = delete;
    virtual ~ArchivioFile() = default;

    virtual bool Esiste(const std::string& percorso) = 0;
    /// Reads all bytes into `contenuto`. Returns 0 or the errno of what failed.
    virtual int Leggi(const std::string& percorso, std::string& contenuto) = 0;
    /// Replaces the file: whatever interrupts it, the old or the new content is there, whole.
    /// Returns 0 or the errno of what failed.
    virtual int ScriviAtomico(const std::string& percorso, const std::string& contenuto) = 0;
    /// Makes the folder and those above it. Returns 0 (also when it is there) or the errno.
    virtual int CreaCartella(const std::string& percorso) = 0;
};

}  // namespace corvana
