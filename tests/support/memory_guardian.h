// A guardian whose file is in memory, and who is always done at once.
#pragma once

#include <cerrno>
#include <optional>
#include <utility>

#include "core/guardian.h"

namespace corvana::prova {

class CustodeInMemoria final : public Custode {
public:
    std::optional<std::string> rimasto;  ///< what an earlier run left
    std::optional<std::string> daParte;  ///< what was put aside
    int erroreRitrova = 0;               ///< errno of every look for what is left, 0 for none
    bool inamovibile = false;            ///< what is left can't be put aside
    int tenute = 0, lasciate = 0, fissate = 0;

    /// What the next run would find.
    std::optional<std::string> Contenuto() const { return byte_ ? byte_() : rimasto; }

    void Tieni(std::function<std::string()> byte) override {
        ++tenute;
        byte_ = std::move(byte);
    }
    void Lascia() override {
        ++lasciate;
        byte_ = {};
        rimasto.reset();
    }
    void Fissa() override { ++fissate; }
    int Ritrova(std::string& byte) override {
        if (erroreRitrova) return erroreRitrova;
        if (!rimasto) return ENOENT;
        byte = *rimasto;
        return 0;
    }
    std::string MettiDaParte() override {
        if (inamovibile) return "";
        daParte = std::exchange(rimasto, std::nullopt);
        return "/stato/da parte";
    }

private:
    std::function<std::string()> byte_;
};

}  // namespace corvana::prova
