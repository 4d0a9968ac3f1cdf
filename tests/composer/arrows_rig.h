// The arrows of the ranges under the mouse, in the window's loop.
#pragma once

#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

using Estremi = std::pair<std::string, std::string>;

/// Ten notes in each voice, and the window's loop.
struct BancoFrecce : BancoComposer {
    BancoFrecce() {
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            Voce(voce, "60;62;64;65;67;69;71;72;74;76;", "1");
        uscita.messaggi.clear();
    }

    void Mouse(double t, Fatto fatto, const std::string& controllo, int bottone = bottoneSinistro) {
        Evento e;
        e.fatto = fatto;
        e.codice = bottone;
        Manda(t, e, controllo);
    }
    void Tieni(double da, double a, int Index) {
        Mouse(da, Fatto::MouseDown, "lblid" + std::to_string(Index));
        Mouse(a, Fatto::MouseUp, "lblid" + std::to_string(Index));
    }
    void PonTratto(std::size_t voce, int prima, int ultima) {
        if (voce == soprano) return BancoComposer::Tratto(prima, ultima);
        finestra.voci.perVoce[voce].prima.Text = std::to_string(prima);
        finestra.voci.perVoce[voce].ultima.Text = std::to_string(ultima);
    }
    Estremi Caselle(std::size_t voce) const {
        const auto& c = finestra.voci.perVoce[voce];
        return {c.prima.Text(), c.ultima.Text()};
    }
    void Esegui(double fine) {
        Fine(fine);
        SvolgiCopione([this] { finestra.CicloResidente(); });
    }
    bool Premuta() const { return finestra.tratti.passoInCorso; }
    /// Nothing moves any more, though nothing is known of the button.
    void Ferma(double da, double a, const Estremi& atteso) {
        Quando(da, [this, atteso] {
            EXPECT_FALSE(Premuta());
            EXPECT_EQ(Caselle(soprano), atteso);
        });
        Quando(a, [this, atteso] { EXPECT_EQ(Caselle(soprano), atteso); });
    }
};

}  // namespace corvana::prova
