#include "tests/outputs/sound_server.h"

#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <system_error>

#include "tests/outputs/hearing.h"

namespace corvana::prova {

namespace {

/// A place where a server could be found.
class Portone {
public:
    explicit Portone(const std::filesystem::path& percorso)
        : percorso_(percorso), ascolto_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un indirizzo{};
        indirizzo.sun_family = AF_UNIX;
        std::strncpy(indirizzo.sun_path, percorso.c_str(), sizeof indirizzo.sun_path - 1);
        std::filesystem::remove(percorso);
        if (bind(ascolto_, reinterpret_cast<const sockaddr*>(&indirizzo), sizeof indirizzo) != 0 ||
            listen(ascolto_, 1) != 0)
            throw std::system_error(errno, std::generic_category(), percorso);
    }
    Portone(const Portone&) = delete;
    Portone& operator=(const Portone&) = delete;
    ~Portone() { std::filesystem::remove(percorso_); }

    bool Bussano(int millisecondi) const {
        pollfd bussata{ascolto_, POLLIN, 0};
        return poll(&bussata, 1, millisecondi) == 1;
    }

private:
    std::filesystem::path percorso_;
    Descrittore ascolto_;
};

bool Contiene(const std::filesystem::path& percorso, const std::string& testo) {
    std::ifstream file(percorso);
    const std::string tutto{std::istreambuf_iterator(file), {}};
    return tutto.find(testo) != std::string::npos;
}

/// Nothing of the user's own configuration may be read or written, and what is said is English.
std::vector<std::string> Isolamento(const std::filesystem::path& cartella) {
    std::vector<std::string> ambiente{"LC_ALL=C"};
    for (const char* nome : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "PULSE_RUNTIME_PATH"})
        ambiente.push_back(std::string(nome) + "=" + cartella.string());
    return ambiente;
}

}  // namespace

bool ServerSonoro::Avvia() {
    const std::filesystem::path registro = cartella_.Percorso() / "registro";
    processo_.reset();
    std::filesystem::remove(registro);
    std::filesystem::remove(Presa());
    processo_ = std::make_unique<Processo>(Processo::Avvio{
        {"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--system=false",
         "--disable-shm=yes", "--use-pid-file=no", "--log-target=stderr", "--log-level=info", "-L",
         "module-native-protocol-unix auth-anonymous=1 socket=" + Presa().string(), "-L",
         "module-null-sink sink_name=niente norewinds=1 rate=48000"},
        Isolamento(cartella_.Percorso()),
        "/dev/null",
        registro});
    const bool risponde = AspettaInCartella(cartella_.Percorso(), *processo_, [&] {
        return Contiene(registro, "Daemon startup complete.");
    });
    processo_->DaiPrecedenza();
    return risponde && processo_->Vivo();
}

bool ServerSonoro::AspettaChiLoCerca() const {
    constexpr int pazienza = 60'000;
    return Portone(Presa()).Bussano(pazienza);
}

void ServerSonoro::Uccidi() {
    processo_->Segnala(SIGKILL);
    processo_.reset();
}

void ServerSonoro::Sospendi() {
    processo_->Segnala(SIGSTOP);
}

void ServerSonoro::Riprendi() {
    processo_->Segnala(SIGCONT);
}

std::string ServerSonoro::Indirizzo() const {
    return "unix:" + Presa().string();
}

void ServerSonoro::UsaInQuestoProcesso() const {
    setenv("SDL_AUDIODRIVER", "pulseaudio", 1);
    setenv("PULSE_SERVER", Indirizzo().c_str(), 1);
}

Registrazione::Registrazione(const ServerSonoro& server)
    : file_(cartella_.Percorso() / "suono"),
      processo_(
          {{"parec", "--server=" + server.Indirizzo(), "--device=niente.monitor",
            "--format=float32le", "--rate=48000", "--channels=1", "--raw", "--latency-msec=20"},
           Isolamento(cartella_.Percorso()),
           file_}) {
    processo_.DaiPrecedenza();
    inCorso_ = Finche([this] {
        std::error_code errore;
        return std::filesystem::file_size(file_, errore) > 0 && !errore;
    });
}

bool Registrazione::Finche(const std::function<bool()>& condizione) const {
    return AspettaInCartella(cartella_.Percorso(), processo_, condizione);
}

bool Registrazione::Ancora(double secondi) const {
    const auto inPiu = static_cast<std::size_t>(secondi * frequenzaUdito) * sizeof(float);
    const auto fine = std::filesystem::file_size(file_) + inPiu;
    return Finche([&] { return std::filesystem::file_size(file_) >= fine; });
}

std::vector<float> Registrazione::Ferma() {
    processo_.Termina();
    return Finora();
}

std::vector<float> Registrazione::Finora() const {
    std::ifstream file(file_, std::ios::binary);
    std::vector<float> suono(std::filesystem::file_size(file_) / sizeof(float));
    file.read(reinterpret_cast<char*>(suono.data()),
              static_cast<std::streamsize>(suono.size() * sizeof(float)));
    return suono;
}

}  // namespace corvana::prova
