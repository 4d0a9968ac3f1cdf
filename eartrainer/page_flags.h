// The ear trainer's five pages, and the flags by which the main window says which one it wants.
// Pure; any thread.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace corvana {

/// In the order of the flags, in which the flagged pages are entered: the last one stays in front.
enum class PaginaInto : std::uint8_t { Intonazione, Intervalli, Accordi, Tasti, Tonalita };

constexpr std::array pagineInto = {PaginaInto::Intonazione, PaginaInto::Intervalli,
                                   PaginaInto::Accordi, PaginaInto::Tasti, PaginaInto::Tonalita};

using BandiereInto = std::array<bool, pagineInto.size()>;

/// The flags after a page was entered: its own is set, and only some of the others are cleared, so
/// that several can stand.
BandiereInto DopoIngresso(BandiereInto bandiere, PaginaInto pagina);

/// The page of the help for it.
int AiutoDi(PaginaInto pagina);

}  // namespace corvana
