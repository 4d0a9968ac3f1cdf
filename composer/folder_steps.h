// The list of folders and melodies: what its rows say of a folder, what opening one makes of the
// path, and in which of the roots a path lies. Paths of folders end in '/'. Any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"

namespace corvana {

/// What a row of the list stands for.
enum class GenereRiga : std::uint8_t { Nessuna, Sopra, Cartella, Melodia };

/// An empty row stands for nothing.
GenereRiga GenereDi(std::string_view riga);

/// The name of the folder that the row stands for.
std::string_view CartellaDellaRiga(std::string_view riga);

/// The folder that opening the row leads to from `percorso`: the one above, as far as there is one,
/// or the one of that name. A melody's row leads nowhere else.
std::string Aperta(std::string percorso, std::string_view riga);

/// The rows for what lies in the folder `percorso`: the folder above, unless it is the root, the
/// folders, the melodies; each in order, without regard to case. Files that differ in their
/// extension's case alone are one row.
std::vector<std::string> RigheCartella(const std::string& percorso,
                                       const std::vector<VoceCartella>& voci);

/// The melodies among them, in order, without regard to case, each name once.
std::vector<std::string> NomiMelodie(const std::vector<VoceCartella>& voci);

/// There is neither a folder nor a melody among them.
bool SenzaMelodie(const std::vector<VoceCartella>& voci);

/// Each with its separator and once, in the order given; empty ones are left out.
std::vector<std::string> RadiciDistinte(const std::vector<std::string>& radici);

/// The longest of the roots in which the folder `percorso` lies, by its number; -1 for none.
int RadiceDi(const std::vector<std::string>& radici, std::string_view percorso);

/// The folder with its closing separator.
std::string ConSeparatore(std::string cartella);

}  // namespace corvana
