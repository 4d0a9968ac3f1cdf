// The kinds of controls. Logic thread.
#pragma once

#include <string>

#include "forms/control.h"

namespace corvana {

struct ConCaption : Controllo {
    using Controllo::Controllo;
    Proprieta<&Valori::Caption> Caption{*this};
    void PonTesto(const std::string& testo) override { Caption = testo; }
};

struct Etichetta : ConCaption {
    Etichetta(Form& form, std::string nome, Controllo* padre = nullptr)
        : ConCaption(form, std::move(nome), Genere::Etichetta, padre) {}
    /// `fondoTrasparente` shows what lies beneath the label, whatever its `BackColor`.
    Proprieta<&Valori::BackStyle> BackStyle{*this};
};

/// A label that goes through several steps and shows which of them it has reached.
struct EtichettaAPassi : Etichetta {
    using Etichetta::Etichetta;
    Proprieta<&Valori::Value> Value{*this};
    Proprieta<&Valori::Max> Max{*this};
};

struct Bottone : ConCaption {
    Bottone(Form& form, std::string nome, Controllo* padre = nullptr)
        : ConCaption(form, std::move(nome), Genere::Bottone, padre) {}
};

/// A button that may stay down: whether it does is the logic's to say, not the click's.
struct Interruttore : Bottone {
    using Bottone::Bottone;
    Proprieta<&Valori::Checked> Checked{*this};
};

struct Casella : Controllo {
    Casella(Form& form, std::string nome, Controllo* padre = nullptr)
        : Controllo(form, std::move(nome), Genere::Casella, padre) {}
    Proprieta<&Valori::Text> Text{*this};
    Proprieta<&Valori::Locked> Locked{*this};
    int MaxLength = 0;  ///< characters, 0 for no limit
    /// What becomes of a typed character: the one to take instead, or 0 to drop it. Pure: the face
    /// calls it on its own thread.
    char32_t (*Filtro)(char32_t) = nullptr;
    void Accogli(const Evento& e) override;
    void Ripeti() override;
    void PonTesto(const std::string& testo) override { Text = testo; }
};

/// Selecting a row from code fires `Click`, as a selection by the user does, the same row too.
struct Lista : Controllo {
    Lista(Form& form, std::string nome, Controllo* padre = nullptr)
        : Controllo(form, std::move(nome), Genere::Lista, padre) {}
    Proprieta<&Valori::List> List{*this};
    Proprieta<&Valori::ListIndex> ListIndex{*this};
    void AddItem(std::string riga);
    void PonRiga(int indice, std::string testo);
    virtual void Clear();
    void Seleziona(int indice);
    /// The chosen row; empty when none is.
    std::string Scelta() const;
    void Accogli(const Evento& e) override;
    void Ripeti() override;

protected:
    Lista(Form& form, std::string nome, Genere genere, Controllo* padre)
        : Controllo(form, std::move(nome), genere, padre) {}
};

/// A list in which several rows can be selected; `ListIndex` is the one that the user touched last.
struct ListaMultipla : Lista {
    ListaMultipla(Form& form, std::string nome, Controllo* padre = nullptr);
    Proprieta<&Valori::MultiSelect> MultiSelect{*this};
    Proprieta<&Valori::Selected> Selected{*this};
    void Clear() override;
    void Accogli(const Evento& e) override;
    void Ripeti() override;
};

/// A list of which the face shows the chosen row alone, until the user opens it.
struct Combo : Lista {
    Combo(Form& form, std::string nome, Controllo* padre = nullptr)
        : Lista(form, std::move(nome), Genere::Combo, padre) {}
    std::string Text() const { return Scelta(); }
    /// Chooses the first row that reads exactly so, as `Seleziona` does. Throws `Guasto` 380 when
    /// there is no such row.
    void PonTesto(const std::string& testo) override;
};

/// A slider or scroll bar: `Min` at its left or upper end, `Max` at the other; either may be the
/// larger. `PonValore` fires `Change` when the value changes.
struct Barra : Controllo {
    Barra(Form& form, std::string nome, Controllo* padre = nullptr)
        : Controllo(form, std::move(nome), Genere::Barra, padre) {}
    Proprieta<&Valori::Min> Min{*this};
    Proprieta<&Valori::Max> Max{*this};
    Proprieta<&Valori::Value> Value{*this};
    int LargeChange = 10;
    bool Contiene(int valore) const;
    /// Throws `Guasto` 380 when `valore` lies outside of `Min` to `Max`.
    void PonValore(int valore);
    void Accogli(const Evento& e) override;
    void Ripeti() override;
};

struct Spunta : ConCaption {
    Spunta(Form& form, std::string nome, Controllo* padre = nullptr)
        : ConCaption(form, std::move(nome), Genere::Spunta, padre) {}
    Proprieta<&Valori::Checked> Value{*this};
    void Accogli(const Evento& e) override;
    void Ripeti() override;
};

struct Cornice : ConCaption {
    Cornice(Form& form, std::string nome, Controllo* padre = nullptr)
        : ConCaption(form, std::move(nome), Genere::Cornice, padre) {}
};

struct Figura : Controllo {
    Figura(Form& form, std::string nome, Controllo* padre = nullptr)
        : Controllo(form, std::move(nome), Genere::Figura, padre) {}
};

/// A picture that says something to those who don't see it.
struct FiguraLetta : Figura {
    using Figura::Figura;
    Proprieta<&Valori::NomeLetto> NomeLetto{*this};
};

/// An entry of the menu bar or, under another entry, of its menu. No caption makes a separator.
struct VoceMenu : ConCaption {
    VoceMenu(Form& form, std::string nome, Controllo* padre = nullptr)
        : ConCaption(form, std::move(nome), Genere::VoceMenu, padre) {}
    Proprieta<&Valori::Checked> Checked{*this};
};

/// A menu that stands in no bar: `Form::PopupMenu` opens it.
struct MenuContestuale : ConCaption {
    MenuContestuale(Form& form, std::string nome)
        : ConCaption(form, std::move(nome), Genere::MenuContestuale) {}
};

}  // namespace corvana
