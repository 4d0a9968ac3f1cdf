#include "core/file_faults.h"

#include <cerrno>
#include <system_error>

namespace corvana {

namespace {

int NumeroGuasto(int errore) {
    switch (errore) {
        case ENOSPC:
        case EDQUOT: return guastoDiscoPieno;
        case ENODEV:
        case ENXIO:
        case ENOMEDIUM:
        case ENODATA:  // a bad sector; its own number would pass for a full disk
        case EIO: return guastoDiscoNonPronto;
        default: return errore;
    }
}

}  // namespace

Guasto GuastoFile(int errore) {
    return {NumeroGuasto(errore), std::generic_category().message(errore)};
}

void Controlla(int errore) {
    if (errore != 0) throw GuastoFile(errore);
}

}  // namespace corvana
