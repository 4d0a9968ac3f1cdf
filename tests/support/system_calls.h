// The system calls of the file layer, counted, and any of them made to fail: the program that tests
// it is linked with them wrapped (LINKER:--wrap). One thread; one of these at a time.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace corvana::prova {

struct GuastoSistema {
    int errore = 0;      ///< errno, of a call that does nothing
    bool breve = false;  ///< instead: it does one byte of what it was asked to
    bool nulla = false;  ///< instead: it does none, and says so
    bool daAlloraInPoi = false;
};

/// While it lives calls are counted, and `quale`, from 0, is the first to fail.
class ChiamateSistema {
public:
    ChiamateSistema() : ChiamateSistema(0, std::nullopt) {}
    ChiamateSistema(std::size_t quale, std::optional<GuastoSistema> guasto);
    ChiamateSistema(const ChiamateSistema&) = delete;
    ChiamateSistema& operator=(const ChiamateSistema&) = delete;
    ~ChiamateSistema();

    /// By their names, in order.
    const std::vector<std::string>& Fatte() const { return fatte_; }

    /// Takes a call down; what goes wrong with it. For the wrapped calls.
    std::optional<GuastoSistema> Annota(const char* nome);

private:
    std::vector<std::string> fatte_;
    std::size_t quale_;
    std::optional<GuastoSistema> guasto_;
};

}  // namespace corvana::prova
