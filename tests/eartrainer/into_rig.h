// The ear trainer on the virtual clock, over an empty main window.
#pragma once

#include <string>
#include <vector>

#include "eartrainer/into.h"
#include "tests/support/rig.h"

namespace corvana::prova {

using Suonati = std::vector<std::string>;

struct BancoInto : Banco {
    /// With these of its pages flagged.
    explicit BancoInto(std::initializer_list<PaginaInto> pagine = {})
        : BancoInto(casuale, pagine) {}
    /// With another source of chance.
    explicit BancoInto(Casuale& altra, std::initializer_list<PaginaInto> pagine = {});

    struct Vuota final : Form {
        explicit Vuota(const char* nome) : Form(nome) {}
    } principale{"principale"}, picker{"frmStrum"};
    int scelte = 0;                   ///< openings of the instrument picker
    std::function<void()> nelPicker;  ///< what the learner does in it; then it closes
    frmInto finestra;
    StatoInto& into = globali.into;

    /// Opens the window at 0 and runs to `fine`. True when it was still open then.
    bool Vai(double fine);

    void Chiudi(double t) { Fa(t, Fatto::Chiudi, ""); }
    void Tasto(double t, int indice) { Clicca(t, "lb" + std::to_string(indice)); }
    /// Puts the next draw of `quanti` on number `quale`, from 0.
    void Estrai(int quale, int quanti) { casuale.numeri.push_back((quale + 0.5) / quanti); }
    /// What would have been stored by an earlier day.
    void PonStato(const std::string& stato) { impostazioni.ScriviValore("IntoLastS", stato); }
    std::string Stato() { return impostazioni.LeggiValore("IntoLastS"); }

    /// Note messages of channel 1 from an instant on, as "seconds note velocity", counted from it.
    Suonati Note(double da = 0) const;
    /// All messages, as "seconds on note velocity", "seconds off note", "seconds program number".
    Suonati Messaggi() const;
    std::vector<int> Programmi() const;
    std::vector<int> Accesi() const;   ///< keys
    std::vector<int> Segnati() const;  ///< marks
    std::string Passo() const { return finestra.telaio.lblStep.Caption(); }
    /// Right, wrong, percentage.
    std::string Punti() const;
    bool Visibile(const std::string& nome) const { return finestra.Trova(nome)->Visible(); }
    std::string Testo(const std::string& nome) const;
    Colore Fondo(const std::string& nome) const { return finestra.Trova(nome)->BackColor(); }
    std::string Consiglio(const std::string& nome) const {
        return finestra.Trova(nome)->ToolTipText();
    }
};

}  // namespace corvana::prova
