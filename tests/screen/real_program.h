// The program as it is installed, started by a new user on a screen of its own, and clicked by the
// names of its controls. One thread.
#pragma once

#include <optional>

#include "tests/screen/x_server.h"

namespace corvana::prova {

class ProgrammaVero {
public:
    struct Come {
        int scala = 1;       ///< of the screen
        bool pronta = true;  ///< the opening signal is over, and the box about the missing sound
                             ///< device was answered
        /// The home of one that was started before; empty for a new user.
        std::filesystem::path casa = {};
        std::vector<std::string> ambiente = {};  ///< NAME=value, before what is usual
        std::string programma = {};              ///< another one than this build's
    };

    /// Returns when the main window is to be seen, on a machine without a sound device. The screen
    /// must outlive it.
    explicit ProgrammaVero(Schermo& dove);
    ProgrammaVero(Schermo& dove, const Come& come);

private:
    CartellaPropria nuova_;
    std::filesystem::path casa_;
    int scala_;

public:
    Schermo& schermo;
    Processo processo;

    xcb_window_t principale = 0;

    /// Waits for the window of that form, and for the keyboard to be given to it; 0 when it doesn't
    /// come.
    xcb_window_t AspettaFinestra(const std::string& forma);
    bool AspettaChiusa(const std::string& forma);
    /// Where the control lies on the screen; of `forma`, which is open, by the design.
    Rettangolo Dove(const std::string& controllo, const std::string& forma = "CorvanaMainF");
    /// Clicks it in its middle.
    void Clicca(const std::string& controllo, const std::string& forma = "CorvanaMainF");
    /// The same, and waits until the screen shows something else at `dove`.
    bool CliccaFinoA(const std::string& controllo, const Rettangolo& dove);

    bool ApriMetronomo();
    bool AvviaMetronomo();
    bool FermaMetronomo();
    bool AvviaAutomatico();
    /// Opens the window in which the metronome's pattern is chosen.
    xcb_window_t ApriSequenza();
    xcb_window_t ApriStrumenti();
    xcb_window_t ApriComposer();
    const std::filesystem::path& Casa() const { return casa_; }
    /// Sends the signal; the exit code, or nothing when it doesn't end.
    std::optional<int> Esce(int segnale);
    /// The same without a signal.
    std::optional<int> Esce();
    /// What is stored as the state of the last session; empty when nothing is.
    std::string StatoSalvato() const;

private:
    std::vector<std::string> Ambiente(const Come& come) const;
    Processo::Avvio Avvio(const Come& come) const;
};

}  // namespace corvana::prova
