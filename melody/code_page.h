// Texts in the 8-bit Western code page, Windows-1252, which melody files are written in. Any
// thread.
#pragma once

#include <string>
#include <string_view>

namespace corvana {

/// The bytes as UTF-8. The five codes that the page leaves free stand for themselves.
std::string DaCodicePagina(std::string_view byte);

/// The UTF-8 text in bytes of the page. Throws `Guasto` 5, naming the character, when the page
/// doesn't have it, and also when the text isn't UTF-8.
std::string InCodicePagina(std::string_view testo);

}  // namespace corvana
