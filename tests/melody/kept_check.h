// What must hold whatever bytes the file of a melody that isn't saved has.
#pragma once

#include <string>
#include <string_view>

namespace corvana::prova {

/// Reads the bytes as they are, and once more as the fields of a file whose line and checksum are
/// right. Returns what doesn't hold; empty when all does.
std::string ControllaTenuta(std::string_view byte);

}  // namespace corvana::prova
