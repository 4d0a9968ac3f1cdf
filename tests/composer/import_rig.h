// The import window over the melody window, without a script: the test sends what the user does.
#pragma once

#include "composer/copy_from_a.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

struct BancoImporta : BancoComposer {
    static constexpr const char* medio = "/media/stick/";
    static constexpr const char* mia = "/home/mine/";

    BancoImporta() : BancoImporta(file) {}
    /// With melodies that lie elsewhere than in memory.
    explicit BancoImporta(ArchivioFile& archivio)
        : BancoComposer(archivio),
          importa({globali, pompa, finestre, riquadri, suono, impostazioni, archivio, casuale},
                  finestra, [this] {
                      ++elencata;
                      finestra.archivio.ListaFD();
                  }) {
        globali.percorsoCorrente = mia;
        file.supportoRimovibile = medio;
        riquadri.durante = [this](const std::string&) {
            puntatori.push_back(importa.MousePointer());
        };
    }

    frmCopyFromA importa;
    int elencata = 0;            ///< times that the melody window's list was read anew
    std::vector<int> puntatori;  ///< the pointer's shape as each box comes up

    void Sul(const std::string& nome, const std::string& byte) {
        file.contenuti[medio + nome] = byte;
    }
    std::string Copiato(const std::string& nome) const {
        const auto trovato = file.contenuti.find(mia + nome);
        return trovato == file.contenuti.end() ? "no such file" : trovato->second;
    }
    void Apri() { finestre.Mostra(importa); }
    /// The user has those rows selected.
    void Segna(const NumeriRiga& scelte) {
        Evento e;
        e.valore = scelte.empty() ? -1 : scelte.back();
        e.scelte = scelte;
        coda.Aggiungi(Fatta(e, "List1"));
        pompa.PompaEventi();
    }
    void Copia(const NumeriRiga& scelte) {
        Segna(scelte);
        Subito(Fatto::Click, "cmdCopia");
    }
    bool Aperta() const { return finestre.Davanti() == &importa; }
};

/// So many melodies on the medium, whose names are in the order of their numbers.
inline void Riempi(BancoImporta& b, int quante) {
    for (int i = 0; i < quante; ++i)
        b.Sul("m" + std::to_string(1000 + i) + ".mel", std::to_string(i));
}

inline int Copiati(const BancoImporta& b) {
    int copiati = 0;
    for (const auto& [nome, byte] : b.file.contenuti)
        copiati += nome.starts_with(BancoImporta::mia) ? 1 : 0;
    return copiati;
}

}  // namespace corvana::prova
