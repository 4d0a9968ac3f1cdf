// The ear trainer on the virtual clock, sounded by the synthesiser without a device, and all that a
// learner has of it: what is to be heard, the names on the screen, a mouse and a keyboard.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/real_files.h"
#include "eartrainer/into.h"
#include "forms/virtual_clock.h"
#include "sound/outputs/offline_renderer.h"
#include "tests/support/rig.h"

namespace corvana::prova {

class Aula {
public:
    /// On that page, with the Italian texts. The first so many numbers of chance are drawn already.
    explicit Aula(PaginaInto pagina, int estratti = 0);

    /// At the instant `t`, in seconds.
    void Quando(double t, OrologioVirtuale::Passo passo) { orologio_.Quando(t, std::move(passo)); }
    void Fa(double t, const Mossa& mossa);
    void Clicca(double t, const std::string& controllo) { Fa(t, {Fatto::Click, controllo}); }
    /// A key of the computer's keyboard.
    void Premi(double t, int codice) { Tasto(t, Fatto::KeyDown, codice); }
    void Lascia(double t, int codice) { Tasto(t, Fatto::KeyUp, codice); }
    /// Opens the window at 0 and runs to `fine`.
    void Vivi(double fine);

    /// All that has sounded since the last time, in one channel.
    std::vector<float> Senti();
    /// What stands on a control; nothing on one that can't be seen.
    std::string Legge(const std::string& controllo) const;

private:
    void Manda(double t, Evento evento, const std::string& controllo);
    void Tasto(double t, Fatto fatto, int codice);

    struct Vuota final : Form {
        Vuota() : Form("principale") {}
    };

    OrologioVirtuale orologio_;
    CodaEventi coda_;
    Pompa pompa_{orologio_, coda_};
    RiquadriDaCopione riquadri_;
    Finestre finestre_{pompa_, riquadri_, nullptr};
    ResaOffline resa_{[this] { return pompa_.Adesso(); }};
    Suono suono_{resa_, pompa_, riquadri_};
    FileReali file_;
    FileInMemoria fileImpostazioni_;
    Impostazioni impostazioni_{fileImpostazioni_, riquadri_, "/config/settings"};
    CasualeFisso casuale_;
    Globali globali_;
    Vuota principale_;
    frmInto finestra_;
    double sentiti_ = 0;  ///< seconds that were heard
};

}  // namespace corvana::prova
