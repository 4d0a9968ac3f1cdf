// The words that the desktop itself says, on the buttons of boxes and in the menus of text boxes.
// As designed they are Italian. Any thread.
#pragma once

#include <string>

namespace corvana {

struct ParoleSchermo {
    // Buttons of boxes.
    std::string parSi = "&Sì", parNo = "&No", parOk = "OK", parAnnulla = "Annulla";
    // The menu of a text.
    std::string parAnnullaModifica = "&Annulla", parRipeti = "&Ripeti", parTaglia = "&Taglia",
                parCopia = "&Copia", parCopiaIndirizzo = "Copia i&ndirizzo",
                parIncolla = "&Incolla", parElimina = "&Elimina",
                parSelezionaTutto = "&Seleziona tutto";
};

}  // namespace corvana
