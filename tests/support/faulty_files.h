// Files of which every call is counted and any can be made to fail, with those beneath untouched by
// it. Any number of them share one list of calls. Any thread; one call at a time gets through.
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "core/files.h"

namespace corvana::prova {

enum class Operazione {
    Esiste,
    EsisteCartella,
    Leggi,
    Scrivi,
    ScriviSeLibero,
    Rinomina,
    RinominaSeLibero,
    CreaCartella,
    Elimina,
    EliminaCartella,
    Elenca,
    Supporti,
};

struct ChiamataFile {
    Operazione operazione{};
    std::string percorso;
    std::string passo;     ///< what the user was doing
    int esito = 0;         ///< what it returned
    bool fallita = false;  ///< and that was made up
    bool alPosto = false;  ///< it took the place of a file, or took one away
};
std::ostream& operator<<(std::ostream& dove, const ChiamataFile& chiamata);

/// What goes wrong with a call.
struct GuastoIniettato {
    int errore = 0;              ///< what it returns; for a question: the answer is No, or nothing
    bool aMeta = false;          ///< half of what could be read comes all the same
    bool daAlloraInPoi = false;  ///< each later call that it fits fails too
};
std::ostream& operator<<(std::ostream& dove, const GuastoIniettato& guasto);

/// Those that can happen to the operation on a disk, each once and from then on.
std::vector<GuastoIniettato> GuastiPossibili(Operazione operazione);

/// The calls of one disk, and which of them is to fail.
struct RegistroFile {
    std::mutex turno;
    std::vector<ChiamataFile> chiamate;
    std::string passo;      ///< what the user is doing
    std::size_t quale = 0;  ///< number of the call that fails first, from 0
    std::optional<GuastoIniettato> guasto;
};

class FileConGuasti final : public ArchivioFile {
public:
    /// `sotto` must outlive it.
    FileConGuasti(ArchivioFile& sotto, std::shared_ptr<RegistroFile> registro)
        : sotto_(sotto), registro_(std::move(registro)) {}

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
    /// Takes the call down; what goes wrong with it, if anything does.
    std::optional<GuastoIniettato> Annota(Operazione operazione, const std::string& percorso);
    /// `vittima` is the file that a success would replace or take away.
    template <class F>
    int Fa(Operazione operazione, const std::string& percorso, const std::string& vittima,
           const F& davvero);

    ArchivioFile& sotto_;
    std::shared_ptr<RegistroFile> registro_;
};

}  // namespace corvana::prova
