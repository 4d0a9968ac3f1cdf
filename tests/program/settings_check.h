// What must hold whatever bytes the settings' file has.
#pragma once

#include <string>
#include <string_view>

namespace corvana::prova {

/// The first half of the bytes is the file, the second a value that is stored. The program starts
/// with the file, reads all that it keeps there, and stores the value. Returns what doesn't hold;
/// empty when all does.
std::string ControllaImpostazioni(std::string_view byte);

}  // namespace corvana::prova
