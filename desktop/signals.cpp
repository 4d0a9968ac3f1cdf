#include "desktop/signals.h"

#include <array>
#include <atomic>
#include <csignal>

namespace corvana {

namespace {

// A signal handler gets nothing from its caller but the signal: what it rings must lie here.
std::atomic<int> presaDelGestore{-1};
static_assert(std::atomic<int>::is_always_lock_free);

constexpr std::array segnali{SIGINT, SIGTERM, SIGHUP};

void Gestisci(int) {
    const int presa = presaDelGestore.load();
    if (presa >= 0) SuonaPresa(presa);
}

void Poni(void (*gestore)(int)) {
    struct sigaction azione {};
    azione.sa_handler = gestore;
    azione.sa_flags = SA_RESTART;
    sigemptyset(&azione.sa_mask);
    for (const int segnale : segnali)
        sigaction(segnale, &azione, nullptr);
}

}  // namespace

Segnali::Segnali() {
    presaDelGestore = sveglia_.Presa();
    Poni(Gestisci);
}

Segnali::~Segnali() {
    Poni(SIG_DFL);
    presaDelGestore = -1;
}

}  // namespace corvana
