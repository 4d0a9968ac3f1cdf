// The window in which an output is picked and tried. The output picked stays in use for the whole
// program. Logic thread.
#pragma once

#include <vector>

#include "core/globals.h"
#include "forms/form.h"

namespace corvana {

class frmMidiTest final : public Form {
public:
    explicit frmMidiTest(const Ambiente& ambiente);

    Etichetta Label1{*this, "Label1"}, Label2{*this, "Label2"};
    Lista LstMidiDev{*this, "LstMidiDev"};
    Etichetta lblDevID{*this, "lblDevID"}, lblInstr{*this, "lblInstr"};
    Barra InstrS{*this, "InstrS"};
    Bottone cmdTest{*this, "cmdTest"}, cmdOff{*this, "cmdOff"}, cmdChiudi{*this, "cmdChiudi"};

    /// Device id of each row of `LstMidiDev`.
    std::vector<std::int32_t> dispositivi;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& Cancel) override;

    void LstMidiDev_Click();
    void cmdTest_Click();
    void cmdOff_Click();
    void InstrS_Change();
    void cmdChiudi_Click();

private:
    void AggiungiDispositivo(std::int32_t id);
    void MostraDispositivo(std::int32_t id);

    Ambiente a_;
};

}  // namespace corvana
