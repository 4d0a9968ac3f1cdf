// What the logic tells the face, as plain data that crosses from the logic thread to the GUI
// thread.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "forms/control.h"
#include "forms/value.h"
#include "forms/words.h"

namespace corvana {

/// A control as it stands when its window is shown.
struct CopiaControllo {
    int numero = 0;
    int padre = 0;  ///< number of what it lies in; of the window itself 0
    Genere tipo = Genere::Finestra;
    std::string nome;
    std::string stile;
    std::vector<std::pair<Nome, Valore>> proprieta;
    int lunghezzaMassima = 0;  ///< characters that a text box takes, 0 for no limit
    int passoGrande = 0;       ///< what a click beside the thumb of a slider moves it by
    char32_t (*filtro)(char32_t) = nullptr;
};

struct MostraFinestra {
    std::uint32_t finestra;
    bool modale;
    bool collocata;                         ///< it is to stand where it says
    std::vector<CopiaControllo> controlli;  ///< by number, the window itself first
};

struct CambiaProprieta {
    std::uint32_t finestra;
    int controllo;
    Nome nome;
    Valore valore;
};

struct DaiFuoco {
    std::uint32_t finestra;
    int controllo;
};

struct ChiudiFinestra {
    std::uint32_t finestra;
};

/// The system is to drag the window from here on, as if by its caption.
struct TrascinaFinestra {
    std::uint32_t finestra;
};

/// The context menu is to be opened where the user asked for it.
struct ApriMenu {
    std::uint32_t finestra;
    int controllo;
};

/// The help is to be shown: `file` names it, `contesto` the page.
struct MostraAiuto {
    std::string file;
    int contesto;
};

/// The words and the help of another language.
struct CambiaLingua {
    ParoleSchermo parole;
    std::string aiuto;
};

enum class GenereRiquadro : std::uint8_t { Messaggio, Domanda, Immissione };

struct ApriRiquadro {
    int numero;  ///< to be given with the answer
    GenereRiquadro genere;
    std::string testo, titolo, proposta;
};

/// The logic has returned and says nothing more.
struct FineLogica {};

using Comando =
    std::variant<MostraFinestra, CambiaProprieta, DaiFuoco, ChiudiFinestra, TrascinaFinestra,
                 ApriMenu, MostraAiuto, CambiaLingua, ApriRiquadro, FineLogica>;

}  // namespace corvana
