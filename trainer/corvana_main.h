// The main window: the note-reading trainer, the home of the metronome panel, and the launcher of
// every other window. Logic thread.
//
// Its routines stand in one source file for each concern: corvana_main.cpp (start, end, language),
// menus.cpp (menus and toolbar), hover.cpp (what sinks under the pointer), ranges.cpp (range list,
// ruler, picking), staff.cpp (staff, names, sound choice), drill.cpp (the run and its score),
// automatic.cpp (the automatic mode), layout.cpp (where everything lies).
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/globals.h"
#include "core/hover.h"
#include "forms/form.h"
#include "trainer/positions.h"

namespace corvana {

/// What the main window asks of the metronome's panel. Empty functions stand for no panel.
struct ComandiMetronomo {
    std::function<void()> carica;  ///< puts the defaults in place
    std::function<void()> apri;
    std::function<void()> alterna;       ///< opens the panel or closes it
    std::function<void()> cambiaLingua;  ///< the language strings are new
};

/// Shows each of the windows that open from the main one. An empty function stands for a window
/// that this build doesn't have: its menu entry and tool button are disabled.
struct Secondarie {
    std::function<void()> frmInto, frmComposer, frmOptions, frmMidiTest, frmStrum, frmAbout;
    std::function<void()> aiuto;
    ComandiMetronomo metronomo;
};

/// Names and answers, in the order of `pdo` to `psi`.
constexpr int numeroRisposte = 7;

class CorvanaMainF final : public Form {
public:
    CorvanaMainF(const Ambiente& ambiente, Secondarie secondarie);

    VoceMenu f1{*this, "f1"}, Esci{*this, "Esci", &f1};
    VoceMenu es{*this, "es"}, mnuCorvana{*this, "mnuCorvana", &es}, Sep3{*this, "Sep3", &es},
        Intonazione{*this, "Intonazione", &es}, step4{*this, "step4", &es},
        mnuRint{*this, "mnuRint", &es}, SeparatoreN{*this, "SeparatoreN", &es},
        mnuRac{*this, "mnuRac", &es}, step5{*this, "step5", &es}, mnuRicTo{*this, "mnuRicTo", &es},
        sep4{*this, "sep4", &es}, mnuRicTasto{*this, "mnuRicTasto", &es};
    VoceMenu Risorse{*this, "Risorse"}, mnuComposer{*this, "mnuComposer", &Risorse},
        step5b{*this, "step5b", &Risorse}, mnuMetro{*this, "mnuMetro", &Risorse},
        Step6{*this, "Step6", &Risorse}, mnuPromemoria{*this, "mnuPromemoria", &Risorse},
        separatore3{*this, "separatore3", &Risorse}, mnuMidiTest{*this, "mnuMidiTest", &Risorse};
    VoceMenu Opzioni{*this, "Opzioni"}, Nominote1{*this, "Nominote1", &Opzioni},
        Nominote2{*this, "Nominote2", &Opzioni}, separatore1{*this, "separatore1", &Opzioni},
        Suono1{*this, "Suono1", &Opzioni}, Suono2{*this, "Suono2", &Opzioni},
        mnuOrgano{*this, "mnuOrgano", &Suono2}, mnuPiano{*this, "mnuPiano", &Suono2},
        mnuSs{*this, "mnuSs", &Suono2}, separatore2{*this, "separatore2", &Opzioni},
        mnuNormale{*this, "mnuNormale", &Opzioni}, mnuAutomatico{*this, "mnuAutomatico", &Opzioni},
        sep10{*this, "sep10", &Opzioni}, mnuLingua{*this, "mnuLingua", &Opzioni},
        mnuIt{*this, "mnuIt", &mnuLingua}, mnuEn{*this, "mnuEn", &mnuLingua};
    VoceMenu Help{*this, "Help"}, mnuAiuto{*this, "mnuAiuto", &Help},
        mnuVersione{*this, "mnuVersione", &Help};

    Figura img{*this, "img"};
    /// The note controls "n11" to "n31" and "n40" to "n64", on the picture of the staves.
    std::deque<Figura> n;
    Cornice Regolo{*this, "Regolo"};
    Etichetta lblnn{*this, "lblnn"};
    Etichetta lblMn{*this, "lblMn"};

    Figura ShToolbar{*this, "ShToolbar"};
    Cornice frToolBar{*this, "frToolBar"};
    std::array<Figura, 7> ToolButton{{{*this, "ToolButton1", &frToolBar},
                                      {*this, "ToolButton2", &frToolBar},
                                      {*this, "ToolButton3", &frToolBar},
                                      {*this, "ToolButton4", &frToolBar},
                                      {*this, "ToolButton5", &frToolBar},
                                      {*this, "ToolButton6", &frToolBar},
                                      {*this, "ToolButton7", &frToolBar}}};

    Etichetta Intervallo{*this, "Intervallo"};
    Lista difficolt{*this, "difficolt"};

    Bottone Start{*this, "Start"};
    Figura bgConta{*this, "bgConta"};
    Casella conta{*this, "conta"}, er{*this, "er"}, PercEs{*this, "PercEs"};
    Figura PercBg{*this, "PercBg"}, PercMet{*this, "PercMet"};

    Cornice frmRisultati{*this, "frmRisultati"};
    std::array<Figura, 5> bgRis{{{*this, "bgRis0", &frmRisultati},
                                 {*this, "bgRis1", &frmRisultati},
                                 {*this, "bgRis2", &frmRisultati},
                                 {*this, "bgRis3", &frmRisultati},
                                 {*this, "bgRis4", &frmRisultati}}};
    Etichetta Lresatte{*this, "Lresatte", &frmRisultati},
        Lrerrate{*this, "Lrerrate", &frmRisultati}, Ridate{*this, "Ridate", &frmRisultati},
        Lnmostrate{*this, "Lnmostrate", &frmRisultati}, Tempoimp{*this, "Tempoimp", &frmRisultati};

    Cornice Shape5{*this, "Shape5"}, Shape6{*this, "Shape6"};
    Etichetta lblAuto1{*this, "lblAuto1"}, lblAuto2{*this, "lblAuto2"};
    Etichetta Velocità{*this, "Velocità"};
    Barra Slider1{*this, "Slider1"};

    Bottone pdo{*this, "pdo"}, pre{*this, "pre"}, pmi{*this, "pmi"}, pfa{*this, "pfa"},
        psol{*this, "psol"}, pla{*this, "pla"}, psi{*this, "psi"};
    Figura cmdEscibg{*this, "cmdEscibg"};
    Etichetta cmdEsci{*this, "cmdEsci"};

    Cornice frmMetro{*this, "frmMetro"};

    std::uint8_t LimiteAlto = 0;                        ///< highest position of the exercise
    std::uint8_t LimiteBasso = 0;                       ///< lowest position of the exercise
    std::uint8_t NotaCorrente = 0;                      ///< position on the screen now
    std::array<bool, numeroRisposte> RispostaGiusta{};  ///< at most one is true
    std::int16_t PrimoClick = 0;                        ///< ruler marks, 0 when not set
    std::int16_t SecondoClick = 0;
    bool CaricamentoLista = false;  ///< the next selection in the list comes from the program

    std::string Modo = "normale";  ///< or "automatico"
    bool InCorso = false;          ///< a run is in progress
    bool Risposto = false;         ///< automatic mode: this note has had its answer
    std::array<bool, numeroRisposte> TastoPremuto{};
    int Esatte = 0;          ///< right answers of this run
    int Errate = 0;          ///< wrong answers of this run
    int Mostrate = 0;        ///< notes shown, automatic mode only
    double SecondiNota = 2;  ///< seconds that a note stays in automatic mode
    double InizioNota = 0;   ///< instant at which the note came up
    int OraInizio = 0;       ///< time of day of the run's begin and end, in seconds
    int OraFine = 0;
    std::string Percentuale;  ///< the last formatted percentage
    float Rapporto = 0;       ///< right answers as a share, 0 to 1

    bool SuonoNota = true;  ///< each new note sounds at its pitch, else a cue marks it

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& Cancel) override;
    void Form_KeyUp(const Evento& tasto) override;

    void Mostranota();
    void Nascondinote();
    /// Shows one position; any other number does nothing. What was shown before stays.
    void VisualizzaNota(std::uint8_t posizione);
    void AnnunciaNota();

    void difficolt_Click();
    /// Only Y matters, in twips from the ruler's top.
    void Regolo_MouseDown(int Button, int Shift, int X, int Y);
    void RipristinaStato();
    void ImpostaIntervallo();

    void Start_Click();
    void FermaEsercizio();
    void CicloAutomatico();
    /// Judges an answer, 1 for DO to 7 for SI. Normal mode and a running drill only.
    void ControllaRisposta(int risposta);
    void Slider1_Change();
    void Slider1_Scroll();

    void mnuNormale_Click();
    void mnuAutomatico_Click();
    void Nominote1_Click();
    void Nominote2_Click();
    void Suono1_Click();
    void Suono2_Click();
    void mnuOrgano_Click();
    void mnuPiano_Click();
    void mnuIt_Click();
    void mnuEn_Click();
    void lblMn_Click();
    /// Button 1 to 7.
    void ToolButton_Click(int numero);
    void ShToolbar_Click();
    void Esci_Click();

private:
    std::array<Bottone*, numeroRisposte> Risposte();
    bool Corre() const { return Start.Caption() == "Stop"; }

    void CollegaMenu();
    void CollegaControlli();
    void CollegaHover();
    void DipingiSfondi();
    void DisabilitaAssenti();
    void PrimaAttivazione();
    void ApriSuono();
    void AbilitaComandi(bool abilita);
    void CambiaLingua(bool inglese);

    void ApriInto(std::optional<std::int32_t> contesto, std::size_t pagina);
    void EsegueToolButton(int numero);
    void PonStrumento(std::int32_t programma);

    void Riprendi(const std::string& testo);
    void SelezionaRigaDiPartenza();

    void PonNomiRisposte(bool anglo);
    void PonModo(bool automatico);
    void AbilitaRisposte(bool abilita);
    void MostraVelocità();
    void FuocoAStart();
    void SuonaOnda(const char* nome, unsigned flags);

    void PonFermo(bool fermo);
    void DaiRisposta(int risposta);
    void MostraPunteggio(int risposte);
    void PonRapporto(float rapporto);
    void MostraRisultati();

    /// True when the note's time is over, false when the run numbered `questa` is.
    bool AttendiRisposta(std::uint32_t questa);
    void LeggiTasti();
    void Giudica(int risposta);

    Ambiente a_;
    Secondarie secondarie_;
    HoverFinestra hover_;
    bool primaAttivazione_ = true;
    std::uint32_t corsa_ = 0;  ///< number of the run, so that a loop knows whether it is its own
};

/// Lays the main window's controls out and gives them their design-time texts.
void DisponiPrincipale(CorvanaMainF& finestra);

}  // namespace corvana
