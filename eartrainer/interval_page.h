// The page that trains intervals: two notes sound, and the learner clicks the number of semitones
// between them. Outside of a run the same row sounds what is pressed. Logic thread.
#pragma once

#include "core/interval_names.h"
#include "eartrainer/into_frame.h"

namespace corvana {

/// How a pair is sounded: both at once, the lower one first, that and then both, the upper one
/// first.
enum class ModoIntervallo : std::uint8_t { Armonico = 1, Melodico, Misto, Discendente };

constexpr int radiceZero = 60;  ///< MIDI number of a root of 0

class PaginaIntervalli {
public:
    /// Makes the controls; the frame must live as long as the page.
    explicit PaginaIntervalli(TelaioInto& telaio);

private:
    TelaioInto& t_;

public:
    Cornice FrmIntervalli{t_.finestra, "FrmIntervalli"};
    Etichetta Label5{t_.finestra, "Label5", &FrmIntervalli};
    // By semitones: the answers, and the strips that say whether they may be asked.
    std::deque<Etichetta> LblSemi, Il;
    std::deque<Etichetta> Label4;  ///< the intervals' names, as `nomiIntervalli`
    Etichetta Label7{t_.finestra, "Label7", &FrmIntervalli};
    Etichetta lblModo{t_.finestra, "lblModo", &FrmIntervalli};
    Etichetta lblFv{t_.finestra, "lblFv", &FrmIntervalli};
    Etichetta IntRoot{t_.finestra, "IntRoot", &FrmIntervalli};
    Barra SelIntRoot{t_.finestra, "SelIntRoot", &FrmIntervalli};
    Cornice frmRifVar{t_.finestra, "frmRifVar", &FrmIntervalli};
    Etichetta lblRifInf{t_.finestra, "lblRifInf", &frmRifVar};
    Barra RifInf{t_.finestra, "RifInf", &frmRifVar};
    Etichetta lblRifSup{t_.finestra, "lblRifSup", &frmRifVar};
    Barra RifSup{t_.finestra, "RifSup", &frmRifVar};
    Bottone CmdIntStart{t_.finestra, "CmdIntStart", &FrmIntervalli};
    Etichetta lblRipInt{t_.finestra, "lblRipInt", &FrmIntervalli};
    Etichetta lblIntSh{t_.finestra, "lblIntSh", &FrmIntervalli};
    Etichetta lblNi{t_.finestra, "lblNi", &FrmIntervalli};
    Etichetta lblNs{t_.finestra, "lblNs", &FrmIntervalli};

    std::int16_t IntSemitoni = 0;  ///< the size asked for
    std::int16_t IntRadice = 0;    ///< the root, from MIDI 60
    ModoIntervallo IntModo = ModoIntervallo::Armonico;
    std::array<bool, dimensioniIntervallo> IntEscluso{};

    /// At the window's load.
    void Carica();
    /// What entering the page does beyond what all pages do.
    void Entra();

    void CmdIntStart_Click();
    void LblSemi_Click(int semitoni);
    void LblSemi_MouseDown(int semitoni);
    void LblSemi_MouseUp(int semitoni);
    void Il_Click(int semitoni);
    void Il_DblClick(int semitoni);
    void lblIntSh_Click();
    void lblRipInt_Click();
    void lblModo_Click();
    void lblFv_Click();
    void SelIntRoot_Change();

    /// Sounds an interval of that size from the current root.
    void ppSuonaInt(int semitoni);
    /// At least one size may be asked.
    bool IntCeNe() const;

private:
    void FaiEtichette();
    void CollegaRiga(int semitoni);
    void CollegaRadici();
    void PrendiRadice();
    void EstraiRadice();
    void Avvia();
    void Ferma();
    void Domanda();
    void ppSuonaCoppia(int bassa, int alta);
    void SuonaPerModo(ModoIntervallo modo, int bassa, int alta);
    void Suona(int nota);
    void ppSuonaRadice(int nota);
    void MostraEstensioneRadici(bool mostra);
    /// The pair's keys and names, and the answer.
    void MostraCoppia();
    void NascondiCoppia(int semitoni);
    void Escludi(std::size_t semitoni, bool escluso);
    bool Aiuto() const { return lblIntSh.Caption().empty(); }
    Etichetta& Semi(int semitoni) { return LblSemi.at(static_cast<std::size_t>(semitoni)); }
};

}  // namespace corvana
