// A variable that holds a value for as long as a block runs. Any thread.
#pragma once

#include <utility>

namespace corvana {

template <class T>
class PerOra {
public:
    PerOra(T& campo, T valore) : campo_(campo), prima_(std::exchange(campo, valore)) {}
    PerOra(const PerOra&) = delete;
    PerOra& operator=(const PerOra&) = delete;
    ~PerOra() { campo_ = prima_; }

private:
    T& campo_;
    const T prima_;
};

}  // namespace corvana
