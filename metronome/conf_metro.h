// The window in which the metronome's sounds and a pattern of the learner's own are chosen. It
// edits the metronome's state directly and saves on every way of closing. Logic thread.
#pragma once

#include "core/globals.h"
#include "forms/form.h"

namespace corvana {

class frmConfMetro final : public Form {
public:
    explicit frmConfMetro(const Ambiente& ambiente);

    Etichetta Label1{*this, "Label1"}, Label2{*this, "Label2"}, Label3{*this, "Label3"};
    Etichetta lblA{*this, "lblA"}, lblB1{*this, "lblB1"}, lblC{*this, "lblC"};
    Lista InstrA{*this, "InstrA"}, InstrB1{*this, "InstrB1"}, InstrC{*this, "InstrC"};
    Casella txtPattern{*this, "txtPattern"}, txtTempo{*this, "txtTempo"};
    Lista seqPreset{*this, "seqPreset"};
    Casella Text1{*this, "Text1"};
    Bottone cmdTest{*this, "cmdTest"}, cmdOk{*this, "cmdOk"};

    bool CaricamentoConf = false;  ///< the lists are being filled: no sample sounds

    void Form_Load() override;
    void Form_Unload(bool& Cancel) override;

    void InstrA_Click();
    void InstrB1_Click();
    void InstrC_Click();
    void lblA_Click();
    void lblB1_Click();
    void lblC_Click();
    void seqPreset_Click();
    void cmdTest_Click();
    void cmdOk_Click();
    /// What becomes of a typed character: a, b, c in lower case, the backspace, or 0 for nothing.
    static char32_t txtPattern_KeyPress(char32_t KeyAscii);

private:
    void Scegli(std::int16_t& nota, const Lista& lista);
    void SuonaCampione(std::int16_t nota);
    StatoMetronomo& Stato() { return a_.globali.metronomo; }

    Ambiente a_;
};

}  // namespace corvana
