#include "bench/row.h"

#include <sched.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

namespace corvana::misura {

namespace {

void Dormi(double secondi) {
    std::this_thread::sleep_for(std::chrono::duration<double>(secondi));
}

/// A child that does `cosa` until it is ended, or its parent is gone.
template <typename Cosa>
pid_t Figlio(Cosa cosa) {
    const pid_t pid = fork();
    if (pid != 0) return pid;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    cosa();
    _exit(0);
}

void Finisci(pid_t pid) {
    if (pid <= 0) return;
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
}

}  // namespace

ProgrammiOccupati::ProgrammiOccupati(bool davvero) {
    const unsigned quanti = davvero ? 2 * std::thread::hardware_concurrency() : 0;
    for (unsigned i = 0; i < quanti; ++i)
        programmi_.push_back(Figlio([] {
            for (volatile unsigned giro = 0;;)
                giro = giro + 1;
        }));
}

ProgrammiOccupati::~ProgrammiOccupati() {
    for (const pid_t programma : programmi_)
        Finisci(programma);
}

Singhiozzo::Singhiozzo(bool davvero, double secondi) {
    if (!davvero) return;
    constexpr int volte = 10;
    constexpr double fermo = 0.05;
    const pid_t vittima = getpid();
    chi_ = Figlio([=] {
        for (int i = 0; i < volte; ++i) {
            Dormi(secondi / (volte + 1) - fermo);
            kill(vittima, SIGSTOP);
            Dormi(fermo);
            kill(vittima, SIGCONT);
        }
    });
}

Singhiozzo::~Singhiozzo() {
    if (chi_ <= 0) return;
    // Ended in between, it would leave this process stopped.
    waitpid(chi_, nullptr, 0);
}

bool Puntuale() {
    return (sched_getscheduler(0) & ~SCHED_RESET_ON_FORK) == SCHED_RR;
}

std::string Titolo(Intorno intorno, bool puntuale) {
    const char* const nomi[] = {"idle", "busy", "stopped"};
    return std::string(puntuale ? "real-time, " : "ordinary, ") + nomi[static_cast<int>(intorno)];
}

}  // namespace corvana::misura
