#include "tests/outputs/process.h"

#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <span>
#include <system_error>

namespace corvana::prova {

namespace {

using Cronometro = std::chrono::steady_clock;

Cronometro::time_point Fra(double secondi) {
    const std::chrono::duration<double> durata(secondi);
    return Cronometro::now() + std::chrono::duration_cast<Cronometro::duration>(durata);
}

/// Waits until one of them can be read; false when that isn't before `limite`.
bool Leggibile(std::span<pollfd> attesi, Cronometro::time_point limite) {
    for (;;) {
        const auto resto = std::max(limite - Cronometro::now(), Cronometro::duration::zero());
        const auto ns = std::chrono::duration_cast<std::chrono::nanoseconds>(resto).count();
        constexpr long nsAlSecondo = 1'000'000'000;
        const timespec durata{ns / nsAlSecondo, ns % nsAlSecondo};
        const int quanti = ppoll(attesi.data(), attesi.size(), &durata, nullptr);
        if (quanti >= 0 || errno != EINTR) return quanti > 0;
    }
}

std::vector<char*> Puntatori(std::vector<std::string>& testi) {
    std::vector<char*> puntatori;
    for (std::string& testo : testi)
        puntatori.push_back(testo.data());
    puntatori.push_back(nullptr);
    return puntatori;
}

/// The later of two settings of a name comes first, where it is found first.
std::vector<std::string> Ambiente(const std::vector<std::string>& inPiu) {
    std::vector<std::string> ambiente = inPiu;
    for (char** voce = environ; *voce; ++voce)
        ambiente.emplace_back(*voce);
    return ambiente;
}

/// Between fork and exec: nothing here may allocate.
[[noreturn]] void Diventa(char* const* argomenti, char** ambiente, const Processo::Avvio& avvio) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int modo = O_WRONLY | O_CREAT | O_TRUNC;
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(open(avvio.uscita.c_str(), modo, 0600), STDOUT_FILENO);
    dup2(open(avvio.errori.c_str(), modo, 0600), STDERR_FILENO);
    execvpe(argomenti[0], argomenti, ambiente);
    _exit(127);
}

}  // namespace

Descrittore::Descrittore(int fd) : fd_(fd) {
    if (fd < 0) throw std::system_error(errno, std::generic_category());
}

Descrittore::~Descrittore() {
    close(fd_);
}

CartellaPropria::CartellaPropria() {
    std::string modello = (std::filesystem::temp_directory_path() / "corvana-XXXXXX").string();
    if (!mkdtemp(modello.data())) throw std::system_error(errno, std::generic_category());
    percorso_ = modello;
}

CartellaPropria::~CartellaPropria() {
    std::error_code errore;
    std::filesystem::remove_all(percorso_, errore);
}

Processo::Processo(const Avvio& avvio)
    : pid_(Lancia(avvio)), fine_(static_cast<int>(syscall(SYS_pidfd_open, pid_, 0))) {}

pid_t Processo::Lancia(const Avvio& avvio) {
    std::vector<std::string> argomenti = avvio.argomenti;
    std::vector<std::string> ambiente = Ambiente(avvio.ambiente);
    const std::vector<char*> argv = Puntatori(argomenti);
    std::vector<char*> envp = Puntatori(ambiente);
    const pid_t pid = fork();
    if (pid == 0) Diventa(argv.data(), envp.data(), avvio);
    if (pid < 0) throw std::system_error(errno, std::generic_category(), avvio.argomenti[0]);
    return pid;
}

bool Processo::AspettaFine(double secondi) const {
    std::array<pollfd, 1> fine{{{fine_, POLLIN, 0}}};
    return Leggibile(fine, Fra(secondi));
}

int Processo::EsitoFinale() {
    int stato = 0;
    waitpid(pid_, &stato, 0);
    pid_ = 0;
    return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
}

void Processo::Segnala(int segnale) const {
    if (pid_ > 0) kill(pid_, segnale);
}

void Processo::DaiPrecedenza() const {
    sched_param minima{};
    minima.sched_priority = sched_get_priority_min(SCHED_RR);
    if (pid_ > 0) sched_setscheduler(pid_, SCHED_RR, &minima);
}

void Processo::Termina() {
    if (pid_ == 0) return;
    Segnala(SIGTERM);
    Segnala(SIGCONT);
    constexpr double pazienza = 5;
    if (!AspettaFine(pazienza)) Segnala(SIGKILL);
    EsitoFinale();
}

bool AspettaInCartella(const std::filesystem::path& cartella, const Processo& processo,
                       const std::function<bool()>& condizione, double secondi) {
    const auto limite = Fra(secondi);
    const Descrittore novita(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    constexpr unsigned tutte = IN_CREATE | IN_DELETE | IN_MODIFY | IN_MOVE;
    if (inotify_add_watch(novita, cartella.c_str(), tutte) < 0)
        throw std::system_error(errno, std::generic_category(), cartella);
    std::array<pollfd, 2> attesi{{{novita, POLLIN, 0}, {processo.fine_, POLLIN, 0}}};
    while (!condizione()) {
        const bool cambiato = Leggibile(attesi, limite);
        // The last that a program wrote counts too.
        if (!cambiato || attesi[1].revents != 0) return condizione();
        std::array<char, 4096> scartate;
        while (read(novita, scartate.data(), scartate.size()) > 0) {}
    }
    return true;
}

}  // namespace corvana::prova
