// What must hold whatever bytes a melody file has.
#pragma once

#include <string>
#include <string_view>

namespace corvana::prova {

/// Reads the bytes with the comma and with the point, writes what was read, reads it again, and
/// walks over its notes. Returns what doesn't hold; empty when all does.
std::string ControllaMel(std::string_view byte);

}  // namespace corvana::prova
