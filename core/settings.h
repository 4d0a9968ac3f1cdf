// The few texts that survive between runs, each under its name in one small file.
// Reading reports its failures in a box, writing never does. Logic thread.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "forms/boxes.h"

namespace corvana {

class Impostazioni {
public:
    /// `percorso` is the store's file.
    Impostazioni(ArchivioFile& file, Riquadri& riquadri, std::string percorso)
        : file_(file), riquadri_(riquadri), percorso_(std::move(percorso)) {}

    /// Makes the store with its four values, empty, when there is none: the program's start calls
    /// it before anything is read, so that a newcomer meets no error box. A store that is damaged,
    /// so that one of the four can't be read, is told of, here alone, by the box that reading would
    /// show; it is put aside under its name with ".damaged", and one with what can be read of it
    /// takes its place.
    void Prepara();

    /// The value, cut before its first zero character. Empty, after a box with the error's code,
    /// when the store can't be opened (Error1), has no such value (Error2, code 2), or holds it in
    /// a form that can't be read (Error3).
    std::string LeggiValore(const std::string& nome);
    /// The store has a value of that name, readable or not. Says nothing.
    bool Contiene(const std::string& nome);
    /// Does nothing, and says nothing, when the store is absent or can't be written.
    void ScriviValore(const std::string& nome, const std::string& valore);

private:
    using Voci = std::vector<std::pair<std::string, std::string>>;
    int Apri(Voci& voci);
    void Salva(const Voci& voci);
    void Ripara(const Voci& voci, const std::string& difetto);

    ArchivioFile& file_;
    Riquadri& riquadri_;
    std::string percorso_;
};

}  // namespace corvana
