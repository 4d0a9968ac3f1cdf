#include "bench/recovery_life.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "core/real_files.h"
#include "core/real_guardian.h"
#include "forms/real_clock.h"
#include "forms/virtual_clock.h"
#include "sound/recorder.h"
#include "tests/hearing/melody_stage.h"
#include "tests/support/memory_guardian.h"

namespace corvana::misura {

namespace {

constexpr int pausaMinima = 20;  ///< milliseconds between two gestures
constexpr int pausaMassima = 120;

struct Gesto {
    std::string controllo;
    Fatto fatto = Fatto::Click;
    int valore = 0;
    bool avviaPlay = false;
};

std::unique_ptr<PiattaformaMidi> Uscita(std::function<double()> istante) {
    return std::make_unique<Registratore>(std::move(istante));
}

/// The user of a life. What he does comes out the same however fast it is delivered.
class Utente {
public:
    explicit Utente(const Vita& vita) : caso_(vita.seme), suona_(vita.suona) {}

    Gesto Prossimo() {
        const int numero = numero_++;
        if (!suona_) return Edita();
        if (numero == 0) return {"chekLoop", Fatto::Click, 1};
        if (numero == 1) return {"cmdPlay", Fatto::Click, 0, true};
        return Tra(0, 3) > 0 ? Tempo() : Gesto{Tra(0, 1) == 0 ? "mnuPiano" : "mnuOrgano"};
    }

private:
    int Tra(int da, int a) { return std::uniform_int_distribution(da, a)(caso_); }
    Gesto Tempo() { return {"Slider1", Fatto::Change, Tra(20, 250)}; }
    Gesto Edita() {
        switch (Tra(0, 9)) {
            case 0: return {"cmdSimbNote" + std::to_string(Tra(0, 6))};
            case 1: return {"VoceAttiva" + std::to_string(Tra(0, 3))};
            case 2: return {"cmdCanc"};
            case 3: return Tempo();
            case 4: return {"lblTs"};
            case 5: return {"cmdInsNota"};
            default: return {"cmdInsPausa"};
        }
    }

    std::mt19937 caso_;
    bool suona_;
    int numero_ = 0;
};

/// A window that begins with what its guardian has.
struct Scena {
    Scena(Orologio& orologio, Custode& custode)
        : palco(orologio, file, Uscita, nullptr, &custode) {}
    void Aggiungi(const Gesto& gesto) {
        Evento evento;
        evento.fatto = gesto.fatto;
        evento.valore = gesto.valore;
        evento.finestra = palco.finestra.Identita();
        evento.controllo = palco.finestra.Trova(gesto.controllo)->Numero();
        palco.coda.Aggiungi(evento);
    }

    FileReali file;
    prova::PalcoMelodia palco;
};

void Segnala(int tubo, long gesti) {
    const Segnalazione segnalazione{Monotono(), gesti};
    if (write(tubo, &segnalazione, sizeof segnalazione) != sizeof segnalazione) _exit(1);
}

[[noreturn]] void Vivi(const Vita& vita, int tubo) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    OrologioReale orologio;
    CustodeReale custode(std::make_unique<FileReali>(), vita.percorso);
    Scena scena(orologio, custode);
    long gesti = 0;
    scena.palco.pompa.PonSveglia([&] { Segnala(tubo, gesti++); });
    const std::thread mano([&] {
        Utente utente(vita);
        std::mt19937 caso(vita.seme);
        std::uniform_int_distribution pausa(pausaMinima, pausaMassima);
        for (;;) {
            std::this_thread::sleep_for(std::chrono::milliseconds(pausa(caso)));
            scena.Aggiungi(utente.Prossimo());
        }
    });
    scena.palco.finestra.CicloResidente();
    _exit(1);
}

}  // namespace

double Monotono() {
    const auto adesso = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(adesso).count();
}

pid_t Avvia(const Vita& vita, int tubo) {
    const pid_t figlio = fork();
    if (figlio == 0) Vivi(vita, tubo);
    return figlio;
}

std::vector<std::string> Tenute(const Vita& vita, const std::string& rimasta, long gesti) {
    OrologioVirtuale orologio;
    prova::CustodeInMemoria custode;
    if (!rimasta.empty()) custode.rimasto = rimasta;
    Scena scena(orologio, custode);
    Utente utente(vita);
    std::vector<std::string> tenute{rimasta};
    for (long gesto = 0; gesto < gesti; ++gesto) {
        // A play that goes on changes nothing of the melody.
        if (const Gesto questo = utente.Prossimo(); !questo.avviaPlay) scena.Aggiungi(questo);
        scena.palco.pompa.PompaEventi();
        scena.palco.pompa.Attendi(1e-6);
        tenute.push_back(custode.Contenuto().value_or(""));
    }
    return tenute;
}

}  // namespace corvana::misura
