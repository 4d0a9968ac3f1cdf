// Turns SIGINT, SIGTERM and SIGHUP into a ring of a bell. One at a time; constructed and destroyed
// on the same thread.
#pragma once

#include "desktop/wake.h"

namespace corvana {

class Segnali {
public:
    Segnali();
    Segnali(const Segnali&) = delete;
    Segnali& operator=(const Segnali&) = delete;
    /// The signals mean again what the system lets them mean.
    ~Segnali();

    const Sveglia& Campanello() const { return sveglia_; }

private:
    Sveglia sveglia_;
};

}  // namespace corvana
