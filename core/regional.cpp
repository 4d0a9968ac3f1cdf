#include "core/regional.h"

#include <locale>
#include <stdexcept>

namespace corvana {

char SeparatoreDiSistema() {
    try {
        const std::locale regione("");
        return std::use_facet<std::numpunct<char>>(regione).decimal_point() == ',' ? ',' : '.';
    } catch (const std::runtime_error&) {
        // The environment names a region that this machine doesn't have.
        return '.';
    }
}

}  // namespace corvana
