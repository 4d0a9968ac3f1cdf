// A desktop with the five-octave keyboard on it, and a journal of what reached its keys' handlers.
// GUI thread; the logic runs on its own.
#pragma once

#include <mutex>
#include <vector>

#include "tests/desktop/keyboard_form.h"
#include "tests/desktop/screen.h"

namespace corvana::prova {

class PalcoTastiera {
public:
    PalcoTastiera();
    PalcoTastiera(const PalcoTastiera&) = delete;
    PalcoTastiera& operator=(const PalcoTastiera&) = delete;
    ~PalcoTastiera() { scrivania.Termina(); }

    Scrivania scrivania;

    /// Runs it on the logic thread; returns when its changes are on the screen.
    void NellaLogica(std::function<void(FormTastiera&)> azione);
    /// What the keys' handlers were called for since the last call.
    Righe Diario();
    Cosa Tasto(int tasto) { return Trova(scrivania, QStringLiteral("lb%1").arg(tasto)); }

private:
    void Logica();

    std::mutex blocco_;
    Righe diario_;
    std::function<void(FormTastiera&)> ordine_;
    int giri_ = 0;
};

}  // namespace corvana::prova
