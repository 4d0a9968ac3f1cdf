// The file that bears each melody of a folder. Logic thread.
#pragma once

#include <map>
#include <string>

#include "core/files.h"

namespace corvana {

/// A folder as it is listed now.
class MelodieInCartella {
public:
    /// `cartella` ends with its separator.
    MelodieInCartella(ArchivioFile& file, std::string cartella);

    /// The file that has the name, or that is to get it.
    std::string Percorso(const std::string& nome) const;

private:
    std::string cartella_;
    std::map<std::string, std::string> file_;  ///< by the melody's name
};

}  // namespace corvana
