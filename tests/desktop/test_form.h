// A form with one control of each kind. Logic thread.
#pragma once

#include <functional>
#include <string>

#include "forms/boxes.h"
#include "forms/form.h"
#include "forms/windows.h"

namespace corvana::prova {

/// A small window to be shown over the other.
class FormSopra final : public Form {
public:
    FormSopra();
    Bottone ok{*this, "ok"};
};

class FormDiProva final : public Form {
public:
    using Diario = std::function<void(std::string)>;

    FormDiProva(Finestre& finestre, Riquadri& riquadri, Diario diario);

    VoceMenu File{*this, "File"}, Apri{*this, "Apri", &File}, Riga{*this, "Riga", &File},
        Altro{*this, "Altro", &File}, Uno{*this, "Uno", &Altro}, Aiuto{*this, "Aiuto"};
    MenuContestuale contestuale{*this, "contestuale"};
    VoceMenu Copia{*this, "Copia", &contestuale};
    Etichetta scritta{*this, "scritta"}, toccabile{*this, "toccabile"};
    Bottone bottone{*this, "bottone"}, secondo{*this, "secondo"};
    Casella casella{*this, "casella"};
    Lista lista{*this, "lista"};
    ListaMultipla multipla{*this, "multipla"};  ///< hidden
    Combo combo{*this, "combo"};
    Barra barra{*this, "barra"}, ritta{*this, "ritta"};
    Spunta spunta{*this, "spunta"};
    Cornice cornice{*this, "cornice"};
    Bottone dentro{*this, "dentro", &cornice};
    Figura sfumata{*this, "sfumata"}, icona{*this, "icona"};
    Figura staff{*this, "staff"}, n14{*this, "n14", &staff}, n21{*this, "n21", &staff},
        n50{*this, "n50", &staff}, n63{*this, "n63", &staff};
    Cornice Regolo{*this, "Regolo"};
    /// Clicking it serves the test; nobody sees it.
    Etichetta servizio{*this, "servizio"};

    FormSopra sopra;
    Finestre& finestre;
    Riquadri& riquadri;
    Pompa* pompa = nullptr;
    bool chiudibile = true;

    void Form_Unload(bool& Cancel) override;
    void Form_KeyDown(const Evento& tasto) override;
    void Form_KeyUp(const Evento& tasto) override;

private:
    void Componi();
    void Ascolta(Controllo& controllo);

    Diario diario_;
};

}  // namespace corvana::prova
