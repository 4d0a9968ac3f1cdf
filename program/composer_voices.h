// The melody window's voices, as the instrument picker sees them. Logic thread.
#pragma once

#include "utilities/composer_voices.h"

namespace corvana {

class frmComposer;

class VociDelComposer final : public VociComposer {
public:
    /// The window must live longer.
    explicit VociDelComposer(frmComposer& composer) : composer_(composer) {}

    std::string voceAttiva() const override;
    void PonVoceAttiva(const std::string& nome) override;
    std::int32_t strumento(std::size_t voce) const override;
    void SceltaStrum(std::int32_t programma) override;
    void VoceAttiva_Click(int Index) override;
    std::string SiglaContralto() const override;
    bool SopranoVuoto() const override;
    void cmdPlay_Click() override;

private:
    frmComposer& composer_;
};

}  // namespace corvana
