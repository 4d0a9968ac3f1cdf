// The melody window with twelve notes of the soprano, and what the user does to its bookmarks.
#pragma once

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

struct BancoRiferimenti : BancoAMano {
    BancoRiferimenti() {
        std::string note;
        for (int nota = 60; nota < 72; ++nota)
            note += std::to_string(nota) + ";";
        Voce(soprano, note, "1");
        TestiLingua& testi = globali.testi;
        testi.prmNomeRiferimento = "nome?";
        testi.msgNomeRiferimentoErrato = "nome errato";
        testi.titRinominaRiferimento = "rinomina";
        testi.prmNuovoNome = "nuovo nome?";
        testi.msgNuovoNomeErrato = "nuovo nome errato";
        testi.msgEliminaRiferimento = "eliminare ";
    }

    const Righe& Elenco() const { return finestra.riferimenti.lstBookMark.List(); }
    bool Aperto() const { return finestra.riferimenti.frBookMark.Visible(); }
    void Scegli(const std::string& riga) { ScegliIn("lstBookMark", riga); }
    /// A click on the button, with that answer to its question.
    void Aggiungi(const std::optional<std::string>& nome) {
        riquadri.testi = {nome};
        Tocca("cmdAddBm");
    }
    /// The list after the soprano's count has changed.
    Righe Aggiornate(Righe righe) {
        finestra.riferimenti.lstBookMark.List = std::move(righe);
        finestra.riferimenti.AggiornaRiferimentoIntero();
        return Elenco();
    }
    /// The notes that the last play struck in the soprano, in order.
    std::vector<int> NoteSuonate() const {
        std::vector<int> note;
        for (const Mandato& m : Messaggi(1))
            if (m.velocita > 0) note.push_back(m.nota);
        return note;
    }
};

/// Twelve notes and three bookmarks, the first of the whole melody.
struct BancoTre : BancoRiferimenti {
    BancoTre() {
        Riferimenti().List = Righe{"1 ÷ 12 ÷Tutta", "5 ÷ 8 ÷ ritornello", "2 ÷ 3 ÷ a"};
        finestra.riferimenti.frBookMark.Visible = true;
    }
    Lista& Riferimenti() { return finestra.riferimenti.lstBookMark; }
};

}  // namespace corvana::prova
