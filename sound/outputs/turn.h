// One at a time, like a mutex, but waited for with a limit. Any thread.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace corvana {

class Turno {
public:
    class Preso {
    public:
        /// Waits as long as it takes.
        explicit Preso(Turno& turno) : turno_(turno.Prendi() ? &turno : nullptr) {}
        /// Waits for `secondi` at most; false when that wasn't enough.
        Preso(Turno& turno, double secondi) : turno_(turno.Prendi(secondi) ? &turno : nullptr) {}
        Preso(Preso&& altro) noexcept : turno_(std::exchange(altro.turno_, nullptr)) {}
        Preso& operator=(Preso&&) = delete;
        ~Preso() {
            if (turno_) turno_->Lascia();
        }
        explicit operator bool() const { return turno_ != nullptr; }

    private:
        Turno* turno_;
    };

private:
    bool Prendi() {
        std::unique_lock guardia(blocco_);
        libero_.wait(guardia, [this] { return !preso_; });
        return preso_ = true;
    }
    bool Prendi(double secondi) {
        std::unique_lock guardia(blocco_);
        const std::chrono::duration<double> limite(secondi);
        if (!libero_.wait_for(guardia, limite, [this] { return !preso_; })) return false;
        return preso_ = true;
    }
    void Lascia() {
        const std::lock_guard guardia(blocco_);
        preso_ = false;
        libero_.notify_one();
    }

    std::mutex blocco_;
    std::condition_variable libero_;
    bool preso_ = false;
};

}  // namespace corvana
