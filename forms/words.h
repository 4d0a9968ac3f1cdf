// The words that the desktop itself says: on the buttons of boxes, in the menus of text boxes, and
// around the pages of the help.
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
    // The help's window; the last one before a folder's name.
    std::string parAiuto = "Aiuto", parIndietro = "‹ Indietro", parAvanti = "Avanti ›",
                parIndice = "Indice",
                parAiutoManca = "Le pagine dell'aiuto non si trovano. Dovrebbero essere in:";
};

}  // namespace corvana
