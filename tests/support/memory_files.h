// Files in memory, which fail on demand.
#pragma once

#include <algorithm>
#include <cerrno>
#include <map>
#include <set>
#include <string>

#include "core/files.h"

namespace corvana::prova {

class FileInMemoria final : public ArchivioFile {
public:
    std::map<std::string, std::string> contenuti;
    int erroreLeggi = 0;   ///< errno of every read, 0 for none
    int erroreScrivi = 0;  ///< errno of every write, 0 for none
    int erroreElenca = 0;  ///< errno of every listing, behind what it lists; 0 for none
    int scritture = 0;
    std::set<std::string> cartelle;  ///< those that exist, without a closing separator
    std::string supportoRimovibile;  ///< with one; empty for none

    bool Esiste(const std::string& percorso) override { return contenuti.contains(percorso); }
    int Leggi(const std::string& percorso, std::string& contenuto,
              std::size_t limite = senzaLimite) override {
        if (erroreLeggi) return erroreLeggi;
        const auto trovato = contenuti.find(percorso);
        if (trovato == contenuti.end()) return ENOENT;
        if (trovato->second.size() > limite) return EFBIG;
        contenuto = trovato->second;
        return 0;
    }
    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override {
        if (erroreScrivi) return erroreScrivi;
        ++scritture;
        contenuti[percorso] = contenuto;
        return 0;
    }
    int Rinomina(const std::string& percorso, const std::string& nuovo) override {
        if (erroreScrivi) return erroreScrivi;
        auto nodo = contenuti.extract(percorso);
        if (nodo.empty()) return ENOENT;
        contenuti[nuovo] = std::move(nodo.mapped());
        return 0;
    }
    bool EsisteCartella(const std::string& percorso) override {
        return cartelle.contains(SenzaSeparatore(percorso));
    }
    int CreaCartella(const std::string& percorso) override {
        if (erroreScrivi) return erroreScrivi;
        for (std::string resto = SenzaSeparatore(percorso); !resto.empty();
             resto.erase(std::min(resto.rfind('/'), resto.size())))
            cartelle.insert(resto);
        return 0;
    }
    int Elimina(const std::string& percorso) override {
        if (erroreScrivi) return erroreScrivi;
        return contenuti.erase(percorso) == 0 ? ENOENT : 0;
    }
    int EliminaCartella(const std::string& percorso) override {
        if (erroreScrivi) return erroreScrivi;
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
    static std::string SenzaSeparatore(const std::string& percorso) {
        return percorso.substr(0, percorso.find_last_not_of('/') + 1);
    }
};

}  // namespace corvana::prova
