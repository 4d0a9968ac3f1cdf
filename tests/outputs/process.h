// Programs that a test starts and ends by their own process id: sound servers, a recorder. A
// program dies with the test that started it. And the wait for what such a program writes.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace corvana::prova {

/// A descriptor of the system's, closed with the object.
class Descrittore {
public:
    /// Throws `std::system_error` for what the system failed to open.
    explicit Descrittore(int fd);
    Descrittore(const Descrittore&) = delete;
    Descrittore& operator=(const Descrittore&) = delete;
    ~Descrittore();
    operator int() const { return fd_; }

private:
    int fd_;
};

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

    bool Vivo() const { return !AspettaFine(0); }
    /// 0 once its end has been taken.
    pid_t Numero() const { return pid_; }
    /// True when it has ended, which is waited for `secondi` at most.
    bool AspettaFine(double secondi) const;
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
    friend bool AspettaInCartella(const std::filesystem::path& cartella, const Processo& processo,
                                  const std::function<bool()>& condizione, double secondi);
    static pid_t Lancia(const Avvio& avvio);

    pid_t pid_;
    Descrittore fine_;  ///< readable once it has ended
};

/// Waits until `condizione` holds, which is looked at whenever a file in `cartella` comes, goes or
/// changes; as long as `processo` lives, and for `secondi` at most. Returns whether it holds.
bool AspettaInCartella(const std::filesystem::path& cartella, const Processo& processo,
                       const std::function<bool()>& condizione, double secondi = 60);

}  // namespace corvana::prova
