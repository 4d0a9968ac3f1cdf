// A disk that seems full, for the process that runs the test.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace corvana::prova {

/// While it lives no file of this process may grow beyond `byte`.
class DiscoPieno {
public:
    explicit DiscoPieno(rlim_t byte) : segnale_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &limite_);
        const rlimit stretto{byte, limite_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &stretto);
    }
    DiscoPieno(const DiscoPieno&) = delete;
    DiscoPieno& operator=(const DiscoPieno&) = delete;
    ~DiscoPieno() {
        setrlimit(RLIMIT_FSIZE, &limite_);
        std::signal(SIGXFSZ, segnale_);
    }

private:
    rlimit limite_{};
    void (*segnale_)(int);
};

}  // namespace corvana::prova
