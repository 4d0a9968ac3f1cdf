// Files and folders, as the logic reads and writes them: files whole, and never half of one. Paths
// have '/' between their parts. Logic thread.
#pragma once

#include <cerrno>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace corvana {

constexpr std::size_t senzaLimite = std::numeric_limits<std::size_t>::max();
/// The program's own texts, languages and settings, are a few thousand bytes long. What is far
/// longer was put there by mistake, and isn't read.
constexpr std::size_t limiteTesti = 1024 * 1024;

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
    /// Reads all bytes into `contenuto`. Returns 0 or the errno of what failed: EFBIG when there
    /// are more than `limite`, EINVAL when it is neither a file nor a folder. Never waits for
    /// anybody.
    virtual int Leggi(const std::string& percorso, std::string& contenuto,
                      std::size_t limite = senzaLimite) = 0;
    /// Replaces the file: whatever interrupts it, the old or the new content is there, whole.
    /// Returns 0 or the errno of what failed.
    virtual int ScriviAtomico(const std::string& percorso, const std::string& contenuto) = 0;
    /// The same, but the name must be nobody's, else it returns EEXIST.
    virtual int ScriviSeLibero(const std::string& percorso, const std::string& contenuto) {
        return Esiste(percorso) || EsisteCartella(percorso) ? EEXIST
                                                            : ScriviAtomico(percorso, contenuto);
    }
    /// Gives the file or folder another name; a file, or an empty folder, that had it before is
    /// gone. Returns 0 or the errno.
    virtual int Rinomina(const std::string& percorso, const std::string& nuovo) = 0;
    /// The same, but the name must be nobody's, else it returns EEXIST.
    virtual int RinominaSeLibero(const std::string& percorso, const std::string& nuovo) = 0;
    /// Makes the folder and those above it. Returns 0 (also when it is there) or the errno.
    virtual int CreaCartella(const std::string& percorso) = 0;
    /// Takes the file away, not a folder. Returns 0 or the errno.
    virtual int Elimina(const std::string& percorso) = 0;
    /// Takes the folder away, which must be empty. Returns 0 or the errno.
    virtual int EliminaCartella(const std::string& percorso) = 0;
    /// Puts the folders and files in it into `voci`, in any order, without "." and "..": what can
    /// be read of it. Returns 0 or the errno of what ended the reading before the end.
    virtual int Elenca(const std::string& percorso, std::vector<VoceCartella>& voci) = 0;
    /// The folders of the removable media that are in the machine, each with a closing separator.
    virtual std::vector<std::string> Supporti() = 0;

    /// What can be read of the folder.
    std::vector<VoceCartella> Elenca(const std::string& percorso) {
        std::vector<VoceCartella> voci;
        Elenca(percorso, voci);
        return voci;
    }
    /// The first of the removable media; empty when there is none.
    std::string SupportoRimovibile() {
        const std::vector<std::string> supporti = Supporti();
        return supporti.empty() ? "" : supporti.front();
    }
};

}  // namespace corvana
