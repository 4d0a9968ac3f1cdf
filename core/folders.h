// Where what is laid beside the program lies. Logic thread.
#pragma once

#include <string>

#include "core/files.h"

namespace corvana {

/// The folder with the language files and the cues, for a program that lies in
/// `cartellaEseguibile`: beside an installed program, or in the build tree. Without any, the
/// program's own folder.
std::string CercaCartellaProgramma(ArchivioFile& file, const std::string& cartellaEseguibile);

}  // namespace corvana
