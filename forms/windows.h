// The windows that are open, one upon the other, and the delivery of events to the one in front.
// Logic thread.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "forms/boxes.h"
#include "forms/form.h"
#include "forms/held_buttons.h"
#include "forms/keys.h"
#include "forms/pump.h"

namespace corvana {

class Finestre {
public:
    /// `specchio` may be null: then nobody sees the windows.
    Finestre(Pompa& pompa, Riquadri& riquadri, Specchio* specchio);
    Finestre(const Finestre&) = delete;
    Finestre& operator=(const Finestre&) = delete;

    /// Loads the window, puts it in front and activates it.
    void Mostra(Form& form);
    /// The same, and returns when the window has been closed; the one beneath is then activated
    /// anew.
    void MostraModale(Form& form);
    /// Asks the window to close; true when it has.
    bool Scarica(Form& form);
    /// Does `inizio`, which opens the first window, and delivers events until the last one is gone.
    /// When the end of the program is asked for, all that runs is unwound, and the windows are
    /// unloaded, from the one in front to the one at the back, whatever they answer.
    void FinoAllUltima(const std::function<void()>& inizio = {});
    /// The windows close because the program ends, and nobody is asked any more.
    bool InChiusura() const { return inChiusura_; }

    /// `aiuto` opens the help for a window. Without it F1 is a key like any other.
    void PonAiuto(std::function<void(const Form&)> aiuto) { aiuto_ = std::move(aiuto); }
    /// Opens the help for the window in front, as F1 does.
    void ChiediAiuto() const;

    /// Hands the desktop its words, and the name of the help's file, in the language that is
    /// chosen.
    void CambiaLingua(const ParoleSchermo& parole, const std::string& aiuto) const;

    const TastiPremuti& Tasti() const { return tasti_; }
    Form* Davanti() const { return aperte_.empty() ? nullptr : aperte_.back(); }
    /// The window that all others were opened over, or null.
    Form* Principale() const { return aperte_.empty() ? nullptr : aperte_.front(); }

private:
    bool Apri(Form& form, bool modale);
    void Attiva(Form& form);
    /// Gone it is, whatever it does while it is unloaded.
    void Congeda(Form& form);
    void Togli(Form& form);
    bool Aperta(const Form& form) const;
    void Consegna(const Evento& evento);
    /// No key and no button is held any more.
    void LasciaTutto();
    /// The buttons that are down on the window's controls, or on all when null, come up.
    void Alza(const Form* form);
    /// The button came up, wherever that was: it comes up for the control on which it went down,
    /// whatever has become of that one and of its window.
    void AlzaUno(const Evento& su);
    /// Whoever is in front: a window beneath can be moved as well.
    void PrendiPosto(const Evento& evento);
    /// A fault that `cosa` lets escape is shown in a box; then it is false.
    bool Proteggi(const std::function<void()>& cosa);
    void Riferisci(Controllo& controllo, const Evento& evento);
    void Smista(Controllo& controllo, const Evento& evento);

    Pompa& pompa_;
    Riquadri& riquadri_;
    Specchio* specchio_;
    std::function<void(const Form&)> aiuto_;
    TastiPremuti tasti_;
    BottoniPremuti bottoni_;
    std::vector<Form*> aperte_;
    std::uint32_t ultimaIdentita_ = 0;
    bool inChiusura_ = false;
};

}  // namespace corvana
