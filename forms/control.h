// The controls of a window as plain state: what they show and whether they may be used. A control
// paints nothing and knows no toolkit; when a window is on the screen, its mirror hears of changes.
// Logic thread. A control must not outlive its form.
#pragma once

#include <string>
#include <vector>

#include "forms/event.h"
#include "forms/handler.h"
#include "forms/property.h"

namespace corvana {

class Form;

enum class Genere : std::uint8_t {
    Finestra,
    Etichetta,
    Bottone,
    Casella,
    Lista,
    Combo,
    Barra,
    Spunta,
    Cornice,
    Figura,
    VoceMenu,
    MenuContestuale,
};

struct Controllo {
private:
    // First of all members: the properties enter themselves here as they are made.
    std::vector<ProprietaBase*> proprieta_;

public:
    Controllo(Form& form, std::string nome, Genere genere, Controllo* padre = nullptr);
    Controllo(const Controllo&) = delete;
    Controllo& operator=(const Controllo&) = delete;
    virtual ~Controllo() = default;

    const std::string Name;
    const Genere tipo;
    /// How the face draws it: the key of a painter or of a type style; empty for the plain one.
    std::string stile;

    Proprieta<&Valori::Visible> Visible{*this};
    Proprieta<&Valori::Enabled> Enabled{*this};
    Proprieta<&Valori::BackColor> BackColor{*this};
    Proprieta<&Valori::ForeColor> ForeColor{*this};
    Proprieta<&Valori::ToolTipText> ToolTipText{*this};
    Proprieta<&Valori::Left> Left{*this};
    Proprieta<&Valori::Top> Top{*this};
    Proprieta<&Valori::Width> Width{*this};
    Proprieta<&Valori::Height> Height{*this};
    Proprieta<&Valori::BorderStyle> BorderStyle{*this};
    Proprieta<&Valori::Sfondo> Sfondo{*this};
    Proprieta<&Valori::Ascolti> Ascolti{*this};
    Gestore<> Click{*this, ascoltaClick};
    Gestore<> DblClick{*this, ascoltaDoppio};
    Gestore<> Change{*this};
    Gestore<> Scroll{*this};
    Gestore<> Invio{*this};
    Gestore<> LostFocus{*this};
    Gestore<const Evento&> MouseDown{*this, ascoltaPressione};
    Gestore<const Evento&> MouseUp{*this};
    Gestore<const Evento&> MouseMove{*this, ascoltaMossa};

    Form& Finestra() const { return form_; }
    Controllo* Padre() const { return padre_; }
    /// Its number in the window, from 0, the window itself.
    int Numero() const { return numero_; }
    const std::vector<ProprietaBase*>& ListaProprieta() const { return proprieta_; }

    /// It and all that it lies in are enabled and visible.
    bool Utilizzabile() const;
    void SetFocus();

    /// Runs the handler for it.
    void Ricevi(const Evento& e);
    /// Takes over what the event says that the user made of it, without telling the face.
    virtual void Accogli(const Evento&) {}
    /// Tells the face again what `Accogli` would have changed, for an event that wasn't delivered.
    virtual void Ripeti() {}
    /// Sets the caption, or the text of a box; a control without either ignores it.
    virtual void PonTesto(const std::string&) {}

protected:
    /// The form itself.
    Controllo(std::string nome, Form& form);

private:
    friend class ProprietaBase;
    Form& form_;
    Controllo* padre_;
    int numero_ = 0;
};

}  // namespace corvana
