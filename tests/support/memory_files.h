// Files in memory, which fail on demand.
#pragma once

#include <algorithm>
#include <cerrno>
#include <map>
#include <set>
#include <string>

#include "core/files.h"

namespace corvana::prova {

class FileInMemoria : public ArchivioFile {
public:
    std::map<std::string, std::string> contenuti;
    int erroreLeggi = 0;   ///< errno of every read, 0 for none
    int erroreScrivi = 0;  ///< errno of every write, 0 for none
    int erroreElenca = 0;  ///< errno of every listing, behind what it lists; 0 for none
    int scritture = 0;
    std::set<std::string> cartelle;     ///< those that exist, without a closing separator
    std::string supportoRimovibile;     ///< with one; empty for none
    std::map<std::string, int> guasti;  ///< errno of reading or changing a path, as it is given
    bool radice = true;                 ///< the root exists

    bool Esiste(const std::string& percorso) override { return contenuti.contains(percorso); }
    int Leggi(const std::string& percorso, std::string& contenuto,
              std::size_t limite = senzaLimite) override {
        if (erroreLeggi) return erroreLeggi;
        if (guasti.contains(percorso)) return guasti.at(percorso);
        const auto trovato = contenuti.find(percorso);
        if (trovato == contenuti.end()) return ENOENT;
        if (trovato->second.size() > limite) return EFBIG;
        contenuto = trovato->second;
        return 0;
    }
    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override {
        if (const int errore = Guasto(percorso)) return errore;
        ++scritture;
        contenuti[percorso] = contenuto;
        return 0;
    }
    int Rinomina(const std::string& percorso, const std::string& nuovo) override {
        if (const int errore = Guasto(percorso)) return errore;
        if (EsisteCartella(percorso))
            return RinominaCartella(SenzaSeparatore(percorso), SenzaSeparatore(nuovo));
        auto nodo = contenuti.extract(percorso);
        if (nodo.empty()) return ENOENT;
        contenuti[nuovo] = std::move(nodo.mapped());
        return 0;
    }
    int RinominaSeLibero(const std::string& percorso, const std::string& nuovo) override {
        return Esiste(nuovo) || EsisteCartella(nuovo) ? EEXIST : Rinomina(percorso, nuovo);
    }
    bool EsisteCartella(const std::string& percorso) override {
        return percorso == "/" ? radice : cartelle.contains(SenzaSeparatore(percorso));
    }
    int CreaCartella(const std::string& percorso) override {
        if (const int errore = Guasto(percorso)) return errore;
        for (std::string resto = SenzaSeparatore(percorso); !resto.empty();
             resto.resize(resto.find('/') != std::string::npos ? resto.rfind('/') : 0))
            cartelle.insert(resto);
        return 0;
    }
    int Elimina(const std::string& percorso) override {
        if (const int errore = Guasto(percorso)) return errore;
        return contenuti.erase(percorso) == 0 ? ENOENT : 0;
    }
    int EliminaCartella(const std::string& percorso) override {
        if (const int errore = Guasto(percorso)) return errore;
        if (!EsisteCartella(percorso)) return ENOENT;
        if (!ArchivioFile::Elenca(SenzaSeparatore(percorso) + "/").empty()) return ENOTEMPTY;
        cartelle.erase(SenzaSeparatore(percorso));
        return 0;
    }
    using ArchivioFile::Elenca;
    int Elenca(const std::string& percorso, std::vector<VoceCartella>& voci) override {
        voci.clear();
        const auto aggiungi = [&](const std::string& nome, bool cartella) {
            if (!nome.starts_with(percorso) || nome == percorso) return;
            const std::string resto = nome.substr(percorso.size());
            if (resto.find('/') == std::string::npos) voci.push_back({resto, cartella});
        };
        for (const auto& [nome, contenuto] : contenuti)
            aggiungi(nome, false);
        for (const std::string& nome : cartelle)
            aggiungi(nome, true);
        return erroreElenca;
    }
    std::vector<std::string> Supporti() override {
        return supportoRimovibile.empty() ? std::vector<std::string>{}
                                          : std::vector{supportoRimovibile};
    }

private:
    int Guasto(const std::string& percorso) const {
        const auto trovato = guasti.find(percorso);
        return trovato == guasti.end() ? erroreScrivi : trovato->second;
    }
    /// With all that lies in it, in the place of one that is empty.
    int RinominaCartella(const std::string& percorso, const std::string& nuovo) {
        if (contenuti.contains(nuovo)) return ENOTDIR;
        if (!ArchivioFile::Elenca(nuovo + "/").empty()) return ENOTEMPTY;
        const auto altrove = [&](const std::string& nome) {
            return nuovo + nome.substr(percorso.size());
        };
        std::map<std::string, std::string> contenutiNuovi;
        for (auto& [nome, contenuto] : contenuti)
            contenutiNuovi[nome.starts_with(percorso + "/") ? altrove(nome) : nome] =
                std::move(contenuto);
        std::set<std::string> cartelleNuove;
        for (const std::string& nome : cartelle)
            cartelleNuove.insert(
                nome == percorso || nome.starts_with(percorso + "/") ? altrove(nome) : nome);
        contenuti = std::move(contenutiNuovi);
        cartelle = std::move(cartelleNuove);
        return 0;
    }
    static std::string SenzaSeparatore(const std::string& percorso) {
        return percorso.substr(0, percorso.find_last_not_of('/') + 1);
    }
};

}  // namespace corvana::prova
