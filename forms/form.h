// A window: its controls, and the handlers of what happens to the window as a whole.
// Logic thread. The controls are members of the derived class and so live as long as the form.
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "forms/controls.h"
#include "forms/mirror.h"

namespace corvana {

class Form : public Controllo {
public:
    explicit Form(std::string nome);

    Proprieta<&Valori::Caption> Caption{*this};
    Proprieta<&Valori::HelpContextID> HelpContextID{*this};
    /// The pointer's shape over the window, where a control has none of its own.
    Proprieta<&Valori::MousePointer> MousePointer{*this};

    virtual void Form_Load() {}
    /// Each time that the window comes to the front of the program's windows. A fault that it lets
    /// escape is shown in a box.
    virtual void Form_Activate() {}
    /// A loop that goes on while the window is open, waiting with the pump: it is to return when
    /// the window has closed. Runs after the first activation. A later one leaves it running where
    /// it is, beneath the handler that opened the window from which the user comes back; it is only
    /// begun anew when it had returned. A fault that it lets escape is shown in a box, and it
    /// begins anew at the next event.
    virtual void CicloResidente() {}
    /// Setting `Cancel` keeps the window open.
    virtual void Form_Unload(bool& Cancel) { static_cast<void>(Cancel); }
    virtual void Form_KeyDown(const Evento& tasto) { static_cast<void>(tasto); }
    virtual void Form_KeyUp(const Evento& tasto) { static_cast<void>(tasto); }

    const std::vector<Controllo*>& Controlli() const { return controlli_; }
    /// The control of that name, compared with case, or null.
    Controllo* Trova(std::string_view nome) const;

    /// `Left` and `Top`, in twips on the screen, were set for this showing: the window stands
    /// there. Otherwise the face finds a place for it. While it is shown they follow the real
    /// window where the platform tells, and setting them moves it.
    bool Collocata() const { return collocata_; }

    /// Identity of this showing; 0 while the form isn't loaded.
    std::uint32_t Identita() const { return identita_; }

    void PonTesto(const std::string& testo) override { Caption = testo; }

    /// Lets the pointer drag the window, while its left button is down.
    void Trascina() const;
    /// Opens the menu at the pointer, or at what has the focus when the user asked for it with the
    /// keyboard. Returns at once; an entry that is chosen is a `Click` like any other.
    void PopupMenu(const MenuContestuale& menu) const;
    /// Shows the help in `file` at the page for the window's context.
    void ApriAiuto(const std::string& file) const;

    /// For the controls alone: a new one's number, a change to tell, the focus to give.
    int Iscrivi(Controllo& controllo);
    void Annuncia(const Controllo& controllo, const ProprietaBase& proprieta);
    void DaiFuoco(const Controllo& controllo);

private:
    friend class Finestre;

    std::vector<Controllo*> controlli_;
    std::unordered_map<std::string_view, Controllo*> perNome_;
    Specchio* specchio_ = nullptr;
    std::uint32_t identita_ = 0;
    std::uint32_t inCiclo_ = 0;  ///< identity of the showing whose loop runs
    bool collocata_ = false;
};

/// Where a control lies, in twips from its parent, and the texts that it starts with.
struct Posto {
    std::string_view nome;
    int left, top, width, height;
    std::string_view testo = {};      ///< caption or text; none leaves the control's own
    std::string_view consiglio = {};  ///< tool tip
    std::string_view stile = {};
};

/// Lays the named controls out. A name that no control of the form has is the layout's mistake:
/// throws std::logic_error.
void Disponi(Form& form, const Posto* posti, std::size_t quanti);

}  // namespace corvana
