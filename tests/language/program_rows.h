// The program's own tables of rows, by the name of the window. Any thread.
#pragma once

#include <string_view>

#include "core/language_targets.h"

namespace corvana::prova {

/// Fails the test and is empty for a window that has no table.
Bersagli BersagliDiFinestra(std::string_view nome);

}  // namespace corvana::prova
