// Programs that a test starts and ends by their own process id: sound servers, a recorder. A
// program dies with the test that started it. And the wait for a condition that somebody else
// brings about.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace corvana::prova {

/// Waits until `condizione` holds, for `secondi` at most; returns whether it does.
bool Aspetta(const std::function<bool()>& condizione, double secondi = 20);

/// A folder of its own, gone with the object.
class CartellaPropria {
public:
    CartellaPropria();
    CartellaPropria(const CartellaPropria&) = delete;
    CartellaPropria& operator=(const CartellaPropria&) = delete;
    ~CartellaPropria();
    const std::filesystem::path& Percorso() const { return percorso_; }

private:
    std::filesystem::path percorso_;
};

class Processo {
public:
    struct Avvio {
        std::vector<std::string> argomenti;  ///< the program first, looked for as the shell does
        std::vector<std::string> ambiente = {};      ///< further NAME=value pairs
        std::filesystem::path uscita = "/dev/null";  ///< where its output goes
        std::filesystem::path errori = "/dev/null";
    };

    /// Throws `std::system_error` when it can't be started.
    explicit Processo(const Avvio& avvio);
    Processo(const Processo&) = delete;
    Processo& operator=(const Processo&) = delete;
    ~Processo() { Termina(); }

    bool Vivo();
    /// Waits for its end; its exit code, or -1 when a signal ended it.
    int EsitoFinale();
    /// Sends a signal, such as SIGSTOP or SIGKILL.
    void Segnala(int segnale) const;
    /// Lets it go ahead of busy programs, where the user may ask for that. Only its first thread
    /// and what that starts from then on.
    void DaiPrecedenza() const;
    /// Asks it to end, and ends it by force when it hasn't after some seconds.
    void Termina();

private:
    pid_t pid_ = 0;
};

}  // namespace corvana::prova
