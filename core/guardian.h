// Keeps for the next run of the program what would be lost if this one were ended at once. It never
// holds its caller up, and never fails aloud. Logic thread.
#pragma once

#include <functional>
#include <string>

namespace corvana {

class Custode {
public:
    Custode() = default;
    Custode(const Custode&) = delete;
    Custode& operator=(const Custode&) = delete;
    virtual ~Custode() = default;

    /// Keeps what `byte` returns, in place of what was kept before. It is called later and on
    /// another thread, so it must own all that it reads; of several the last counts.
    virtual void Tieni(std::function<std::string()> byte) = 0;
    /// There is nothing to keep any more: what was kept is taken away.
    virtual void Lascia() = 0;
    /// Returns when what was asked for is done, or when that takes too long.
    virtual void Fissa() = 0;

    /// What an earlier run left. Returns 0 or the errno: ENOENT when there is nothing.
    virtual int Ritrova(std::string& byte) = 0;
    /// Puts what an earlier run left aside, in place of what was put aside before. Returns where it
    /// then is; empty when it can't be moved.
    virtual std::string MettiDaParte() = 0;
};

}  // namespace corvana
