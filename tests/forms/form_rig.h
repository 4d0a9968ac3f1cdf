// A window with a control of each kind, which keeps a diary of what happens to it.
#pragma once

#include "tests/support/rig.h"

namespace corvana::prova {

class FinestraProva final : public Form {
public:
    explicit FinestraProva(std::string nome = "frmProva");

    Bottone bottone{*this, "bottone"};
    Casella casella{*this, "casella"};
    Lista lista{*this, "lista"};
    Barra barra{*this, "barra"};
    Spunta spunta{*this, "spunta"};
    Cornice cornice{*this, "cornice"};
    Etichetta dentro{*this, "dentro", &cornice};
    Figura figura{*this, "figura"};
    VoceMenu menu{*this, "menu"}, voce{*this, "voce", &menu};
    Combo combo{*this, "combo"};

    std::vector<std::string> diario;
    bool rifiuta = false;  ///< refuse to close
    std::function<void()> alCaricamento, allAttivazione, alTasto, allaChiusura;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& Cancel) override;
    void Form_KeyDown(const Evento& tasto) override;
    void Form_KeyUp(const Evento& tasto) override;
};

/// One window in front, and what is needed to send it events at once.
struct BancoFinestra : Banco {
    FinestraProva finestra;

    BancoFinestra() { finestre.Mostra(finestra); }

    void Accoda(Fatto fatto, const std::string& controllo, int valore = 0);
    void AccodaTasto(Fatto fatto, int codice, bool ripetuto = false);
    /// Delivers what waits.
    void Consegna() { pompa.PompaEventi(); }
};

}  // namespace corvana::prova
