#include "tests/outputs/midi_server.h"

#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace corvana::prova {

namespace {

/// The bytes at the start of a line such as `192: 90 3c 40 note on`.
std::vector<std::uint8_t> Byte(const std::string& riga) {
    std::istringstream parole(riga);
    std::string parola;
    parole >> parola;
    std::vector<std::uint8_t> byte;
    while (parole >> parola && parola.size() == 2 &&
           parola.find_first_not_of("0123456789abcdef") == std::string::npos)
        byte.push_back(static_cast<std::uint8_t>(std::stoi(parola, nullptr, 16)));
    return byte;
}

}  // namespace

ServerMidi::ServerMidi() : nome_("corvana-" + std::to_string(getpid())) {
    setenv("JACK_DEFAULT_SERVER", nome_.c_str(), 1);
}

// The machine's list of servers is short, and only a server of the same name that ends in order
// takes a killed one off it.
ServerMidi::~ServerMidi() {
    if (ucciso_) Avvia();
    processo_.reset();
    // Nor does it clean up after clients that were killed.
    for (const auto& resto : std::filesystem::directory_iterator("/dev/shm"))
        if (resto.path().filename().string().find("_" + nome_ + "_") != std::string::npos)
            std::filesystem::remove(resto.path());
}

bool ServerMidi::Avvia() {
    ucciso_ = false;
    processo_ = std::make_unique<Processo>(
        Processo::Avvio{{"jackd", "--no-realtime", "--no-mlock", "--name", nome_, "-d", "dummy",
                         "-r", "48000", "-p", "256"}});
    const auto risponde = [] {
        Processo elenco({{"jack_lsp"}});
        return elenco.EsitoFinale() == 0;
    };
    return Aspetta([&] { return risponde() || !processo_->Vivo(); }) && processo_->Vivo();
}

void ServerMidi::Uccidi() {
    processo_->Segnala(SIGKILL);
    processo_.reset();
    ucciso_ = true;
}

void ServerMidi::Sospendi() {
    processo_->Segnala(SIGSTOP);
}

PortaRicevente::PortaRicevente(const std::string& nome)
    : file_(cartella_.Percorso() / "messaggi"), processo_({{"jack_midi_dump", nome}, {}, file_}) {}

// Asked to end, it would first wait for one more message.
PortaRicevente::~PortaRicevente() {
    processo_.Segnala(SIGKILL);
}

std::vector<std::vector<std::uint8_t>> PortaRicevente::Arrivati() const {
    std::ifstream file(file_);
    std::vector<std::vector<std::uint8_t>> arrivati;
    for (std::string riga; std::getline(file, riga);)
        if (!file.eof()) arrivati.push_back(Byte(riga));
    return arrivati;
}

}  // namespace corvana::prova
