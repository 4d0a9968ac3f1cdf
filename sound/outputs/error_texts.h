// The texts for the result codes of the platform's calls. Pure.
#pragma once

#include <string>

namespace corvana {

std::string TestoErroreMidi(int codice);

}  // namespace corvana
