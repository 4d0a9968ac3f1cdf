// A bell between threads that a loop can watch as a file. `Suona` may be called by any thread, and
// by a signal handler; the rest belongs to the thread that watches.
#pragma once

namespace corvana {

class Sveglia {
public:
    /// Throws std::system_error when the system has no descriptor left.
    Sveglia();
    Sveglia(const Sveglia&) = delete;
    Sveglia& operator=(const Sveglia&) = delete;
    ~Sveglia();

    void Suona() const noexcept;
    /// Takes note of all ringing so far.
    void Svuota() const noexcept;
    /// Readable while it has rung and not been emptied.
    int Presa() const { return presa_; }

private:
    int presa_;
};

/// Rings the bell behind the descriptor; safe in a signal handler.
void SuonaPresa(int presa) noexcept;

}  // namespace corvana
