// Files and folders, as the logic reads and writes them: files whole, and never half of one. Paths
// have '/' between their parts. Logic thread.
#pragma once

#include <string>
#include <vector>

namespace corvana {

struct VoceCartella {
    std::string nome;
    bool cartella = false;  ///< a folder, else a file
    bool operator==(const VoceCartella&) const = default;
};

class ArchivioFile {
public:
    ArchivioFile() = default;
    ArchivioFile(const ArchivioFile&) = delete;
    ArchivioFile& operator=(const ArchivioFile&) = delete;
    virtual ~ArchivioFile() = default;

    /// True for a file, not for a folder.
    virtual bool Esiste(const std::string& percorso) = 0;
    virtual bool EsisteCartella(const std::string& percorso) = 0;
    /// Reads all bytes into `contenuto`. Returns 0 or the errno of what failed.
    virtual int Leggi(const std::string& percorso, std::string& contenuto) = 0;
    /// Replaces the file: whatever interrupts it, the old or the new content is there, whole.
    /// Returns 0 or the errno of what failed.
    virtual int ScriviAtomico(const std::string& percorso, const std::string& contenuto) = 0;
    /// Makes the folder and those above it. Returns 0 (also when it is there) or the errno.
    virtual int CreaCartella(const std::string& percorso) = 0;
    /// What lies in the folder, in any order, without "." and "..": what can be read of it.
    virtual std::vector<VoceCartella> Elenca(const std::string& percorso) = 0;
    /// The folder of the removable medium that is in the machine, with a closing separator; empty
    /// when there is none.
    virtual std::string SupportoRimovibile() = 0;
};

}  // namespace corvana
