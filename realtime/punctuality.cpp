#include "realtime/punctuality.h"

#include <pthread.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <thread>

#include "realtime/realtime_kit.h"

namespace corvana {

namespace {

/// The system sends the signal to the very thread that has gone beyond the limit.
void TornaOrdinario(int) {
    const sched_param nessuna{};
    syscall(SYS_sched_setscheduler, 0, SCHED_OTHER, &nessuna);
}

void AscoltaIlLimite() {
    struct sigaction azione {};
    azione.sa_handler = TornaOrdinario;
    azione.sa_flags = SA_RESTART;
    sigaction(SIGXCPU, &azione, nullptr);
    sigset_t segnale;
    sigemptyset(&segnale);
    sigaddset(&segnale, SIGXCPU);
    pthread_sigmask(SIG_UNBLOCK, &segnale, nullptr);
}

bool ChiediAlSistema() {
    sched_param minima{};
    minima.sched_priority = sched_get_priority_min(SCHED_RR);
    return pthread_setschedparam(pthread_self(), SCHED_RR | SCHED_RESET_ON_FORK, &minima) == 0;
}

}  // namespace

bool LimitaCalcoloPuntuale(unsigned long massimo) {
    rlimit limite{};
    if (getrlimit(RLIMIT_RTTIME, &limite) != 0) return false;
    limite.rlim_max = std::min<rlim_t>(limite.rlim_max, std::min(massimo, 2 * calcoloPuntuale));
    limite.rlim_cur = std::min<rlim_t>(limite.rlim_cur, limite.rlim_max / 2);
    return setrlimit(RLIMIT_RTTIME, &limite) == 0;
}

void PreferisciPuntualita() {
    prctl(PR_SET_TIMERSLACK, 1UL);
    AscoltaIlLimite();
    if (LimitaCalcoloPuntuale() && ChiediAlSistema()) return;
    // The bus may take its time, or never answer.
    std::thread([filo = gettid()] { ChiediARealtimeKit(filo); }).detach();
}

}  // namespace corvana
