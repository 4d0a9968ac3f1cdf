// The ear trainer: five drills as pages of one window, with one keyboard, one score and one
// instrument. It puts the pages together and does what concerns them all: which one is in front,
// what a click on a key of the keyboard means, load and unload, the stored state, and the loop in
// which the computer's keyboard is a piano. Logic thread.
#pragma once

#include "core/hover.h"
#include "core/toolbar_panel.h"
#include "eartrainer/chord_page.h"
#include "eartrainer/interval_page.h"
#include "eartrainer/into_frame.h"
#include "eartrainer/into_menu.h"
#include "eartrainer/intonation_page.h"
#include "eartrainer/key_finding_page.h"
#include "eartrainer/page_flags.h"
#include "eartrainer/tonality_page.h"
#include "piano/computer_piano.h"

namespace corvana {

/// What the ear trainer takes from the windows around it.
struct VicineInto {
    /// Tool tips of the main window's buttons for pitch, the instruments and help.
    std::function<std::string()> consiglioIntonazione, consiglioStrumenti, consiglioAiuto;
    /// Shows the instrument picker and returns when it has closed.
    std::function<void()> frmStrum;
};

class frmInto final : public Form {
public:
    frmInto(const Ambiente& ambiente, VicineInto vicine);

private:
    Ambiente a_;
    VicineInto vicine_;
    HoverFinestra hover_;

public:
    MenuInto menu{*this};
    TelaioInto telaio{a_, *this, menu.Esercizio, [this] { return intonazione.Label6.BackColor(); }};
    PannelloBarra barra{*this, hover_, ComandiDellaBarra()};
    PaginaIntonazione intonazione{telaio};
    PaginaIntervalli intervalli{telaio};
    PaginaAccordi accordi{telaio, [this] { return intervalli.Label4[7].BackColor(); }};
    PaginaTasti tasti{telaio};
    PaginaTonalita tonalita{telaio};

    std::int16_t BaseTastiera = 48;  ///< MIDI number of the key Z

    void Form_Load() override;
    void Form_Activate() override;
    void CicloResidente() override;
    void Form_Unload(bool& Cancel) override;
    void Form_KeyDown(const Evento& tasto) override;
    void Form_KeyUp(const Evento& tasto) override;

    void mnuNotA_Click();
    void mnuRint_Click();
    void mnuRicTa_Click();
    void mnuRicTasto_Click();
    void mnuRicTo_Click();
    void mnuSs_Click();
    void mnuNotLat_Click();
    void mnuNotAnglo_Click();
    void lb_Click(std::int16_t indice);
    /// Raises the piano on the computer's keyboard by an octave, or brings it back to the lowest.
    void CambiaBase();

    /// Stores what is kept between runs.
    void SaveLastIntoSup();

private:
    PannelloBarra::Comandi ComandiDellaBarra();
    void CollegaMenu();
    void CollegaTastiera();
    void PonConsigli();
    void PonStrumento(std::int32_t programma);
    void PonNomi(bool anglo);
    /// A page as the window sees it: its frame, and the entry to it.
    struct Foglio {
        Cornice& cornice;
        void (frmInto::*entra)();
    };
    /// In the order of their flags.
    std::array<Foglio, pagineInto.size()> Fogli();
    /// What entering any page does: its frame in front, its help, its flag.
    void MostraPagina(PaginaInto pagina);
    bool PuoChiudersi() const;
    PianoDaTastiera::Mostra MostraTasto();

    PianoDaTastiera piano_;
    bool fineCiclo_ = false;
    Colore ColoreEsci = coloreDiSistema;  ///< of the exit at rest
};

}  // namespace corvana
