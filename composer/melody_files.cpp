#include "composer/melody_files.h"

#include "melody/names.h"

namespace corvana {

MelodieInCartella::MelodieInCartella(ArchivioFile& file, std::string cartella)
    : cartella_(std::move(cartella)) {
    for (const VoceCartella& voce : file.Elenca(cartella_)) {
        const auto nome = voce.cartella ? std::nullopt : NomeDaFile(voce.nome);
        if (!nome) continue;
        const bool usuale = voce.nome == *nome + std::string(estensioneMelodia);
        // Of several that differ in the extension's case alone the usual one is meant.
        if (usuale)
            file_[*nome] = voce.nome;
        else
            file_.emplace(*nome, voce.nome);
    }
}

std::string MelodieInCartella::Percorso(const std::string& nome) const {
    const auto trovato = file_.find(nome);
    return cartella_ +
           (trovato == file_.end() ? nome + std::string(estensioneMelodia) : trovato->second);
}

}  // namespace corvana
