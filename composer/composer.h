// The melody window: four voices that are entered, edited, kept in files and played. It puts its
// panels together, hands each what it needs of the others, and does what concerns them all: load
// and unload, emptying the melody, loading another. The melody belongs to the window and doesn't
// outlive it. Logic thread.
#pragma once

#include "composer/backgrounds.h"
#include "composer/bookmark_panel.h"
#include "composer/composer_menu.h"
#include "composer/entry_panel.h"
#include "composer/file_panel.h"
#include "composer/key_commands.h"
#include "composer/key_panel.h"
#include "composer/mix_panel.h"
#include "composer/modify_panel.h"
#include "composer/paste_panel.h"
#include "composer/play_panel.h"
#include "composer/pulses_panel.h"
#include "composer/range_panel.h"
#include "composer/ruler.h"
#include "composer/safeguard.h"
#include "composer/transposition_panel.h"
#include "composer/voice_panel.h"
#include "core/hover.h"
#include "core/toolbar_panel.h"
#include "melody/mel_reader.h"

namespace corvana {

/// What the melody window takes from the windows around it.
struct VicineComposer {
    /// Captions of the main window's entries for the two quick instruments.
    std::function<std::string()> mnuPiano, mnuOrgano;
    /// A play that was started from the instrument picker has ended; may be empty.
    std::function<void()> finePlayDaPicker;
    /// Shows the instrument picker and returns when it has closed.
    std::function<void()> frmStrum = {};
    /// Pictures of the main window's buttons for the instruments and for the reference chart.
    std::function<std::string()> figuraStrumenti = {}, figuraPromemoria = {};
};

class frmComposer final : public Form {
public:
    frmComposer(const Ambiente& ambiente, VicineComposer vicine);

private:
    Ambiente a_;
    VicineComposer vicine_;
    HoverFinestra hover_;

public:
    SfondiComposer sfondi{*this};
    StatoComposer stato{*this};
    MenuComposer menu{*this};
    // The Tab key goes through their controls in this order; what comes later lies over the others.
    PannelloBarra barra{*this, hover_, ComandiDellaBarra()};
    Etichetta pictCi{*this, "pictCi"};  ///< chooses the instrument
    PannelloPulsi pulsi{*this};
    PannelloPlay play;
    // A step gives Play the focus: its arrows and its note come next.
    PannelloModifica modifica;
    PannelloIncolla incolla;
    PannelloTrasposizione trasposizione;
    PannelloMix mix;
    PannelloVoci voci;
    PannelloTratti tratti;
    PannelloTasti tasti;
    PannelloInserimento inserimento;
    PannelloRegolo regolo;
    PannelloRiferimenti riferimenti;
    PannelloFile archivio;
    Etichetta cmdCm{*this, "cmdCm"};  ///< closes the window
    ComandiDaTastiera comandi;
    Salvaguardia salvaguardia;

    void Form_Load() override;
    void Form_Activate() override;
    void CicloResidente() override;
    void Form_Unload(bool& Cancel) override;
    void Form_KeyDown(const Evento& tasto) override;
    void Form_KeyUp(const Evento& tasto) override;

    void mnuSs_Click();
    void mnuCopyFromA_Click();
    void mnuNotLat_Click();
    void mnuNotAnglo_Click();
    void mnuChiudi_Click();
    void Form_MouseDown(int Button);

    /// Empties the melody and stops what plays.
    void cmdReset_Click();

private:
    VicinePlay AttornoAlPlay();
    VicineInserimento AttornoAllInserimento();
    VicineModifica AttornoAllaModifica();
    VicineIncolla AttornoAllIncolla();
    void VoceCambiata();
    VicineComandi AttornoAiTasti();
    PannelloBarra::Comandi ComandiDellaBarra();
    std::function<void()> FuocoPlay();
    std::function<void()> FuocoInsNota();
    void BloccaModifiche(bool bloccate);
    void CollegaMenu();
    void CollegaFinestra();
    void CaricaTesti();
    void CaricaAspetto();
    void PonNomi(bool anglo);

    std::string Byte() const;
    void CaricaMelodia(const std::string& nome);
    void PrendiLettura(const LetturaMel& letta);
    bool CopiaMelodia(MelodiaTenuta& copia) const;
    void RiprendiMelodia(const MelodiaTenuta& tenuta);
    void RiprendiVoce(std::size_t voce, const VoceTenuta& tenuta);

    Colore coloreCm_ = coloreDiSistema;  ///< of `cmdCm` at rest
};

}  // namespace corvana
