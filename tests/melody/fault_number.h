// The number of the fault that an action ends with.
#pragma once

#include "forms/fault.h"

namespace corvana::prova {

/// 0 when it ends without one.
template <typename Azione>
int NumeroDelGuasto(Azione azione) {
    try {
        azione();
    } catch (const Guasto& guasto) {
        return guasto.Numero();
    }
    return 0;
}

}  // namespace corvana::prova
