// The metronome's timing, at the message and in the stream that a null sink records: 137 and 181
// pulses a minute, idle, beside busy programs, and stopped now and then. Usage: bench_metronome
// [SECONDS]
#include <cstdio>
#include <cstdlib>

#include "bench/evenness.h"
#include "bench/figures.h"
#include "bench/row.h"
#include "forms/real_clock.h"
#include "program/program.h"
#include "realtime/punctuality.h"
#include "sound/outputs/real_outputs.h"
#include "tests/outputs/sound_server.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_boxes.h"

namespace {

using namespace corvana;

using misura::Intorno;

/// Passes everything on and notes of each pulse's message the real instant and the one asked for.
class Spia final : public PiattaformaMidi {
public:
    explicit Spia(std::function<double()> istante)
        : istante_(istante), uscite_(std::move(istante), {.puntuale = PreferisciPuntualita}) {}
    int midiOutOpen(HandleDispositivo& h, std::int32_t id) override {
        return uscite_.midiOutOpen(h, id);
    }
    int midiOutClose(HandleDispositivo h) override { return uscite_.midiOutClose(h); }
    int midiOutReset(HandleDispositivo h) override { return uscite_.midiOutReset(h); }
    int midiOutShortMsg(HandleDispositivo h, std::uint32_t messaggio) override {
        constexpr std::uint32_t percussione = 0x99;
        if ((messaggio & 0xFF) == percussione && messaggio >> 16) {
            pulsi.push_back(orologio_.Adesso());
            richiesti.push_back(istante_());
        }
        return uscite_.midiOutShortMsg(h, messaggio);
    }
    std::string midiOutGetErrorTextA(int codice) override {
        return uscite_.midiOutGetErrorTextA(codice);
    }
    int midiOutGetNumDevs() override { return 0; }
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override {
        return uscite_.midiOutGetDevCapsA(id, nome);
    }
    void sndPlaySoundA(const std::string&, unsigned) override {}

    std::vector<double> pulsi;
    std::vector<double> richiesti;

private:
    std::function<double()> istante_;
    OrologioReale orologio_;
    UsciteReali uscite_;
};

/// The program without a face, on the real clock.
struct Banco {
    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    prova::RiquadriDaCopione riquadri;
    Finestre finestre{pompa, riquadri, nullptr};
    Spia uscita{[this] { return pompa.Adesso(); }};
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
    misura::StampaMessaggi(titolo + "message", banco.uscita.pulsi, banco.uscita.richiesti,
                           60.0 / tempo);
    misura::StampaPulsi(titolo + "stream", misura::Attacchi(suono), 60.0 / tempo);
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
