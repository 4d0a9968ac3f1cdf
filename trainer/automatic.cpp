// The two modes, and the automatic one's loop: notes change by the clock.
#include "forms/keys.h"
#include "trainer/answer_keys.h"
#include "trainer/corvana_main.h"

namespace corvana {

void CorvanaMainF::mnuNormale_Click() {
    PonModo(false);
}

void CorvanaMainF::mnuAutomatico_Click() {
    PonModo(true);
}

void CorvanaMainF::PonModo(bool automatico) {
    Modo = automatico ? "automatico" : "normale";
    FuocoAStart();
    mnuNormale.Checked = !automatico;
    mnuAutomatico.Checked = automatico;
    AbilitaRisposte(!automatico);
    for (Controllo* c : {static_cast<Controllo*>(&lblAuto1), static_cast<Controllo*>(&lblAuto2),
                         static_cast<Controllo*>(&Slider1), static_cast<Controllo*>(&Velocità),
                         static_cast<Controllo*>(&Shape5), static_cast<Controllo*>(&Shape6)})
        c->Visible = automatico;
    if (automatico) MostraVelocità();
}

void CorvanaMainF::FuocoAStart() {
    if (!primaAttivazione_) Start.SetFocus();
}

void CorvanaMainF::MostraVelocità() {
    Velocità.Caption = a_.globali.testi.TxtVelocita + std::to_string(Slider1.Value());
}

void CorvanaMainF::Slider1_Change() {
    Slider1_Scroll();
    FuocoAStart();
}

void CorvanaMainF::Slider1_Scroll() {
    SecondiNota = 60.0 / Slider1.Value();
    MostraVelocità();
}

void CorvanaMainF::CicloAutomatico() {
    const std::uint32_t questa = corsa_;
    while (InCorso) {
        InizioNota = a_.pompa.Adesso();
        Mostranota();
        ++Mostrate;
        conta.Text = std::to_string(Mostrate);
        Risposto = false;
        if (!AttendiRisposta(questa)) return;
    }
    // The run was stopped just as the note's time ran out.
    --Errate;
}

bool CorvanaMainF::AttendiRisposta(std::uint32_t questa) {
    // The first pass doesn't wait: a key held from the note before answers this one at once.
    a_.pompa.PompaEventi();
    for (;;) {
        // With the window gone there is no output left to silence. And what was delivered may have
        // stopped this run and begun another, whose counters and panel are none of this one's.
        if (!Identita() || corsa_ != questa) return false;
        if (a_.finestre.Tasti().Premuto(vk::esc)) break;
        LeggiTasti();
        if (a_.pompa.Adesso() >= InizioNota + SecondiNota) return true;
        if (!InCorso) break;
        a_.pompa.AttendiEvento(InizioNota + SecondiNota);
    }
    FermaEsercizio();
    return false;
}

void CorvanaMainF::LeggiTasti() {
    const TastiPremuti& tasti = a_.finestre.Tasti();
    for (const TastiRisposta& t : tastiAutomatici)
        if (!Risposto && (tasti.Premuto(t.tasto) || tasti.Premuto(t.tastierino)))
            Giudica(t.risposta);
    er.Text = std::to_string(Errate);
    Ridate.Caption = a_.globali.testi.TxtNoteMostrate + std::to_string(Mostrate);
    MostraPunteggio(Mostrate);
}

void CorvanaMainF::Giudica(int risposta) {
    const bool giusta = RispostaGiusta.at(static_cast<std::size_t>(risposta - 1));
    SuonaOnda(giusta ? "rok.wav" : "rko.wav", sndAsincrono);
    ++(giusta ? Esatte : Errate);
    Risposto = true;
}

}  // namespace corvana
