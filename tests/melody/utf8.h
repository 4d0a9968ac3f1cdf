// Whether a text is UTF-8, told without the tables of the program.
#pragma once

#include <string_view>

namespace corvana::prova {

bool EUtf8(std::string_view testo);

}  // namespace corvana::prova
