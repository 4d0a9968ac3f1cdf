// The melody window with a melody, and the instrument picker open over it.
#pragma once

#include "composer/composer.h"
#include "tests/program/program_rig.h"
#include "utilities/instruments.h"

namespace corvana::prova {

/// Instant at which the picker is open.
constexpr double qui = 6;

struct BancoPicker : BancoProgramma {
    frmComposer* composer = nullptr;  ///< while it is open
    frmStrum* picker = nullptr;       ///< while it is open

    /// The melody is there at 5, the picker at `qui`; `prima` happens in between.
    explicit BancoPicker(const std::function<void(BancoPicker&)>& prima = {}) {
        Clicca(3, "mnuComposer");
        Quando(4, [this] { composer = dynamic_cast<frmComposer*>(finestre.Davanti()); });
        Quando(4.5, [this] {
            Voce(soprano, "60;62;64;65;");
            composer->voci.MostraSopranoIntero();
        });
        Quando(5, [this, prima] {
            if (prima) prima(*this);
        });
        Clicca(5.5, "mnuSs");
        Quando(5.9, [this] {
            picker = dynamic_cast<frmStrum*>(finestre.Davanti());
            uscita.messaggi.clear();
            specchio.fuochi.clear();
        });
    }

    /// How long the soprano's four notes take.
    static constexpr double durataPlay = 4 * 32 * 0.031;

    /// Gives a voice its notes, plain quarters.
    void Voce(std::size_t voce, const std::string& note) const {
        Melodia& melodia = composer->stato.melodia;
        const std::string attiva = std::exchange(melodia.voceAttiva, nomiVoci[voce]);
        VoceMelodia& v = melodia.voci[voce];
        v.testoNote = note;
        v.testoDurate = v.testoAttributi = "";
        for (auto n = std::count(note.begin(), note.end(), ';'); n > 0; --n) {
            v.testoDurate += "1;";
            v.testoAttributi += "n;";
        }
        composer->voci.AggiornaVoce();
        composer->voci.MostraNoteVoce();
        melodia.voceAttiva = attiva;
    }
    VoceMelodia& DellaVoce(std::size_t voce) const { return composer->stato.melodia.voci[voce]; }
    std::string Parola() const { return picker->cmdPlaySstru.Caption(); }
    bool Suona() const { return composer->stato.inEsecuzione; }
    bool Modificata() const { return composer->stato.lblModificato.Visible(); }
    /// The programs sent since the picker opened, as channel (from 1) and program.
    std::vector<std::pair<int, int>> Programmi() const {
        std::vector<std::pair<int, int>> programmi;
        for (const auto& [istante, messaggio] : uscita.messaggi)
            if ((messaggio & 0xF0U) == 0xC0U)
                programmi.emplace_back((messaggio & 0xFU) + 1, messaggio >> 8U & 0x7FU);
        return programmi;
    }
    /// The notes struck on a channel since then.
    std::vector<int> Note(unsigned canale) const {
        std::vector<int> note;
        for (const auto& [istante, messaggio] : uscita.messaggi)
            if ((messaggio & 0xFFU) == 0x90U + canale - 1 && messaggio >> 16U)
                note.push_back(static_cast<int>(messaggio >> 8U & 0x7FU));
        return note;
    }
    /// The picker is in front and the composer beneath it.
    bool PickerDavanti() const { return finestre.Davanti() == picker; }
    bool ComposerDavanti() const { return finestre.Davanti() == composer; }
};

}  // namespace corvana::prova
