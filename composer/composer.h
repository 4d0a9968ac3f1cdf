// The melody window: four voices that are entered, edited, kept in files and played. The melody
// belongs to the window and doesn't outlive it. Logic thread.
//
// Its routines stand in one source file for each concern: composer.cpp (start, end, tempo),
// controls.cpp (what the controls start with), voices.cpp (texts, arrays and displays of a voice),
// mix.cpp (active voice, instruments, volumes), metronome.cpp (the pulses' settings),
// bookmarks.cpp, keyboard.cpp (keys lit, everything silenced), files.cpp (saving), loading.cpp,
// file_panel.cpp, reset.cpp, playing.cpp (the commands around a play, which itself is in
// playback.cpp).
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "composer/playback_state.h"
#include "piano/computer_piano.h"
#include "core/globals.h"
#include "core/notation.h"
#include "forms/form.h"
#include "melody/mel_reader.h"
#include "melody/mel_writer.h"
#include "melody/melody.h"

namespace corvana {

/// What the melody window takes from the windows around it.
struct VicineComposer {
    /// Captions of the main window's entries for the two quick instruments.
    std::function<std::string()> mnuPiano, mnuOrgano;
    /// A play that was started from the instrument picker has ended; may be empty.
    std::function<void()> finePlayDaPicker;
};

class frmComposer final : public Form {
public:
    frmComposer(const Ambiente& ambiente, VicineComposer vicine);

    VoceMenu file{*this, "file"}, mnuApri{*this, "mnuApri", &file},
        mnuSalva{*this, "mnuSalva", &file}, mnuSaveAs{*this, "mnuSaveAs", &file},
        mnuSalvaA{*this, "mnuSalvaA", &file};
    VoceMenu strumento{*this, "strumento"}, mnuPiano{*this, "mnuPiano", &strumento},
        mnuOrgano{*this, "mnuOrgano", &strumento};
    VoceMenu mnuOp{*this, "mnuOp"}, mnuPlayRitardo{*this, "mnuPlayRitardo", &mnuOp};
    VoceMenu mnuContestuale2{*this, "mnuContestuale2"},
        mnuSalvaCont{*this, "mnuSalvaCont", &mnuContestuale2},
        mnuSaveAsCont{*this, "mnuSaveAsCont", &mnuContestuale2},
        mnucSalvaA{*this, "mnucSalvaA", &mnuContestuale2},
        mnuPianoCont{*this, "mnuPianoCont", &mnuContestuale2},
        mnuOrganoCont{*this, "mnuOrganoCont", &mnuContestuale2};

    /// The keys of the five octaves, "lb0" to "lb59"; a lit one is opaque.
    std::deque<Etichetta> lb;
    Cornice Regolo{*this, "Regolo"};
    Etichetta lblCursore{*this, "lblCursore", &Regolo},
        lblAccidente{*this, "lblAccidente", &Regolo};
    Etichetta lblActNote{*this, "lblActNote"}, lblSemitoni{*this, "lblSemitoni"};
    Etichetta lblNome{*this, "lblNome"}, lblModificato{*this, "lblModificato"};
    Etichetta lblNt{*this, "lblNt"}, lblNe{*this, "lblNe"}, lblPnn{*this, "lblPnn"};

    Etichetta LblNoteString{*this, "LblNoteString"}, LblNoteStringC{*this, "LblNoteStringC"},
        LblNoteStringT{*this, "LblNoteStringT"}, LblNoteStringB{*this, "LblNoteStringB"};
    Casella lblNini{*this, "lblNini"}, lblNfine{*this, "lblNfine"}, lblNiniC{*this, "lblNiniC"},
        lblNfineC{*this, "lblNfineC"}, lblNiniT{*this, "lblNiniT"}, lblNfineT{*this, "lblNfineT"},
        lblNiniB{*this, "lblNiniB"}, lblNfineB{*this, "lblNfineB"};
    std::array<Etichetta, numeroVoci> VoceAttiva{{{*this, "VoceAttiva0"},
                                                  {*this, "VoceAttiva1"},
                                                  {*this, "VoceAttiva2"},
                                                  {*this, "VoceAttiva3"}}};
    std::array<Etichetta, numeroVoci> lblInstr{
        {{*this, "lblInstr0"}, {*this, "lblInstr1"}, {*this, "lblInstr2"}, {*this, "lblInstr3"}}};
    Barra VolS{*this, "VolS"}, VolC{*this, "VolC"}, VolT{*this, "VolT"}, VolB{*this, "VolB"};
    Etichetta lblVolS{*this, "lblVolS"}, lblVolC{*this, "lblVolC"}, lblVolT{*this, "lblVolT"},
        lblVolB{*this, "lblVolB"};

    std::array<Figura, 7> cmdSimbNote{{{*this, "cmdSimbNote0"},
                                       {*this, "cmdSimbNote1"},
                                       {*this, "cmdSimbNote2"},
                                       {*this, "cmdSimbNote3"},
                                       {*this, "cmdSimbNote4"},
                                       {*this, "cmdSimbNote5"},
                                       {*this, "cmdSimbNote6"}}};
    Casella PausaPer{*this, "PausaPer"};
    Bottone cmdInsNota{*this, "cmdInsNota"}, cmdInsPausa{*this, "cmdInsPausa"},
        cmdCanc{*this, "cmdCanc"}, cmdPaste{*this, "cmdPaste"}, cmdAddBm{*this, "cmdAddBm"};
    Cornice frmModifica{*this, "frmModifica"};
    Combo cmbDurata{*this, "cmbDurata", &frmModifica}, cmbPer{*this, "cmbPer", &frmModifica},
        cmbAttributi{*this, "cmbAttributi", &frmModifica};

    Bottone cmdPlay{*this, "cmdPlay"};
    Spunta chekLoop{*this, "chekLoop"};
    Barra Slider1{*this, "Slider1"};
    Etichetta Velocità{*this, "Velocità"};
    Figura lblRigaCur{*this, "lblRigaCur"}, Cursore{*this, "Cursore"};
    std::array<Figura, 5> Secondo{{{*this, "Secondo0"},
                                   {*this, "Secondo1"},
                                   {*this, "Secondo2"},
                                   {*this, "Secondo3"},
                                   {*this, "Secondo4"}}};

    Etichetta lblTs{*this, "lblTs"};
    Cornice frMetro{*this, "frMetro"};
    Combo Pulsazioni{*this, "Pulsazioni", &frMetro},
        DurataPulsazioni{*this, "DurataPulsazioni", &frMetro};
    Barra InizioPuls{*this, "InizioPuls", &frMetro}, VolumeMetro{*this, "VolumeMetro", &frMetro};
    Etichetta LblInizioPuls{*this, "LblInizioPuls", &frMetro},
        lblDebug{*this, "lblDebug", &frMetro};

    Cornice frBookMark{*this, "frBookMark"};
    Lista lstBookMark{*this, "lstBookMark", &frBookMark};
    Bottone cmdDelBm{*this, "cmdDelBm", &frBookMark};
    Cornice Fr2{*this, "Fr2"};
    Lista List1{*this, "List1", &Fr2};
    Etichetta lblPercorso{*this, "lblPercorso", &Fr2};
    Bottone cmdEseguiFile{*this, "cmdEseguiFile", &Fr2}, cmdDelete{*this, "cmdDelete", &Fr2};
    Etichetta cmdCm{*this, "cmdCm"};

    Melodia melodia;
    std::int16_t rigaCursore = 19;    ///< row of the cursor on the ruler, smaller is higher
    std::int16_t notaCursore = 60;    ///< note under it
    std::int16_t tastoCorrente = 70;  ///< last key of `lb` used, 70 for none
    std::int16_t baseTastiera = 48;   ///< note of the key Z
    PianoDaTastiera piano;
    Colore ColoreAcceso = Rgb(10, 254, 10);
    Colore ColoreSpento = coloreDiSistema;

    bool inEsecuzione = false;  ///< a melody plays; a Stop request clears it
    StatoRiproduzione riproduzione{melodia};
    bool metroAttivo = false;
    std::string pattern = "ab";  ///< the pulse letters
    std::uint8_t ultimoPulso = 1;
    std::uint8_t pulsoIniziale = 0;
    double durataPulso = 1;  ///< in quarter notes

    void Form_Load() override;
    void Form_Unload(bool& Cancel) override;
    void Slider1_Change();
    void Slider1_Scroll();

    /// Splits the texts of the active voice and refreshes its counters and boxes. Throws `Guasto` 6
    /// for more notes than a voice may hold.
    void AggiornaVoce();
    /// Rebuilds the note names of the active voice.
    void MostraNoteVoce();
    /// Takes the token behind `IndiceNotaPP` out of the active voice.
    void TogliNota();
    /// The list's word for the duration of the note at `IndiceNotaPP`; "na" when it has none.
    std::string TestoDurata() const;
    /// The value chosen in `cmbDurata`, times `cmbPer`.
    double ValoreCombo() const;
    void AzzeraMelodia();
    void AggiornaRiferimentoIntero();

    /// Makes a voice the active one; an index outside of 0 to 3 does nothing.
    void VoceAttiva_Click(int Index);
    /// Gives the active voice an instrument.
    void SceltaStrum(std::int32_t programma);

    void lblTs_Click();
    void Pulsazioni_Click();
    void DurataPulsazioni_Click();
    void InizioPuls_Change();

    /// Lights or clears a key, 0 to 59; any other number does nothing.
    void MostraTasto(int tasto, bool acceso);
    /// The same for a note played on the computer's keyboard, which also becomes the active one.
    void MostraTastoPiano(std::int16_t nota, bool acceso);
    /// One pass of the key poll over the piano's keys.
    void EsaminaPiano();
    void SpegniTutteLeNote();
    void SpegniNoteVoci();
    void SpegniTastiera();

    /// Writes the melody into the current folder, replacing a file of that name.
    void SalvaMelodia(const std::string& nome);
    void mnuSalva_Click();
    void mnuSaveAs_Click();
    void mnuSalvaA_Click();
    void mnuApri_Click();
    void ListaFD();
    /// Opens the chosen row: a folder is entered, a melody loaded and played.
    void cmdEseguiFile_Click();
    void cmdReset_Click();

    /// Plays, or, while something plays, asks it to stop. With `soloNota` the play ends with the
    /// first note. The arguments are read again while it plays.
    void SuonaMelodia(const std::int16_t& primaNota, const std::int16_t& ultimaNota,
                      const bool& soloNota);
    void cmdPlay_Click();
    void mnuPlayRitardo_Click();
    /// Sum of the ticks of the soprano's notes 0 to `indice`; 0 for a negative one.
    Tick TickFinoANota(std::int16_t indice) const;
    void CalcolaTickTotali();
    /// Gives the word back to whoever started the play.
    void PlayFinito();
    /// Name of a note in the notation in use.
    std::string NomeDi(std::int16_t nota) const { return NomeNota(nota, a_.globali.NomiAnglo); }

    /// The controls that each voice has its own of.
    struct ControlliVoce {
        Etichetta& nomi;
        Casella& prima;
        Casella& ultima;
        Barra& volume;
        Etichetta& percento;
    };
    const std::array<ControlliVoce, numeroVoci> perVoce{
        {{LblNoteString, lblNini, lblNfine, VolS, lblVolS},
         {LblNoteStringC, lblNiniC, lblNfineC, VolC, lblVolC},
         {LblNoteStringT, lblNiniT, lblNfineT, VolT, lblVolT},
         {LblNoteStringB, lblNiniB, lblNfineB, VolB, lblVolB}}};

private:
    void PreparaControlli();
    void Collega();
    void PonCursore();
    void AzzeraEditing();
    void PonMetronomoIniziale();
    void PonMetronomo(bool attivo, Colore fondo, Colore lettere);
    bool InPlay() const { return cmdPlay.Caption() != "Play"; }

    void AggiornaSoprano();
    static void AggiornaAltra(VoceMelodia& voce, const ControlliVoce& controlli);
    std::string NomiFino(const VoceMelodia& voce, long note) const;
    void FermaMelodia();
    void MandaStrumento(std::size_t voce);
    void MostraStrumento(std::size_t voce);
    static void VolumeCambiato(const ControlliVoce& voce);

    std::string Percorso(const std::string& nome) const;
    void ScriviIn(const std::string& percorso);
    std::string ChiediNome(const std::string& proposta);
    void ScriviSulSupporto(const std::string& nomeFile);
    void MostraErroreSupporto(const Guasto& guasto);

    void CaricaMelodia(const std::string& nome);
    void PrendiLettura(const LetturaMel& letta);
    void PrendiMetronomo(const std::vector<std::string>& campi);
    void PrendiStrumenti(const std::string& delSoprano);
    bool PrendiSoprano(const std::string& tempo);
    void PrendiAltreVoci();

    Ambiente a_;
    VicineComposer vicine_;
};

}  // namespace corvana
