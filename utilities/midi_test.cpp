#include "utilities/midi_test.h"

#include <algorithm>
#include <array>

#include "core/language.h"
#include "utilities/utility_rows.h"

namespace corvana {

namespace {

constexpr std::int16_t canaleProva = 1;
constexpr std::int16_t notaProva = 69;
constexpr std::int16_t velocitaProva = 100;

constexpr std::array postiMidiTest = {
    Posto{"frmMidiTest", 0, 0, 6000, 4200, "MIDI Test"},
    Posto{"Label2", 240, 180, 5520, 270, "Dispositivi MIDI", {}, "titolo"},
    Posto{"LstMidiDev", 240, 510, 5520, 1560, {}, {}, "nome:Label2"},
    Posto{"lblDevID", 240, 2130, 5520, 270, {}, {}, "piccolo"},
    Posto{"Label1", 240, 2550, 3600, 270, "Strumento", {}, "titolo"},
    Posto{"lblInstr", 4560, 2490, 1200, 390, {}, {}, "cifra destra"},
    Posto{"InstrS", 240, 2910, 5520, 300, {}, "0 - 127", "nome:Label1"},
    Posto{"cmdTest", 240, 3510, 1500, 450, "Test (La)"},
    Posto{"cmdOff", 1860, 3510, 1500, 450, "Off"},
    Posto{"cmdChiudi", 4260, 3510, 1500, 450, "O K", {}, "principale"},
};

}  // namespace

frmMidiTest::frmMidiTest(const Ambiente& ambiente) : Form("frmMidiTest"), a_(ambiente) {
    Disponi(*this, postiMidiTest.data(), postiMidiTest.size());
    InstrS.Max = 127;
    LstMidiDev.Click = [this] { LstMidiDev_Click(); };
    cmdTest.Click = [this] { cmdTest_Click(); };
    cmdOff.Click = [this] { cmdOff_Click(); };
    InstrS.Change = InstrS.Scroll = [this] { InstrS_Change(); };
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
}

void frmMidiTest::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliMidiTest());
}

void frmMidiTest::Form_Activate() {
    AggiungiDispositivo(dispositivoPredefinito);
    const int quanti = a_.suono.Piattaforma().midiOutGetNumDevs();
    for (std::int32_t id = 0; id < quanti; ++id)
        AggiungiDispositivo(id);
    if (dispositivi.empty()) {
        LstMidiDev.Enabled = false;
        return;
    }
    MostraDispositivo(dispositivi.front());
    lblInstr.Caption = std::to_string(a_.globali.StrumentoGlobale);
    InstrS.PonValore(std::clamp(a_.globali.StrumentoGlobale, InstrS.Min(), InstrS.Max()));
    a_.suono.ApriMidi(dispositivi.front());
    a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, dispositivi.front());
}

void frmMidiTest::AggiungiDispositivo(std::int32_t id) {
    std::string nome;
    if (a_.suono.Piattaforma().midiOutGetDevCapsA(id, nome) != midiSenzaErrore) return;
    LstMidiDev.AddItem(nome);
    dispositivi.push_back(id);
}

void frmMidiTest::MostraDispositivo(std::int32_t id) {
    lblDevID.Caption = "Dev. ID: " + std::to_string(id);
}

void frmMidiTest::LstMidiDev_Click() {
    if (LstMidiDev.ListIndex < 0) return;
    const std::int32_t id = dispositivi.at(static_cast<std::size_t>(LstMidiDev.ListIndex()));
    MostraDispositivo(id);
    a_.suono.ApriMidi(id);
    // The id goes out as the channel index: the window doesn't set the two apart.
    a_.suono.CambiaStrumento(InstrS.Value, id);
}

void frmMidiTest::cmdTest_Click() {
    a_.suono.NotaOn(canaleProva, notaProva, velocitaProva);
}

void frmMidiTest::cmdOff_Click() {
    a_.suono.NotaOff(canaleProva, notaProva);
}

void frmMidiTest::InstrS_Change() {
    a_.globali.StrumentoGlobale = InstrS.Value;
    lblInstr.Caption = std::to_string(a_.globali.StrumentoGlobale);
    a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, 0);
}

void frmMidiTest::cmdChiudi_Click() {
    a_.finestre.Scarica(*this);
}

void frmMidiTest::Form_Unload(bool& /*Cancel*/) {
    a_.suono.NotaOff(canaleProva, notaProva);
}

}  // namespace corvana
