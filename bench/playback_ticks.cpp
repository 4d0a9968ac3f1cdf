// What a tick of a play costs, its wait left out: four voices that begin a note every few ticks,
// the metronome on, at the fastest tempo. First on the virtual clock into a recorder, then in real
// time into the machine's outputs with the desktop's mirror behind. Usage: bench_playback_ticks
// [SECONDS], the length of the latter.
#include <poll.h>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>

#include "bench/figures.h"
#include "bench/long_voices.h"
#include "composer/play_panel.h"
#include "desktop/remote_mirror.h"
#include "forms/real_clock.h"
#include "forms/virtual_clock.h"
#include "realtime/punctuality.h"
#include "sound/outputs/real_outputs.h"
#include "sound/recorder.h"
#include "tests/hearing/melody_stage.h"

namespace {

using namespace corvana;

constexpr long tickPerNota = 4;  // the mean of the short durations

/// Microseconds.
double Segna(clockid_t orologio) {
    timespec ora{};
    clock_gettime(orologio, &ora);
    return static_cast<double>(ora.tv_sec) * 1e6 + static_cast<double>(ora.tv_nsec) / 1e3;
}

/// Another clock, and how long the logic was at work between its waits.
class OrologioMisurato final : public Orologio {
public:
    explicit OrologioMisurato(Orologio& orologio) : orologio_(orologio) {}
    double Adesso() const override { return orologio_.Adesso(); }
    double Calcolato() const override { return orologio_.Calcolato(); }
    int OraDelGiorno() const override { return orologio_.OraDelGiorno(); }
    void AspettaFino(double fino) override {
        const double fine = Segna(CLOCK_MONOTONIC);
        if (inizio_ > 0) {
            passati.push_back(fine - inizio_);
            lavorati.push_back(Segna(CLOCK_THREAD_CPUTIME_ID) - inizioLavoro_);
        }
        orologio_.AspettaFino(fino);
        inizioLavoro_ = Segna(CLOCK_THREAD_CPUTIME_ID);
        inizio_ = Segna(CLOCK_MONOTONIC);
    }
    void AspettaEvento(CodaEventi& coda, double fino) override {
        orologio_.AspettaEvento(coda, fino);
    }

    std::vector<double> passati;   ///< microseconds by the clock
    std::vector<double> lavorati;  ///< microseconds of the processor

private:
    Orologio& orologio_;
    double inizio_ = 0;
    double inizioLavoro_ = 0;
};

/// Takes what the mirror puts, as the windows' thread does.
class Spettatore {
public:
    Spettatore() {
        filo_ = std::thread([this] {
            pollfd campana{cassetta_.Presa(), POLLIN, 0};
            while (!fine_) {
                poll(&campana, 1, -1);
                cassetta_.Prendi();
            }
        });
    }
    Spettatore(const Spettatore&) = delete;
    Spettatore& operator=(const Spettatore&) = delete;
    ~Spettatore() {
        fine_ = true;
        SuonaPresa(cassetta_.Presa());
        filo_.join();
    }

    SpecchioRemoto& Specchio() { return specchio_; }

private:
    Cassetta cassetta_;
    SpecchioRemoto specchio_{cassetta_};
    std::atomic<bool> fine_{false};
    std::thread filo_;
};

void Suona(prova::PalcoMelodia& palco, OrologioMisurato& orologio, long tick,
           const std::string& titolo) {
    misura::Riempi(palco.melodia, tick / tickPerNota, misura::stileFitto, 0);
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        palco.Aggiorna(voce);
    palco.finestra.play.Slider1.PonValore(tempoMassimo);
    palco.finestra.pulsi.lblTs_Click();
    palco.finestra.pulsi.DurataPulsazioni.PonTesto("16");
    palco.finestra.play.cmdPlay_Click();
    misura::Stampa(titolo + ", by the clock", orologio.passati, "us");
    misura::Stampa(titolo + ", processor", orologio.lavorati, "us", {0.99, 200});
    for (const std::string& messaggio : palco.riquadri.messaggi)
        std::printf("a message box: %s\n", messaggio.c_str());
}

void MisuraRegistrati(long tick) {
    OrologioVirtuale virtuale;
    OrologioMisurato orologio(virtuale);
    prova::FileInMemoria file;
    prova::PalcoMelodia palco(orologio, file, [](auto istante) {
        return std::make_unique<Registratore>(std::move(istante));
    });
    Suona(palco, orologio, tick, "tick, recorded");
}

void MisuraReali(long tick) {
    OrologioReale reale;
    OrologioMisurato orologio(reale);
    prova::FileInMemoria file;
    Spettatore spettatore;
    std::thread logica([&] {
        PreferisciPuntualita();
        prova::PalcoMelodia palco(
            orologio, file,
            [](auto istante) { return std::make_unique<UsciteReali>(std::move(istante)); },
            &spettatore.Specchio());
        const std::string dove = palco.suono.Udibile() ? "device" : "no device";
        Suona(palco, orologio, tick, "tick, outputs with " + dove);
    });
    logica.join();
}

}  // namespace

int main(int argc, char** argv) {
    constexpr long tickVirtuali = 100'000;
    constexpr double secondiPerTick = 0.007;
    MisuraRegistrati(tickVirtuali);
    const double secondi = argc > 1 ? std::atof(argv[1]) : 20;
    MisuraReali(std::lround(secondi / secondiPerTick));
}
