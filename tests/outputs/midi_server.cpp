#include "tests/outputs/midi_server.h"

#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace corvana::prova {

namespace {

constexpr const char* memoriaComune = "/dev/shm";

/// The bytes of a line such as `90 3c 40`.
std::vector<std::uint8_t> Byte(const std::string& riga) {
    std::istringstream parole(riga);
    std::vector<std::uint8_t> byte;
    for (std::string parola; parole >> parola;)
        byte.push_back(static_cast<std::uint8_t>(std::stoi(parola, nullptr, 16)));
    return byte;
}

/// What a server of that name keeps there for its clients.
std::vector<std::filesystem::path> Resti(const std::string& nome) {
    std::vector<std::filesystem::path> resti;
    for (const auto& file : std::filesystem::directory_iterator(memoriaComune))
        if (file.path().filename().string().find("_" + nome + "_") != std::string::npos)
            resti.push_back(file.path());
    return resti;
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
    for (const auto& resto : Resti(nome_))
        std::filesystem::remove(resto);
}

bool ServerMidi::Avvia() {
    ucciso_ = false;
    // In step with its clients: otherwise what one of them is too late for, on a busy machine, is
    // lost with its cycle.
    processo_ = std::make_unique<Processo>(
        Processo::Avvio{{"jackd", "--no-realtime", "--no-mlock", "--sync", "--timeout", "5000",
                         "--name", nome_, "-d", "dummy", "-r", "48000", "-p", "1024"}});
    // Before its files are there it can't be asked.
    return AspettaInCartella(memoriaComune, *processo_,
                             [this] { return !Resti(nome_).empty() && Risponde(); });
}

bool ServerMidi::Risponde() const {
    Processo elenco({{"jack_lsp"}});
    return elenco.EsitoFinale() == 0;
}

void ServerMidi::Uccidi() {
    processo_->Segnala(SIGKILL);
    processo_.reset();
    ucciso_ = true;
}

void ServerMidi::Sospendi() {
    processo_->Segnala(SIGSTOP);
}

void ServerMidi::Riprendi() {
    processo_->Segnala(SIGCONT);
}

PortaRicevente::PortaRicevente(const std::string& nome)
    : file_(cartella_.Percorso() / "messaggi"), processo_({{CORVANA_RECEIVER, nome}, {}, file_}) {
    AspettaInCartella(cartella_.Percorso(), processo_, [this] { return !Righe().empty(); });
}

// As if it had crashed: its port must go without its help.
PortaRicevente::~PortaRicevente() {
    processo_.Segnala(SIGKILL);
}

std::vector<std::string> PortaRicevente::Righe() const {
    std::ifstream file(file_);
    std::vector<std::string> righe;
    for (std::string riga; std::getline(file, riga);)
        if (!file.eof()) righe.push_back(riga);
    return righe;
}

std::vector<std::vector<std::uint8_t>> PortaRicevente::Arrivati() const {
    std::vector<std::vector<std::uint8_t>> arrivati;
    for (const std::string& riga : Righe())
        arrivati.push_back(Byte(riga));
    // The first line, which is empty, says that the port is there.
    if (!arrivati.empty()) arrivati.erase(arrivati.begin());
    return arrivati;
}

bool PortaRicevente::Arrivano(std::size_t quanti) const {
    return AspettaInCartella(cartella_.Percorso(), processo_,
                             [&] { return Arrivati().size() >= quanti; });
}

}  // namespace corvana::prova
