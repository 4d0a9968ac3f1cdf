// The metronome's timing, at the message and in the stream that a null sink records: 137 and 181
// pulses a minute, idle, beside busy programs, and stopped now and then. Usage: bench_metronome
// [SECONDS]
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "bench/evenness.h"
#include "bench/figures.h"
#include "bench/row.h"
#include "bench/spy.h"
#include "forms/real_clock.h"
#include "program/program.h"
#include "realtime/punctuality.h"
#include "tests/outputs/sound_server.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_boxes.h"

namespace {

using namespace corvana;

using misura::Intorno;

/// The program without a face, on the real clock.
struct Banco {
    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    prova::RiquadriDaCopione riquadri;
    Finestre finestre{pompa, riquadri, nullptr};
    std::vector<double> pulsi;      ///< real instants of their messages
    std::vector<double> richiesti;  ///< those asked for
    misura::Spia uscita{[this] { return pompa.Adesso(); },
                        [this](std::uint32_t messaggio, double istante) {
                            constexpr std::uint32_t percussione = 0x99;
                            if ((messaggio & 0xFF) != percussione || !(messaggio >> 16)) return;
                            pulsi.push_back(orologio.Adesso());
                            richiesti.push_back(istante);
                        }};
    Suono suono{uscita, pompa, riquadri};
    prova::FileInMemoria file;
    Impostazioni impostazioni{file, riquadri, "/settings"};
    CasualeFisso casuale;
    Globali globali;
    Programma programma{{globali, pompa, finestre, riquadri, suono, impostazioni, file, casuale}};

    void Fai(const char* controllo, Fatto fatto, int valore = 0) {
        Evento evento;
        evento.finestra = 1;  // the first showing of a window in this program
        evento.controllo = programma.principale.Trova(controllo)->Numero();
        evento.fatto = fatto;
        evento.valore = valore;
        coda.Aggiungi(evento);
    }
};

void Dormi(double secondi) {
    std::this_thread::sleep_for(std::chrono::duration<double>(secondi));
}

struct Riga {
    Intorno intorno;
    bool puntuale;
};

/// The mean of fewer pulses says nothing of parts in a million. How late a message is that has no
/// right to be in time is the system's affair, as long as the stream hides it.
void StampaMete(const std::string& titolo, const Riga& riga, const misura::Uniformita& messaggi,
                const misura::Uniformita& flusso) {
    constexpr std::size_t abbastanza = 100;
    if (messaggi.quanti == 0 || flusso.quanti == 0) return;
    if (messaggi.quanti >= abbastanza)
        misura::StampaMeta(titolo + "message, mean", std::fabs(messaggi.media), 1, "ppm");
    if (riga.intorno == Intorno::Fermato) return;
    const bool occupato = riga.intorno == Intorno::Occupato;
    if (riga.puntuale)
        misura::StampaMeta(titolo + "message late, p99", messaggi.p99, occupato ? 1 : 0.3, "ms");
    if (occupato && !riga.puntuale) misura::StampaMeta(titolo + "stream, p99", flusso.p99, 5, "ms");
    if (!occupato) misura::StampaMeta(titolo + "stream, worst", flusso.peggiore, 0.7, "ms");
}

void Misura(const prova::ServerSonoro& server, int tempo, double secondi, Intorno intorno) {
    Banco banco;
    banco.impostazioni.Prepara();
    bool puntuale = false;
    std::thread logica([&] {
        PreferisciPuntualita();
        puntuale = misura::Puntuale();
        banco.programma.DaMainAllaFine(false);
    });
    constexpr double siglaFinita = 3;
    Dormi(siglaFinita);
    const misura::ProgrammiOccupati occupati(intorno == Intorno::Occupato);
    prova::Registrazione registrazione(server);
    banco.Fai("mnuMetro", Fatto::Click);
    banco.Fai("MetroTempoS", Fatto::Change, tempo);
    banco.Fai("cmdSSmetro", Fatto::Click);
    {
        const misura::Singhiozzo singhiozzo(intorno == Intorno::Fermato, secondi);
        Dormi(secondi);
    }
    banco.Fai("cmdSSmetro", Fatto::Click);
    Dormi(1);
    const auto suono = registrazione.Ferma();
    banco.Fai("CorvanaMainF", Fatto::Chiudi);
    logica.join();
    const std::string titolo =
        std::to_string(tempo) + " a minute, " + misura::Titolo(intorno, puntuale) + ", ";
    const auto messaggi =
        misura::StampaMessaggi(titolo + "message", banco.pulsi, banco.richiesti, 60.0 / tempo);
    const auto flusso =
        misura::StampaPulsi(titolo + "stream", misura::Attacchi(suono), 60.0 / tempo);
    StampaMete("metronome, " + titolo, {intorno, puntuale}, messaggi, flusso);
}

}  // namespace

int main(int argc, char** argv) {
    const double secondi = argc > 1 ? std::atof(argv[1]) : 60;
    prova::ServerSonoro server;
    if (!server.Avvia()) {
        std::puts("no sound server: the metronome can't be heard");
        return 1;
    }
    server.UsaInQuestoProcesso();
    for (const auto intorno : {Intorno::Quiete, Intorno::Occupato, Intorno::Fermato})
        for (const int tempo : {137, 181})
            Misura(server, tempo, secondi, intorno);
}
