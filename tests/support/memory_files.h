// Files in memory, which fail on demand.
#pragma once

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
        return cartelle.contains(percorso.substr(0, percorso.find_last_not_of('/') + 1));
    }
    int CreaCartella(const std::string&) override { return erroreScrivi; }
    std::vector<VoceCartella> Elenca(const std::string& percorso) override {
        std::vector<VoceCartella> voci;
        const auto aggiungi = [&](const std::string& nome, bool cartella) {
            if (!nome.starts_with(percorso) || nome == percorso) return;
            const std::string resto = nome.substr(percorso.size());
            if (resto.find('/') == std::string::npos) voci.push_back({resto, cartella});
        };
        for (const auto& [nome, contenuto] : contenuti)
            aggiungi(nome, false);
        for (const std::string& nome : cartelle)
            aggiungi(nome, true);
        return voci;
    }
    std::string SupportoRimovibile() override { return supportoRimovibile; }
};

}  // namespace corvana::prova
