// The main window: the note-reading trainer, the home of the metronome panel, and the launcher of
// every other window. Its panels are made here and put together; what concerns several of them at
// once (start and end, mode, language) is the window's own. Logic thread.
#pragma once

#include "core/hover.h"
#include "trainer/answers.h"
#include "trainer/automatic.h"
#include "trainer/drill.h"
#include "trainer/main_menus.h"
#include "trainer/range_choice.h"
#include "trainer/secondary_windows.h"
#include "trainer/staff.h"
#include "trainer/toolbar.h"

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
    Pentagramma pentagramma{*this, hover_};
    BarraStrumenti barra{*this, hover_, {menu.es, menu.Risorse}, AzioniDellaBarra()};
    Intervalli intervalli{*this, stato, pentagramma.Regolo, [this](bool si) { PonPronto(si); }};
    Esercizio esercizio{
        *this,
        a_,
        stato,
        pentagramma.lblnn,
        {[this](bool si) { PonFermo(si); }, [this](bool si) { risposte.Abilita(si); }}};
    Automatico automatico{*this, a_.globali.testi, stato, [this] { FuocoAStart(); }};
    Risposte risposte{*this, [this](int risposta) { esercizio.DaiRisposta(risposta); }};
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
    BarraStrumenti::Azioni AzioniDellaBarra();
    void DisabilitaAssenti();
    void PrimaAttivazione();
    void ApriSuono();
    void AbilitaComandi(bool abilita);
    void Riprendi(const std::string& testo);

    void PonModo(bool automatica);
    void PonNomiRisposte(bool anglo);
    void CambiaLingua(bool inglese);
    void PonPronto(bool pronto);
    void PonFermo(bool fermo);
    void FuocoAStart();

    bool primaAttivazione_ = true;
};

/// Lays the main window's controls out and gives them their design-time texts.
void DisponiPrincipale(CorvanaMainF& finestra);

}  // namespace corvana
