#include "tests/support/rig.h"

#include <stdexcept>
#include <utility>

namespace corvana::prova {

namespace {

Evento EventoTasto(Fatto fatto, int codice) {
    Evento e;
    e.fatto = fatto;
    e.codice = codice;
    return e;
}

/// What the program doesn't take for a fault of its own.
struct ErroreCopione {
    std::string cosa;
};

}  // namespace

Banco::Banco() {
    globali.CartellaProgramma = "/programma";
    impostazioni.Prepara();
}

void Banco::Quando(double t, OrologioVirtuale::Passo passo) {
    orologio.Quando(t, [passo = std::move(passo)] {
        try {
            passo();
        } catch (const std::exception& errore) {
            throw ErroreCopione{errore.what()};
        }
    });
}

Evento Banco::Fatta(Evento evento, const std::string& controllo) const {
    const Form* davanti = finestre.Davanti();
    if (!davanti) throw std::logic_error("no window for " + controllo);
    const Controllo* c = davanti->Trova(controllo.empty() ? davanti->Name : controllo);
    if (!c) throw std::logic_error("no control " + controllo);
    evento.finestra = davanti->Identita();
    evento.controllo = c->Numero();
    return evento;
}

void Banco::Manda(double t, Evento evento, const std::string& controllo) {
    Quando(t, [this, evento, controllo] {
        if (finestre.Davanti()) coda.Aggiungi(Fatta(evento, controllo));
    });
}

void Banco::Fa(double t, Fatto fatto, const std::string& controllo, int valore) {
    Evento e;
    e.fatto = fatto;
    e.valore = valore;
    Manda(t, e, controllo);
}

void Banco::Clicca(double t, const std::string& controllo, int valore) {
    Fa(t, Fatto::Click, controllo, valore);
}

void Banco::Premi(double t, int codice) {
    Manda(t, EventoTasto(Fatto::KeyDown, codice), "");
}

void Banco::Lascia(double t, int codice) {
    Manda(t, EventoTasto(Fatto::KeyUp, codice), "");
}

void Banco::Tasto(double t, int codice) {
    Premi(t, codice);
    Lascia(t, codice);
}

void Banco::Insieme(double t, const std::vector<Mossa>& mosse) {
    Quando(t, [this, mosse] {
        for (const auto& [fatto, controllo, valore] : mosse) {
            Evento e;
            e.fatto = fatto;
            e.valore = valore;
            coda.Aggiungi(Fatta(e, controllo));
        }
    });
}

void Banco::Fine(double t) {
    Quando(t, [] { throw FineCopione{}; });
}

bool Banco::SvolgiCopione(const std::function<void()>& logica) {
    try {
        logica();
        return false;
    } catch (const FineCopione&) {
        return true;
    } catch (const ErroreCopione& errore) {
        throw std::logic_error(errore.cosa);
    }
}

}  // namespace corvana::prova
