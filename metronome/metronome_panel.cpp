#include "metronome/metronome_panel.h"

#include "core/effects.h"
#include "core/text.h"
#include "metronome/layout.h"

namespace corvana {

namespace {

constexpr int aiutoTrainer = 2;
constexpr int aiutoMetronomo = 8;
/// The last part of a pulse, dark and silent, in seconds.
constexpr double buio = 0.1;

}  // namespace

PannelloMetronomo::PannelloMetronomo(const Ambiente& ambiente, Form& finestra,
                                     std::function<void()> configura)
    : finestra_(finestra),
      frmMetro_(dynamic_cast<Cornice&>(*finestra.Trova("frmMetro"))),
      a_(ambiente),
      configura_(std::move(configura)) {
    for (int i = 0; i < luciMetronomo; ++i)
        lblPuls.emplace_back(finestra_, "lblPuls" + std::to_string(i), &frmMetro_);
    DisponiMetronomo(finestra_, *this);
    cmdSSmetro.Click = [this] { cmdSSmetro_Click(); };
    lblCloseMetro.Click = [this] { lblCloseMetro_Click(); };
    lblTs.Click = [this] { lblTs_Click(); };
    lblX12.Click = [this] { lblX12_Click(); };
    cmdSetup.Click = [this] { cmdSetup_Click(); };
    MetroTempoS.Change = [this] { MetroTempoS_Change(); };
    MetroTempoS.Scroll = [this] { MetroTempoS_Scroll(); };
    MetroVol.Change = MetroVol.Scroll = [this] { MetroVol_Change(); };
}

void PannelloMetronomo::Carica() {
    Stato() = {};
    MetroTempoS_Change();
    lblTs.Caption = Stato().MetroTempo;
    SpegniENascondi();
    MetroMostraLuci(Stato().MetroSequenza);
    Gradiente(BgMetro, 202, 143, 85, 234, 213, 165, "ds", "i");
}

void PannelloMetronomo::Alterna() {
    frmMetro_.Visible ? lblCloseMetro_Click() : mnuMetro_Click();
}

void PannelloMetronomo::mnuMetro_Click() {
    finestra_.HelpContextID = aiutoMetronomo;
    frmMetro_.Visible = true;
    ConsigliaX12();
    cmdSSmetro.SetFocus();
}

void PannelloMetronomo::ConsigliaX12() {
    const TestiLingua& testi = a_.globali.testi;
    lblX12.ToolTipText = lblX12.Caption() == "x1" ? testi.TipX1 : testi.TipX2;
}

void PannelloMetronomo::lblCloseMetro_Click() {
    // Nothing would be left to stop it with.
    if (Stato().MetroAttivo) return;
    finestra_.HelpContextID = aiutoTrainer;
    frmMetro_.Visible = false;
}

void PannelloMetronomo::cmdSetup_Click() {
    if (configura_) configura_();
}

void PannelloMetronomo::lblTs_Click() {
    if (Stato().MetroAttivo) return;
    SpegniENascondi();
    const Metro& metro = MetroDopo(lblTs.Caption());
    lblTs.Caption = std::string(metro.tempo);
    Stato().MetroTempo = metro.tempo;
    Stato().MetroSequenza = metro.sequenza;
    MetroMostraLuci(Stato().MetroSequenza);
}

void PannelloMetronomo::MetroTempoS_Change() {
    Stato().MetroBattito = Battito(MetroTempoS.Value, Stato().MetroMolt);
    lblTempo.Caption = std::to_string(Stato().MetroMolt * MetroTempoS.Value());
}

void PannelloMetronomo::MetroTempoS_Scroll() {
    MetroTempoS_Change();
}

void PannelloMetronomo::lblX12_Click() {
    const bool doppio = lblX12.Caption() == "x1";
    lblX12.Caption = doppio ? "x2" : "x1";
    Stato().MetroMolt = doppio ? 2 : 1;
    ConsigliaX12();
    MetroTempoS_Change();
}

void PannelloMetronomo::MetroVol_Change() {
    Stato().MetroVolume = static_cast<std::int16_t>(MetroVol.Value());
}

void PannelloMetronomo::cmdSSmetro_Click() {
    if (Stato().MetroAttivo) return MetroFerma();
    MetroAvvia();
    lblTs.Caption = Stato().MetroTempo;
    SpegniENascondi();
    const std::string sequenza = UnBytePerCarattere(Stato().MetroSequenza);
    MetroMostraLuci(sequenza);
    try {
        MetroCiclo(sequenza);
    } catch (const FineProgramma&) {
        MetroFerma();
        throw;
    }
}

void PannelloMetronomo::MetroAvvia() {
    PonComandi(false);
    cmdSSmetro.BackColor = finestra_.Trova("pdo")->BackColor();
    Stato().MetroAttivo = true;
}

void PannelloMetronomo::MetroFerma() {
    PonComandi(true);
    Stato().MetroAttivo = false;
    cmdSSmetro.BackColor = finestra_.Trova("cmdEsci")->BackColor();
}

void PannelloMetronomo::PonComandi(bool abilita) {
    for (const char* nome :
         {"Risorse", "es", "Opzioni", "f1", "cmdSetup", "lblCloseMetro", "cmdEsci"})
        finestra_.Trova(nome)->Enabled = abilita;
}

void PannelloMetronomo::MetroCiclo(const std::string& sequenza) {
    while (Stato().MetroAttivo) {
        for (std::size_t posto = 0; posto < sequenza.size(); ++posto) {
            a_.pompa.PompaEventi();
            if (!Stato().MetroAttivo) break;
            PrendiLettera(Stato(), sequenza[posto]);
            if (a_.suono.HandleMidi)
                Pulso(posto);
            else
                a_.pompa.AttendiEvento(perSempre);
        }
    }
    SpegniSuoni();
    MetroSpegni();
}

void PannelloMetronomo::SpegniSuoni() {
    // Without a device the metronome is silent without a word.
    if (!a_.suono.HandleMidi) return;
    for (const std::int16_t nota : {Stato().MetroNotaA, Stato().MetroNotaB, Stato().MetroNotaC})
        a_.suono.NotaOn(canalePercussioni, nota, 0);
}

void PannelloMetronomo::Pulso(std::size_t posto) {
    a_.suono.Attendi(Stato().MetroBattito - buio);
    a_.suono.Reset();
    MetroSpegni();
    a_.suono.Attendi(buio);
    if (posto < lblPuls.size()) lblPuls[posto].BackColor = Stato().MetroColore;
    a_.suono.NotaOn(canalePercussioni, Stato().MetroNota, Stato().MetroVolume);
}

void PannelloMetronomo::MetroSpegni() {
    for (Etichetta& luce : lblPuls)
        luce.BackColor = coloreLuceSpenta;
}

void PannelloMetronomo::MetroMostraLuci(const std::string& sequenza) {
    for (std::size_t i = 0; i < sequenza.size() && i < lblPuls.size(); ++i) {
        lblPuls[i].BackColor = coloreLuceSpenta;
        lblPuls[i].Visible = true;
    }
}

void PannelloMetronomo::SpegniENascondi() {
    MetroSpegni();
    for (Etichetta& luce : lblPuls)
        luce.Visible = false;
}

}  // namespace corvana
