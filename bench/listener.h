// When notes begin, and how late: heard where the logic hands them to the machine's outputs.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "bench/spy.h"
#include "forms/real_clock.h"

namespace corvana::misura {

/// What the logic's thread tells of the notes. Any thread.
class Ascolto {
public:
    void Senti(std::uint32_t messaggio, double istante) {
        constexpr std::uint32_t notaAccesa = 0x90;
        const bool spenta = messaggio >> 16 == 0;  // the velocity
        if ((messaggio & 0xF0) != notaAccesa || spenta) return;
        const double ora = orologio_.Adesso();
        const std::scoped_lock blocco(blocco_);
        ritardi_.push_back((ora - istante) * 1e3);
        accesa_ = ora;
    }
    /// Milliseconds that the notes begun since the last call were late.
    std::vector<double> Ritardi() {
        const std::scoped_lock blocco(blocco_);
        return std::exchange(ritardi_, {});
    }
    std::atomic<double>& Accesa() { return accesa_; }  ///< when the last note began

private:
    std::mutex blocco_;
    std::vector<double> ritardi_;
    std::atomic<double> accesa_{0};
    OrologioReale orologio_;
};

/// The machine's outputs, of whose notes `ascolto` hears.
inline std::unique_ptr<Spia> Spiata(std::function<double()> istante, Ascolto& ascolto) {
    return std::make_unique<Spia>(std::move(istante), [&](auto messaggio, double quando) {
        ascolto.Senti(messaggio, quando);
    });
}

}  // namespace corvana::misura
