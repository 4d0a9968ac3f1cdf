// What an evening's user sees of his melody, and what is left of it when the program was killed.
#pragma once

#include <optional>
#include <string>

#include "tests/desktop/evening.h"

namespace corvana::misura {

/// One line of text, with tabs between the fields.
struct Veduta {
    bool modificata = false;
    std::string nome;  ///< as the window shows it
    int note = 0;      ///< of the soprano
    std::string riferimenti;
    bool operator==(const Veduta&) const = default;
};

std::string Riga(const Veduta& veduta);
std::optional<Veduta> Letta(const std::string& riga);

/// Nothing while another window stands in front.
std::optional<Veduta> NellaFinestra(prova::Sera& sera);
/// What the next opening would bring back; nothing when nothing is kept.
std::optional<Veduta> NellaTenuta(const std::string& percorso);
/// The file that was saved as what is seen holds just that. True where nothing was saved, and where
/// the user has deleted it himself.
bool Salvata(const std::string& cartella, const Veduta& veduta);

}  // namespace corvana::misura
