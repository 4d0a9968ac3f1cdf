// The main window: the note-reading trainer, the home of the metronome panel, and the launcher of
// every other window. Its panels are made here and put together; what concerns several of them at
// once (start and end, mode, language) is the window's own. Logic thread.
#pragma once

#include <string_view>

#include "core/hover.h"
#include "core/toolbar_panel.h"
#include "trainer/answer_panel.h"
#include "trainer/automatic_panel.h"
#include "trainer/drill_panel.h"
#include "trainer/main_menu.h"
#include "trainer/range_panel.h"
#include "trainer/secondary_windows.h"
#include "trainer/staff_panel.h"

namespace corvana {

class CorvanaMainF final : public Form {
public:
    CorvanaMainF(const Ambiente& ambiente, Secondarie secondarie);

private:
    Ambiente a_;
    Secondarie secondarie_;
    HoverFinestra hover_;

public:
    // In the order of the Tab key.
    StatoEsercizio stato;
    MenuPrincipale menu{*this, a_, secondarie_, stato};
    PannelloPentagramma pentagramma{*this, hover_};
    PannelloBarra barra{*this, hover_, ComandiDellaBarra()};
    PannelloIntervalli intervalli{*this, stato, pentagramma.Regolo,
                                  [this](bool si) { PonPronto(si); }};
    PannelloEsercizio esercizio{
        *this,
        a_,
        stato,
        pentagramma.lblnn,
        {[this](bool si) { PonFermo(si); }, [this](bool si) { risposte.Abilita(si); }}};
    PannelloAutomatico automatico{*this, a_.globali.testi, stato, [this] { FuocoAStart(); }};
    PannelloRisposte risposte{*this, [this](int risposta) { esercizio.DaiRisposta(risposta); }};
    Figura cmdEscibg{*this, "cmdEscibg"};
    Etichetta cmdEsci{*this, "cmdEsci"};
    Cornice frmMetro{*this, "frmMetro"};

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& Cancel) override;
    void Form_KeyUp(const Evento& tasto) override;

    void mnuNormale_Click();
    void mnuAutomatico_Click();
    void Nominote1_Click();
    void Nominote2_Click();
    void mnuIt_Click();
    void mnuEn_Click();
    void Esci_Click();
    /// Takes up what was stored when the window was last closed.
    void RipristinaStato();

private:
    PannelloBarra::Comandi ComandiDellaBarra();
    void DisabilitaAssenti();
    void PrimaAttivazione();
    void ApriSuono();
    void AbilitaComandi(bool abilita);
    void Riprendi(const std::string& testo);

    void PonModo(bool automatica);
    void PonNomiRisposte(bool anglo);
    void CambiaLingua(std::string_view chiave);
    void LeggiLingua();
    void PonPronto(bool pronto);
    void PonFermo(bool fermo);
    void FuocoAStart();

    bool primaAttivazione_ = true;
};

/// Lays the main window's controls out and gives them their design-time texts.
void DisponiPrincipale(CorvanaMainF& finestra);

}  // namespace corvana
