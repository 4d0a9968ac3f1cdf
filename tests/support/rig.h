// The whole logic on the virtual clock: a scripted user, a recorded output, files in memory. Each
// test makes its own; nothing is shared between tests.
#pragma once

#include "core/globals.h"
#include "forms/virtual_clock.h"
#include "sound/recorder.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_dialogs.h"

namespace corvana::prova {

/// Draws what the test lists, then 0.
class CasualeDaLista final : public Casuale {
public:
    std::deque<double> numeri;
    int estratti = 0;
    double Estrai() override {
        ++estratti;
        if (numeri.empty()) return 0;
        const double primo = numeri.front();
        numeri.pop_front();
        return primo;
    }
};

struct Banco {
    Banco();

    OrologioVirtuale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    Registratore uscita{[this] { return pompa.Adesso(); }};
    DialoghiDaCopione dialoghi;
    Finestre finestre{pompa, dialoghi, nullptr};
    Suono suono{uscita, pompa, dialoghi};
    FileInMemoria file;
    Impostazioni impostazioni{file, dialoghi, percorsoImpostazioni};
    CasualeDaLista casuale;
    Globali globali;

    static constexpr const char* percorsoImpostazioni = "/config/settings";

    Ambiente Tutto() {
        return {globali, pompa, finestre, dialoghi, suono, impostazioni, file, casuale};
    }

    /// At the instant `t` of the script (seconds): anything, or an event of the window in front.
    void Quando(double t, OrologioVirtuale::Passo passo) { orologio.Quando(t, std::move(passo)); }
    void Clicca(double t, const std::string& controllo, int valore = 0);
    void Premi(double t, int codice);
    void Lascia(double t, int codice);
    void Tasto(double t, int codice);  ///< pressed and let go
    void Manda(double t, Evento evento, const std::string& controllo);
    /// The end of the script: the run unwinds there.
    void Fine(double t);

    /// Runs `logica` to the script's end. True when it was unwound, false when it returned.
    bool Esegui(const std::function<void()>& logica);
};

}  // namespace corvana::prova
