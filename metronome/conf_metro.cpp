#include "metronome/conf_metro.h"

#include "core/effects.h"
#include "core/language.h"
#include "core/text.h"
#include "metronome/conf_metro_rows.h"
#include "metronome/layout.h"
#include "metronome/pattern.h"

namespace corvana {

namespace {

constexpr std::int16_t velocitaCampione = 127;
constexpr double fraLeProve = 0.8;

/// Pattern and time signature of each row of `seqPreset`.
constexpr std::array<Metro, 3> predefinite = {
    {{"2/4", "abcb"}, {"3/4", "abcbcb"}, {"4/4", "abcbcbcb"}}};

}  // namespace

frmConfMetro::frmConfMetro(const Ambiente& ambiente) : Form("frmConfMetro"), a_(ambiente) {
    DisponiConfMetro(*this);
    InstrA.Click = [this] { InstrA_Click(); };
    InstrB1.Click = [this] { InstrB1_Click(); };
    InstrC.Click = [this] { InstrC_Click(); };
    lblA.Click = [this] { lblA_Click(); };
    lblB1.Click = [this] { lblB1_Click(); };
    lblC.Click = [this] { lblC_Click(); };
    seqPreset.Click = [this] { seqPreset_Click(); };
    cmdTest.Click = [this] { cmdTest_Click(); };
    cmdOk.Click = [this] { cmdOk_Click(); };
    txtPattern.Filtro = txtPattern_KeyPress;
}

void frmConfMetro::Form_Load() {
    CaricamentoConf = true;
    InstrA.Seleziona(Stato().MetroIndiceA);
    InstrB1.Seleziona(Stato().MetroIndiceB);
    InstrC.Seleziona(Stato().MetroIndiceC);
    txtPattern.Text = Stato().MetroSequenza;
    txtTempo.Text = Stato().MetroTempo;
    CaricamentoConf = false;
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliConfMetro());
    Gradiente(*this, 202, 143, 85, 234, 213, 165, "ds", "i");
}

void frmConfMetro::InstrA_Click() {
    Scegli(Stato().MetroNotaA, InstrA);
}

void frmConfMetro::InstrB1_Click() {
    Scegli(Stato().MetroNotaB, InstrB1);
}

void frmConfMetro::InstrC_Click() {
    Scegli(Stato().MetroNotaC, InstrC);
}

void frmConfMetro::Scegli(std::int16_t& nota, const Lista& lista) {
    const std::string& riga = lista.List().at(static_cast<std::size_t>(lista.ListIndex()));
    nota = static_cast<std::int16_t>(NumeroIntero(riga, 0, 127));
    SuonaCampione(nota);
}

void frmConfMetro::lblA_Click() {
    SuonaCampione(Stato().MetroNotaA);
}

void frmConfMetro::lblB1_Click() {
    SuonaCampione(Stato().MetroNotaB);
}

void frmConfMetro::lblC_Click() {
    SuonaCampione(Stato().MetroNotaC);
}

void frmConfMetro::SuonaCampione(std::int16_t nota) {
    if (!a_.suono.HandleMidi || CaricamentoConf) return;
    a_.suono.NotaOn(1, 60, 0);
    a_.suono.NotaOn(canalePercussioni, nota, velocitaCampione);
}

void frmConfMetro::seqPreset_Click() {
    if (seqPreset.ListIndex < 0) return;
    const Metro& riga = predefinite.at(static_cast<std::size_t>(seqPreset.ListIndex()));
    txtTempo.Text = std::string(riga.tempo);
    txtPattern.Text = std::string(riga.sequenza);
}

char32_t frmConfMetro::txtPattern_KeyPress(char32_t KeyAscii) {
    constexpr char32_t indietro = 8;
    if (KeyAscii >= U'A' && KeyAscii <= U'Z') KeyAscii += U'a' - U'A';
    const bool ammesso = (KeyAscii >= U'a' && KeyAscii <= U'c') || KeyAscii == indietro;
    return ammesso ? KeyAscii : 0;
}

void frmConfMetro::cmdTest_Click() {
    for (const char lettera : UnBytePerCarattere(txtPattern.Text())) {
        PrendiLettera(Stato(), lettera);
        if (!a_.suono.HandleMidi) continue;
        a_.suono.Reset();
        a_.suono.Attendi(fraLeProve);
        a_.suono.NotaOn(canalePercussioni, Stato().MetroNota, velocitaCampione);
    }
}

void frmConfMetro::cmdOk_Click() {
    a_.finestre.Scarica(*this);
}

void frmConfMetro::Form_Unload(bool& /*Cancel*/) {
    Stato().MetroIndiceA = static_cast<std::uint8_t>(InstrA.ListIndex());
    Stato().MetroIndiceB = static_cast<std::uint8_t>(InstrB1.ListIndex());
    Stato().MetroIndiceC = static_cast<std::uint8_t>(InstrC.ListIndex());
    if (txtPattern.Text().empty()) {
        Stato().MetroSequenza = metri.front().sequenza;
        txtTempo.Text = std::string(metri.front().tempo);
    } else {
        Stato().MetroSequenza = txtPattern.Text;
    }
    // A fixed pattern keeps its label: the two are taken together only for one of the learner's
    // own.
    if (SequenzaFissa(Stato().MetroSequenza)) return;
    Stato().MetroTempo = txtTempo.Text().empty() ? "P." : txtTempo.Text();
}

}  // namespace corvana
