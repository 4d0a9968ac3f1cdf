// When to look whether a port that is being sent to is still there: not at every message, yet
// before a port that takes nothing more can have swallowed much.
#pragma once

#include <chrono>

namespace corvana {

class ControlloPorta {
public:
    /// Counts one message; true when it is time to look.
    bool Tempo() {
        const auto adesso = std::chrono::steady_clock::now();
        if (++messaggi_ < massimo_ && adesso < prossimo_) return false;
        messaggi_ = 0;
        prossimo_ = adesso + intervallo_;
        return true;
    }

private:
    static constexpr int massimo_ = 256;
    static constexpr std::chrono::milliseconds intervallo_{200};

    int messaggi_ = 0;
    std::chrono::steady_clock::time_point prossimo_{};
};

}  // namespace corvana
