// Where the face reports what the user did to the controls of one showing of a window. GUI thread.
#pragma once

#include "forms/event_queue.h"

namespace corvana {

class Mittente {
public:
    Mittente(CodaEventi& coda, std::uint32_t finestra) : coda_(&coda), finestra_(finestra) {}

    void Manda(Evento evento) const {
        evento.finestra = finestra_;
        coda_->Aggiungi(std::move(evento));
    }
    void Manda(int controllo, Fatto fatto, int valore = 0) const {
        Evento evento;
        evento.controllo = controllo;
        evento.fatto = fatto;
        evento.valore = valore;
        Manda(std::move(evento));
    }

private:
    CodaEventi* coda_;
    std::uint32_t finestra_;
};

}  // namespace corvana
