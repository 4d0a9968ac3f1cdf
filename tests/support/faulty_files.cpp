#include "tests/support/faulty_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace corvana::prova {

namespace {

constexpr std::array nomi = {"Esiste",           "EsisteCartella", "Leggi",
                             "Scrivi",           "ScriviSeLibero", "Rinomina",
                             "RinominaSeLibero", "CreaCartella",   "Elimina",
                             "EliminaCartella",  "Elenca",         "Supporti"};

std::vector<int> Errori(Operazione operazione) {
    switch (operazione) {
        case Operazione::Esiste:
        case Operazione::EsisteCartella:
        case Operazione::Supporti: return {EIO};
        case Operazione::Leggi:
        case Operazione::Elenca: return {EACCES, EIO, ENOENT};
        case Operazione::Scrivi: return {ENOSPC, EACCES, EIO, EROFS, ENOENT, ENAMETOOLONG, EDQUOT};
        case Operazione::ScriviSeLibero:
            return {ENOSPC, EACCES, EIO, EROFS, ENOENT, ENAMETOOLONG, EDQUOT, EEXIST};
        case Operazione::CreaCartella: return {ENOSPC, EACCES, EIO, EROFS, ENAMETOOLONG};
        case Operazione::Rinomina: return {ENOSPC, EACCES, EIO, EROFS, ENOENT};
        case Operazione::RinominaSeLibero: return {ENOSPC, EACCES, EIO, EROFS, ENOENT, EEXIST};
        case Operazione::Elimina: return {EACCES, EIO, EROFS, ENOENT};
        case Operazione::EliminaCartella: return {EACCES, EIO, EROFS, ENOENT, ENOTEMPTY};
    }
    return {};
}

/// A disk that is full takes files away still; one that may only be read is read still.
bool Coglie(int errore, Operazione operazione) {
    const auto errori = Errori(operazione);
    return std::find(errori.begin(), errori.end(), errore) != errori.end();
}

}  // namespace

std::ostream& operator<<(std::ostream& dove, const ChiamataFile& chiamata) {
    return dove << nomi.at(static_cast<std::size_t>(chiamata.operazione)) << " "
                << chiamata.percorso << " (" << chiamata.passo << ")";
}

std::ostream& operator<<(std::ostream& dove, const GuastoIniettato& guasto) {
    return dove << std::strerror(guasto.errore) << (guasto.aMeta ? ", half of it" : "")
                << (guasto.daAlloraInPoi ? ", from then on" : "");
}

std::vector<GuastoIniettato> GuastiPossibili(Operazione operazione) {
    std::vector<GuastoIniettato> guasti;
    for (const int errore : Errori(operazione))
        guasti.push_back({errore});
    for (const int errore : {EIO, EROFS, ENOSPC, EACCES})
        if (Coglie(errore, operazione)) guasti.push_back({errore, false, true});
    if (operazione == Operazione::Elenca) guasti.push_back({EIO, true});
    return guasti;
}

std::optional<GuastoIniettato> FileConGuasti::Annota(Operazione operazione,
                                                     const std::string& percorso) {
    const std::size_t questa = registro_->chiamate.size();
    registro_->chiamate.push_back({operazione, percorso, registro_->passo});
    const auto& guasto = registro_->guasto;
    if (!guasto || questa < registro_->quale) return {};
    const bool colpita =
        questa == registro_->quale || (guasto->daAlloraInPoi && Coglie(guasto->errore, operazione));
    if (!colpita) return {};
    registro_->chiamate.back().fallita = true;
    return guasto;
}

template <class F>
int FileConGuasti::Fa(Operazione operazione, const std::string& percorso,
                      const std::string& vittima, const F& davvero) {
    const std::lock_guard guardia(registro_->turno);
    const auto guasto = Annota(operazione, percorso);
    const bool cera = !vittima.empty() && sotto_.Esiste(vittima);
    // That it isn't there any more is so, since another program took it away.
    const bool vaVia = operazione == Operazione::Elimina && guasto && guasto->errore == ENOENT;
    if (vaVia) davvero();
    const int esito = guasto ? guasto->errore : davvero();
    registro_->chiamate.back().esito = esito;
    registro_->chiamate.back().alPosto = cera && esito == 0;
    return esito;
}

bool FileConGuasti::Esiste(const std::string& percorso) {
    const std::lock_guard guardia(registro_->turno);
    return !Annota(Operazione::Esiste, percorso) && sotto_.Esiste(percorso);
}

bool FileConGuasti::EsisteCartella(const std::string& percorso) {
    const std::lock_guard guardia(registro_->turno);
    return !Annota(Operazione::EsisteCartella, percorso) && sotto_.EsisteCartella(percorso);
}

int FileConGuasti::Leggi(const std::string& percorso, std::string& contenuto, std::size_t limite) {
    contenuto.clear();
    return Fa(Operazione::Leggi, percorso, "",
              [&] { return sotto_.Leggi(percorso, contenuto, limite); });
}

int FileConGuasti::ScriviAtomico(const std::string& percorso, const std::string& contenuto) {
    return Fa(Operazione::Scrivi, percorso, percorso,
              [&] { return sotto_.ScriviAtomico(percorso, contenuto); });
}

int FileConGuasti::ScriviSeLibero(const std::string& percorso, const std::string& contenuto) {
    return Fa(Operazione::ScriviSeLibero, percorso, percorso,
              [&] { return sotto_.ScriviSeLibero(percorso, contenuto); });
}

int FileConGuasti::Rinomina(const std::string& percorso, const std::string& nuovo) {
    return Fa(Operazione::Rinomina, percorso, nuovo,
              [&] { return sotto_.Rinomina(percorso, nuovo); });
}

int FileConGuasti::RinominaSeLibero(const std::string& percorso, const std::string& nuovo) {
    return Fa(Operazione::RinominaSeLibero, percorso, nuovo,
              [&] { return sotto_.RinominaSeLibero(percorso, nuovo); });
}

int FileConGuasti::CreaCartella(const std::string& percorso) {
    return Fa(Operazione::CreaCartella, percorso, "",
              [&] { return sotto_.CreaCartella(percorso); });
}

int FileConGuasti::Elimina(const std::string& percorso) {
    return Fa(Operazione::Elimina, percorso, percorso, [&] { return sotto_.Elimina(percorso); });
}

int FileConGuasti::EliminaCartella(const std::string& percorso) {
    return Fa(Operazione::EliminaCartella, percorso, "",
              [&] { return sotto_.EliminaCartella(percorso); });
}

int FileConGuasti::Elenca(const std::string& percorso, std::vector<VoceCartella>& voci) {
    const std::lock_guard guardia(registro_->turno);
    const auto guasto = Annota(Operazione::Elenca, percorso);
    voci.clear();
    if (guasto && !guasto->aMeta) return guasto->errore;
    const int errore = sotto_.Elenca(percorso, voci);
    if (guasto) voci.resize(voci.size() / 2);
    return guasto ? guasto->errore : errore;
}

std::vector<std::string> FileConGuasti::Supporti() {
    const std::lock_guard guardia(registro_->turno);
    return Annota(Operazione::Supporti, "") ? std::vector<std::string>{} : sotto_.Supporti();
}

}  // namespace corvana::prova
