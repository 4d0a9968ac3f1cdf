// What the lists of the melody window hold before it is opened. Logic thread.
#pragma once

#include "forms/control.h"

namespace corvana {

/// Gives a list its rows and chooses one, without a click.
inline void Riempi(Lista& lista, Righe righe, int scelta) {
    lista.List = std::move(righe);
    lista.ListIndex = scelta;
}

/// The numbers 1 to `fine`, a row each.
inline Righe Numeri(int fine) {
    Righe numeri;
    for (int i = 1; i <= fine; ++i)
        numeri.push_back(std::to_string(i));
    return numeri;
}

}  // namespace corvana
