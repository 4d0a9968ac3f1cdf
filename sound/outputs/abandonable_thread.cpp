#include "sound/outputs/abandonable_thread.h"

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <utility>

namespace corvana {

namespace {

/// Writing to a server that has died must not end the program.
void IgnoraCondottiRotti() {
    sigset_t segnali;
    sigemptyset(&segnali);
    sigaddset(&segnali, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &segnali, nullptr);
}

}  // namespace

struct FiloAbbandonabile::Fine {
    std::mutex blocco;
    std::condition_variable arrivo;
    bool raggiunta = false;

    void Segnala() {
        const std::lock_guard guardia(blocco);
        raggiunta = true;
        arrivo.notify_all();
    }
};

FiloAbbandonabile::FiloAbbandonabile(std::function<void()> corpo, double pazienza)
    : fine_(std::make_shared<Fine>()), pazienza_(pazienza) {
    filo_ = std::thread([fine = fine_, corpo = std::move(corpo)]() mutable {
        IgnoraCondottiRotti();
        corpo();
        corpo = nullptr;
        fine->Segnala();
    });
}

FiloAbbandonabile::~FiloAbbandonabile() {
    if (AspettaFine(pazienza_))
        filo_.join();
    else
        filo_.detach();
}

bool FiloAbbandonabile::AspettaFine(double secondi) {
    std::unique_lock guardia(fine_->blocco);
    return fine_->arrivo.wait_for(guardia, std::chrono::duration<double>(secondi),
                                  [this] { return fine_->raggiunta; });
}

}  // namespace corvana
