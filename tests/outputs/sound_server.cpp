#include "tests/outputs/sound_server.h"

#include <signal.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <fstream>

namespace corvana::prova {

namespace {

constexpr const char* presa = "native";

bool Risponde(const std::filesystem::path& percorso) {
    sockaddr_un indirizzo{};
    indirizzo.sun_family = AF_UNIX;
    std::strncpy(indirizzo.sun_path, percorso.c_str(), sizeof indirizzo.sun_path - 1);
    const int canale = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool risponde =
        connect(canale, reinterpret_cast<const sockaddr*>(&indirizzo), sizeof indirizzo) == 0;
    close(canale);
    return risponde;
}

/// Nothing of the user's own configuration may be read or written.
std::vector<std::string> Isolamento(const std::filesystem::path& cartella) {
    std::vector<std::string> ambiente;
    for (const char* nome : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "PULSE_RUNTIME_PATH"})
        ambiente.push_back(std::string(nome) + "=" + cartella.string());
    return ambiente;
}

}  // namespace

bool ServerSonoro::Avvia() {
    const std::filesystem::path socket = cartella_.Percorso() / presa;
    processo_.reset();
    std::filesystem::remove(socket);
    processo_ = std::make_unique<Processo>(
        Processo::Avvio{{"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1",
                         "--system=false", "--disable-shm=yes", "--use-pid-file=no", "-L",
                         "module-native-protocol-unix auth-anonymous=1 socket=" + socket.string(),
                         "-L", "module-null-sink sink_name=niente norewinds=1 rate=48000"},
                        Isolamento(cartella_.Percorso())});
    const bool risponde =
        Aspetta([&] { return Risponde(socket) || !processo_->Vivo(); }) && processo_->Vivo();
    processo_->DaiPrecedenza();
    return risponde;
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
    return "unix:" + (cartella_.Percorso() / presa).string();
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
    inCorso_ = Aspetta([this] {
        std::error_code errore;
        return std::filesystem::file_size(file_, errore) > 0 && !errore;
    });
}

std::vector<float> Registrazione::Ferma() {
    processo_.Termina();
    std::ifstream file(file_, std::ios::binary);
    std::vector<float> suono(std::filesystem::file_size(file_) / sizeof(float));
    file.read(reinterpret_cast<char*>(suono.data()),
              static_cast<std::streamsize>(suono.size() * sizeof(float)));
    return suono;
}

}  // namespace corvana::prova
