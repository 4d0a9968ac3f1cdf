// The buttons of step entry, and what they insert.
#include "composer/entry_panel.h"

#include "core/notation.h"
#include "core/octaves.h"
#include "melody/numbers.h"

namespace corvana {

PannelloInserimento::PannelloInserimento(const Ambiente& ambiente, Form& finestra,
                                         StatoComposer& stato, VicineInserimento vicine)
    : finestra_(finestra),
      a_(ambiente),
      stato_(stato),
      inserimento_(stato.inserimento),
      vicine_(std::move(vicine)) {
    cmdInsNota.BackColor = Rgb(255, 224, 130);
    MostraAttributi();
    Collega();
    CollegaTasti();
}

void PannelloInserimento::Collega() {
    for (std::size_t i = 0; i < cmdSimbNote.size(); ++i)
        cmdSimbNote[i].Click = [this, i] { cmdSimbNote_Click(static_cast<int>(i)); };
    for (std::size_t i = 0; i < cmdAttrNota.size(); ++i)
        cmdAttrNota[i].Click = [this, i] { cmdAttrNota_Click(static_cast<int>(i)); };
    lblAt.Click = [this] { lblAt_Click(); };
    Label4.Click = [this] { Label4_Click(); };
    Label4.DblClick = [this] { Label4_DblClick(); };
    PausaPer.Invio = [this] { PausaPer_KeyPress(); };
    PausaPer.LostFocus = [this] { PausaPer_Validate(); };
    cmdInsNota.Click = [this] { cmdInsNota_Click(); };
    cmdInsPausa.Click = [this] { cmdInsPausa_Click(); };
}

void PannelloInserimento::Carica() {
    ColoreSpento = cmdSimbNote[0].BackColor();
    ScegliFigura(inserimento_, 2);
    cmdSimbNote[inserimento_.figuraAttiva].BackColor = ColoreAcceso;
    AzzeraAttributi();
    inserimento_.letteraAttributo = "n";
    inserimento_.valoreNota = 1;
    inserimento_.contaTerzina = 0;
}

void PannelloInserimento::Abilita(bool abilita) {
    cmdInsPausa.Enabled = abilita;
    cmdInsNota.Enabled = abilita;
}

void PannelloInserimento::FuocoSeFermo() {
    if (!stato_.inEsecuzione) cmdInsNota.SetFocus();
}

void PannelloInserimento::cmdSimbNote_Click(int Index) {
    FuocoSeFermo();
    cmdSimbNote[inserimento_.figuraAttiva].BackColor = ColoreSpento;
    ScegliFigura(inserimento_, static_cast<std::uint8_t>(Index));
    cmdSimbNote[inserimento_.figuraAttiva].BackColor = ColoreAcceso;
}

void PannelloInserimento::cmdAttrNota_Click(int Index) {
    FuocoSeFermo();
    PremiAttributo(inserimento_, Index);
    MostraAttributi();
}

void PannelloInserimento::AzzeraAttributi() {
    corvana::AzzeraAttributi(inserimento_);
    MostraAttributi();
}

void PannelloInserimento::lblAt_Click() {
    inserimento_.accentoAcceso = !inserimento_.accentoAcceso;
    MostraAttributi();
}

void PannelloInserimento::NascondiAccento() {
    inserimento_.accentoVisibile = false;
    MostraAttributi();
}

void PannelloInserimento::MostraAttributi() {
    for (std::size_t i = 0; i < cmdAttrNota.size(); ++i)
        cmdAttrNota[i].BackColor = i == inserimento_.attributoAttivo ? ColoreAcceso : ColoreSpento;
    lblAt.Visible = inserimento_.accentoVisibile;
    lblAt.BackStyle = inserimento_.accentoAcceso ? fondoOpaco : fondoTrasparente;
}

OpzioniInserimento PannelloInserimento::Opzioni() const {
    return {Moltiplicatore(PausaPer.Text()), ckConsAtt.Value(), a_.globali.SeparatoreDecimale};
}

void PannelloInserimento::cmdInsNota_Click() {
    if (!SullaTastiera(inserimento_.notaAttiva)) return;
    stato_.lblModificato.Visible = true;
    InserisciNota(inserimento_, stato_.melodia.Attiva(), Opzioni());
    if (stato_.melodia.IndiceAttiva() == soprano) vicine_.abilitaPaste();
    vicine_.aggiornaVoce();
    MostraAttributi();
    if (inserimento_.senzaSuono)
        inserimento_.senzaSuono = false;
    else
        SuonaAnteprima(inserimento_.notaAttiva);
}

void PannelloInserimento::cmdInsPausa_Click() {
    stato_.lblModificato.Visible = true;
    stato_.lblActNote.Caption = NomeNota(0, a_.globali.NomiAnglo);
    InserisciPausa(inserimento_, stato_.melodia.Attiva(), Opzioni());
    vicine_.aggiornaVoce();
    MostraAttributi();
    FuocoSeFermo();
    TicchettioPausa();
}

void PannelloInserimento::Label4_Click() {
    PausaPer.Text = TestoNumero(NumeroReale(PausaPer.Text()) + 1, a_.globali.SeparatoreDecimale);
}

void PannelloInserimento::Label4_DblClick() {
    PausaPer.Text = "1";
    if (cmdInsNota.Enabled()) cmdInsNota.SetFocus();
}

void PannelloInserimento::PausaPer_KeyPress() {
    vicine_.fuocoPlay();
    PausaPer_Validate();
}

void PannelloInserimento::PausaPer_Validate() {
    PausaPer.Text = MoltiplicatoreValido(PausaPer.Text());
}

}  // namespace corvana
