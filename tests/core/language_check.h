// What must hold whatever bytes a language file has.
#pragma once

#include <string>
#include <string_view>

namespace corvana::prova {

/// Applies the bytes to a window, applies them again, applies what the window then says, and a row
/// behind them. Returns what doesn't hold; empty when all does.
std::string ControllaLingua(std::string_view byte);

}  // namespace corvana::prova
