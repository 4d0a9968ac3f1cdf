#include "tests/outputs/process.h"

#include <fcntl.h>
#include <sched.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <system_error>

namespace corvana::prova {

namespace {

using Cronometro = std::chrono::steady_clock;

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

bool Aspetta(const std::function<bool()>& condizione, double secondi) {
    const auto fine = Cronometro::now() + std::chrono::duration<double>(secondi);
    constexpr timespec pausa{0, 2'000'000};
    while (!condizione()) {
        if (Cronometro::now() > fine) return false;
        nanosleep(&pausa, nullptr);
    }
    return true;
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

Processo::Processo(const Avvio& avvio) {
    std::vector<std::string> argomenti = avvio.argomenti;
    std::vector<std::string> ambiente = Ambiente(avvio.ambiente);
    const std::vector<char*> argv = Puntatori(argomenti);
    std::vector<char*> envp = Puntatori(ambiente);
    pid_ = fork();
    if (pid_ == 0) Diventa(argv.data(), envp.data(), avvio);
    if (pid_ < 0) throw std::system_error(errno, std::generic_category(), avvio.argomenti[0]);
}

bool Processo::Vivo() {
    if (pid_ > 0 && waitpid(pid_, nullptr, WNOHANG) != 0) pid_ = 0;
    return pid_ > 0;
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
    Segnala(SIGTERM);
    Segnala(SIGCONT);
    if (Aspetta([this] { return !Vivo(); }, 5)) return;
    Segnala(SIGKILL);
    waitpid(pid_, nullptr, 0);
    pid_ = 0;
}

}  // namespace corvana::prova
