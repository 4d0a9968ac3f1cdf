// The whole logic on the virtual clock: a scripted user, a recorded output, files in memory. Each
// test makes its own; nothing is shared between tests.
#pragma once

#include "core/globals.h"
#include "forms/virtual_clock.h"
#include "forms/watchful_boxes.h"
#include "sound/recorder.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_guardian.h"
#include "tests/support/recorded_mirror.h"
#include "tests/support/scripted_boxes.h"

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

/// What the user does to a control of the window in front ("" is the window itself).
struct Mossa {
    Fatto fatto;
    std::string controllo;
    int valore = 0;
};

struct Banco {
    Banco();

    OrologioVirtuale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    Registratore uscita{[this] { return pompa.Adesso(); }};
    RiquadriDaCopione riquadri;
    RiquadriConSguardo riquadriVisti{riquadri, pompa};
    SpecchioRegistrato specchio;
    Finestre finestre{pompa, riquadriVisti, &specchio};
    Suono suono{uscita, pompa, riquadri};
    FileInMemoria file;
    Impostazioni impostazioni{file, riquadri, percorsoImpostazioni};
    CasualeDaLista casuale;
    CustodeInMemoria custode;
    Globali globali;

    static constexpr const char* percorsoImpostazioni = "/config/settings";

    Ambiente Tutto() { return Con(casuale); }
    /// The same with another source of chance.
    Ambiente Con(Casuale& altra) { return Con(file, altra); }
    /// With other files too.
    Ambiente Con(ArchivioFile& altri, Casuale& altra) {
        return {globali,      pompa, finestre, riquadriVisti, suono,
                impostazioni, altri, altra,    &custode};
    }

    /// At the instant `t` of the script (seconds): anything, or an event of the window in front. An
    /// exception of the script's own ends the run: it is no fault of the program's.
    void Quando(double t, OrologioVirtuale::Passo passo);
    void Clicca(double t, const std::string& controllo, int valore = 0);
    void Premi(double t, int codice);
    void Lascia(double t, int codice);
    void Tasto(double t, int codice);  ///< pressed and let go
    void Fa(double t, Fatto fatto, const std::string& controllo, int valore = 0);
    void Manda(double t, Evento evento, const std::string& controllo);
    /// Several events that wait in the queue together: one pump delivers them all.
    void Insieme(double t, const std::vector<Mossa>& mosse);
    /// The end of the script: the run unwinds there.
    void Fine(double t);

    /// The event as the face would make it now, for a control of the window in front ("" is the
    /// window itself).
    Evento Fatta(Evento evento, const std::string& controllo) const;

    /// Runs `logica` to the script's end. True when it was unwound, false when it returned.
    bool SvolgiCopione(const std::function<void()>& logica);
};

}  // namespace corvana::prova
