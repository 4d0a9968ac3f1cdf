// A thread for calls into the system that may never return. Who waits for it waits a bounded time,
// and a thread that doesn't end is left behind: whatever it touches must belong to it, as by shared
// pointers in its body.
#pragma once

#include <functional>
#include <memory>
#include <thread>

namespace corvana {

class FiloAbbandonabile {
public:
    /// `pazienza`: how many seconds the destructor waits for the end.
    FiloAbbandonabile(std::function<void()> corpo, double pazienza);
    FiloAbbandonabile(const FiloAbbandonabile&) = delete;
    FiloAbbandonabile& operator=(const FiloAbbandonabile&) = delete;
    ~FiloAbbandonabile();

    /// True when the body has returned, which is waited for `secondi` at most.
    bool AspettaFine(double secondi);

private:
    struct Fine;
    std::shared_ptr<Fine> fine_;
    double pazienza_;
    std::thread filo_;
};

}  // namespace corvana
