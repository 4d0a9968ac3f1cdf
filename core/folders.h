// Where what is laid beside the program lies, and what it keeps for itself. Any thread.
#pragma once

#include <string>

#include "core/files.h"

namespace corvana {

/// The folder with the language files and the cues, for a program that lies in
/// `cartellaEseguibile`: beside an installed program, or in the build tree. Without any, the
/// program's own folder.
std::string CercaCartellaProgramma(ArchivioFile& file, const std::string& cartellaEseguibile);

/// Where the user's programs keep what is to outlive them and is no setting, without a closing
/// separator: `scelta`, the value of XDG_STATE_HOME, when it is a whole path, else the usual folder
/// in the user's home. Empty where there is no home.
std::string CartellaStato(const std::string& scelta, const std::string& casa);

}  // namespace corvana
