// Boxes before which the pump's look is taken: the logic then stands for as long as the user takes
// to answer. Logic thread.
#pragma once

#include "forms/boxes.h"
#include "forms/pump.h"

namespace corvana {

class RiquadriConSguardo final : public Riquadri {
public:
    /// Both must outlive it.
    RiquadriConSguardo(Riquadri& veri, Pompa& pompa) : veri_(veri), pompa_(pompa) {}

    void MsgBox(const std::string& testo) override {
        pompa_.Guarda();
        veri_.MsgBox(testo);
    }
    bool Domanda(const std::string& testo) override {
        pompa_.Guarda();
        return veri_.Domanda(testo);
    }
    std::optional<std::string> InputBox(const std::string& testo, const std::string& titolo,
                                        const std::string& proposta) override {
        pompa_.Guarda();
        return veri_.InputBox(testo, titolo, proposta);
    }

private:
    Riquadri& veri_;
    Pompa& pompa_;
};

}  // namespace corvana
