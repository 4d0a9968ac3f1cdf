// A user's home and a removable medium in memory, so that real windows show and touch nobody's
// disk. GUI thread.
#pragma once

#include "tests/desktop/program_stage.h"
#include "tests/support/memory_files.h"

namespace corvana::prova {

/// The machine gets its files from there: what lies in the program's folder `dati`, an empty home,
/// and a medium with one melody.
void DaiCasa(FileInMemoria& file, Macchina& macchina, const QString& dati);

/// More melodies on the medium, for a picture.
void RiempiSupporto(FileInMemoria& file);

}  // namespace corvana::prova
