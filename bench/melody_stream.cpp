// A demonstration melody in real time, as a null sink records it: how far its notes are from their
// ticks and from their pitches. Usage: bench_melody_stream [MELODY]
#include <cmath>
#include <cstdio>
#include <numeric>
#include <thread>

#include "bench/figures.h"
#include "core/real_files.h"
#include "forms/real_clock.h"
#include "melody/ticks.h"
#include "melody/tokens.h"
#include "realtime/punctuality.h"
#include "sound/outputs/real_outputs.h"
#include "tests/hearing/melody_stage.h"
#include "tests/outputs/hearing.h"
#include "tests/outputs/sound_server.h"

namespace {

using namespace corvana;

constexpr int xilofono = 13;     // its strokes are sharp
constexpr int clavicembalo = 6;  // its pitches are clear

struct Nota {
    double inizio = 0;  ///< seconds from the melody's begin
    double durata = 0;
    int numero = 0;
};

/// The soprano's notes, where the ticks put them.
std::vector<Nota> Attese(const VoceMelodia& voce, int tempo) {
    const double tick = (MsPerTick(tempo) + granularitaSleep) / 1000.0;
    std::vector<Nota> note;
    ContoTuplet conto;
    Tick passati = 0;
    for (long i = 0; i < voce.numeroNote; ++i) {
        const Tick lunghi = TickToken(voce.durateVoce, i, conto);
        const int numero = NumeroNota(Elemento(voce.noteVoce, i));
        if (numero > 0)
            note.push_back({static_cast<double>(passati) * tick,
                            static_cast<double>(lunghi - 1) * tick, numero});
        passati += lunghi;
    }
    return note;
}

struct Ripresa {
    std::vector<Nota> attese;
    std::vector<float> suono;
};

/// Plays the soprano alone with that instrument and records it.
Ripresa Riprendi(const prova::ServerSonoro& server, const std::string& melodia, int programma) {
    Ripresa ripresa;
    std::thread logica([&] {
        PreferisciPuntualita();
        OrologioReale orologio;
        FileReali file;
        prova::PalcoMelodia palco(orologio, file, [](auto istante) {
            return std::make_unique<UsciteReali>(std::move(istante));
        });
        // The load starts a play, which is stopped at once.
        palco.Scegli(CORVANA_DEMO "/", melodia);
        palco.Premi(palco.finestra.play.cmdPlay);
        palco.finestra.archivio.cmdEseguiFile_Click();
        palco.finestra.mix.SceltaStrum(programma);
        for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce) {
            palco.melodia.voci[voce] = {};
            palco.Aggiorna(voce);
        }
        ripresa.attese = Attese(palco.melodia.voci[soprano], palco.melodia.tempo);
        palco.pompa.Attendi(2);
        prova::Registrazione registrazione(server);
        palco.pompa.Attendi(0.5);
        palco.finestra.play.cmdPlay_Click();
        palco.pompa.Attendi(1);
        ripresa.suono = registrazione.Ferma();
    });
    logica.join();
    return ripresa;
}

void StampaPunti(const Ripresa& ripresa) {
    const std::vector<double> attacchi = prova::Attacchi(ripresa.suono);
    std::printf("%zu strokes heard of %zu notes\n", attacchi.size(), ripresa.attese.size());
    if (attacchi.empty() || attacchi.size() != ripresa.attese.size()) return;
    std::vector<double> ritardi;
    for (std::size_t i = 0; i < attacchi.size(); ++i)
        ritardi.push_back((attacchi[i] - ripresa.attese[i].inizio) * 1000);
    const double medio =
        std::accumulate(ritardi.begin(), ritardi.end(), 0.0) / static_cast<double>(ritardi.size());
    for (double& ritardo : ritardi)
        ritardo = std::abs(ritardo - medio);
    misura::Stampa("melody in the stream, strokes off their ticks", ritardi, "ms");
}

void StampaAltezze(const Ripresa& ripresa) {
    const std::vector<double> attacchi = prova::Attacchi(ripresa.suono);
    if (attacchi.empty()) return std::puts("nothing was heard"), void();
    std::vector<double> scarti;
    for (const Nota& nota : ripresa.attese) {
        const double inizio = attacchi.front() + nota.inizio - ripresa.attese.front().inizio;
        const double hertz =
            prova::Altezza(prova::Parte(ripresa.suono, inizio + 0.05, std::min(nota.durata, 0.2)));
        scarti.push_back(std::abs(prova::NotaMidi(hertz) - nota.numero) * 100);
    }
    misura::Stampa("melody in the stream, notes off their pitches", scarti, "cents");
}

}  // namespace

int main(int argc, char** argv) {
    const std::string melodia = argc > 1 ? argv[1] : "Ah vous dirai je maman";
    prova::ServerSonoro server;
    if (!server.Avvia()) {
        std::puts("no sound server: the melody can't be heard");
        return 1;
    }
    server.UsaInQuestoProcesso();
    StampaPunti(Riprendi(server, melodia, xilofono));
    StampaAltezze(Riprendi(server, melodia, clavicembalo));
}
