// A bounded queue without locks from one thread to another. One thread puts, one takes; whoever
// wants to take in another's place must keep it from taking meanwhile.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace corvana {

template <typename T, std::size_t capienza>
class Anello {
public:
    /// False, and nothing is put, when the ring is full.
    bool Metti(const T& elemento) {
        const std::size_t fine = fine_.load(std::memory_order_relaxed);
        if (fine - inizio_.load(std::memory_order_acquire) == capienza) return false;
        elementi_[fine % capienza] = elemento;
        fine_.store(fine + 1, std::memory_order_release);
        return true;
    }

    /// The oldest, or null. It stays until `Togli`.
    const T* Primo() const {
        const std::size_t inizio = inizio_.load(std::memory_order_relaxed);
        if (inizio == fine_.load(std::memory_order_acquire)) return nullptr;
        return &elementi_[inizio % capienza];
    }

    /// Removes what `Primo` has shown.
    void Togli() { inizio_.fetch_add(1, std::memory_order_release); }

private:
    std::array<T, capienza> elementi_{};
    std::atomic<std::size_t> inizio_{0};
    std::atomic<std::size_t> fine_{0};
};

}  // namespace corvana
