// What concerns several panels of the main window at once: the mode, the language, what may be used
// when, what was stored.
#include "core/language.h"
#include "core/startup.h"
#include "forms/fault.h"
#include "trainer/corvana_main.h"
#include "trainer/main_rows.h"
#include "trainer/state.h"

namespace corvana {

void CorvanaMainF::mnuNormale_Click() {
    PonModo(false);
}

void CorvanaMainF::mnuAutomatico_Click() {
    PonModo(true);
}

void CorvanaMainF::PonModo(bool automatica) {
    stato.Modo = automatica ? "automatico" : "normale";
    FuocoAStart();
    menu.SpuntaModo(automatica);
    risposte.Abilita(!automatica);
    automatico.Mostra(automatica);
    if (automatica) automatico.MostraVelocità();
}

void CorvanaMainF::Nominote1_Click() {
    PonNomiRisposte(false);
}

void CorvanaMainF::Nominote2_Click() {
    PonNomiRisposte(true);
}

void CorvanaMainF::PonNomiRisposte(bool anglo) {
    a_.globali.NomiAnglo = anglo;
    menu.SpuntaNomi(anglo);
    risposte.PonNomi(anglo);
}

void CorvanaMainF::mnuIt_Click() {
    CambiaLingua("it");
}

void CorvanaMainF::mnuEn_Click() {
    CambiaLingua("en");
}

void CorvanaMainF::CambiaLingua(std::string_view chiave) {
    const Lingua& lingua = LinguaDi(chiave);
    PonLingua(a_.globali, lingua);
    a_.impostazioni.ScriviValore("Language", std::string(lingua.chiave));
    PonNomiRisposte(lingua.nomiAnglo);
    LeggiLingua();
    Apri(secondarie_.metronomo.cambiaLingua);
    automatico.MostraVelocità();
    esercizio.punteggio.frmRisultati.Visible = false;
}

void CorvanaMainF::LeggiLingua() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliPrincipali());
    a_.finestre.CambiaLingua(a_.globali.testi, a_.globali.FileAiuto);
    pentagramma.PonParole(a_.globali.testi);
}

void CorvanaMainF::Esci_Click() {
    a_.finestre.Scarica(*this);
}

void CorvanaMainF::FuocoAStart() {
    if (!primaAttivazione_) esercizio.Start.SetFocus();
}

void CorvanaMainF::PonPronto(bool pronto) {
    esercizio.Start.Enabled = pronto;
    if (pronto) esercizio.Start.SetFocus();
}

void CorvanaMainF::PonFermo(bool fermo) {
    menu.Abilita(fermo);
    cmdEsci.Enabled = fermo;
    cmdEscibg.Enabled = fermo;
    pentagramma.Regolo.Visible = fermo;
    if (fermo) intervalli.segni = {};
}

void CorvanaMainF::AbilitaComandi(bool abilita) {
    esercizio.Start.Enabled = abilita;
    menu.mnuRint.Enabled = abilita;
    menu.Intonazione.Enabled = abilita;
    cmdEsci.Enabled = abilita;
    DisabilitaAssenti();
}

void CorvanaMainF::DisabilitaAssenti() {
    menu.DisabilitaAssenti();
    barra.DisabilitaAssenti();
}

void CorvanaMainF::RipristinaStato() {
    try {
        Riprendi(a_.impostazioni.LeggiValore("CorvanaLastS"));
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
    }
    intervalli.SelezionaRigaDiPartenza();
}

void CorvanaMainF::Riprendi(const std::string& testo) {
    const auto letto = LeggiStato(testo);
    if (!letto) return;
    stato.LimiteAlto = static_cast<std::uint8_t>(letto->limiteAlto);
    stato.LimiteBasso = static_cast<std::uint8_t>(letto->limiteBasso);
    a_.globali.StrumentoGlobale = letto->strumento;
    automatico.PonVelocità(letto->noteAlMinuto);
    PonModo(letto->automatico);
}

}  // namespace corvana
