#include "tests/support/rig.h"

namespace corvana::prova {

Banco::Banco() {
    globali.CartellaProgramma = "/programma";
    impostazioni.CreaSeManca();
}

void Banco::Manda(double t, Evento evento, const std::string& controllo) {
    Quando(t, [this, evento, controllo]() mutable {
        const Form* davanti = finestre.Davanti();
        if (!davanti) return;
        const Controllo* c = davanti->Trova(controllo.empty() ? davanti->Name : controllo);
        if (!c) throw std::logic_error("no control " + controllo);
        evento.finestra = davanti->Identita();
        evento.controllo = c->Numero();
        coda.Aggiungi(evento);
    });
}

void Banco::Clicca(double t, const std::string& controllo, int valore) {
    Evento e;
    e.valore = valore;
    Manda(t, e, controllo);
}

void Banco::Premi(double t, int codice) {
    Evento e;
    e.fatto = Fatto::KeyDown;
    e.codice = codice;
    Manda(t, e, "");
}

void Banco::Lascia(double t, int codice) {
    Evento e;
    e.fatto = Fatto::KeyUp;
    e.codice = codice;
    Manda(t, e, "");
}

void Banco::Tasto(double t, int codice) {
    Premi(t, codice);
    Lascia(t, codice);
}

void Banco::Fine(double t) {
    Quando(t, [] { throw FineCopione{}; });
}

bool Banco::Esegui(const std::function<void()>& logica) {
    try {
        logica();
        return false;
    } catch (const FineCopione&) {
        return true;
    }
}

}  // namespace corvana::prova
