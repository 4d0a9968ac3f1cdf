// A desktop with one form on it, and a journal of what reached the form's handlers. The logic runs
// on its own thread as in the program; the test drives the windows from the GUI thread.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "forms/real_clock.h"
#include "forms/windows.h"
#include "tests/desktop/screen.h"
#include "tests/desktop/test_form.h"

namespace corvana::prova {

class Palco {
public:
    /// `prepara` changes the form before it is shown, on the logic thread.
    explicit Palco(const std::function<void(FormDiProva&)>& prepara = {});
    Palco(const Palco&) = delete;
    Palco& operator=(const Palco&) = delete;
    ~Palco();

    Scrivania scrivania;

    /// Runs it on the logic thread, in a handler of the form; returns when it has run and its
    /// changes are on the screen.
    void NellaLogica(std::function<void(FormDiProva&)> azione);
    /// The same without waiting, for an action that itself waits for the user.
    void Ordina(std::function<void(FormDiProva&)> azione);

    /// What the form's handlers were called for since the last call, in order, without the moves of
    /// the pointer.
    Righe Diario();
    /// The moves too.
    Righe DiarioIntero();

private:
    void Logica(const std::function<void(FormDiProva&)>& prepara);
    void Serve(FormDiProva& form);

    std::mutex blocco_;
    Righe diario_;
    std::vector<std::function<void(FormDiProva&)>> ordini_;
    int giri_ = 0;
    int servizio_ = 0;  ///< number of the control that serves the test
};

}  // namespace corvana::prova
