// A learner before the real program, who runs its drill by the clock, lets its metronome tick and
// chooses the device of its sound, and who takes down how long each answer of the program takes.
// Boxes that come over the window are noted and answered. One thread.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/screen/real_program.h"

namespace corvana::prova {

class AllievoPaziente {
public:
    /// The main window has the keyboard; the automatic mode is chosen and the metronome's panel is
    /// opened.
    explicit AllievoPaziente(ProgrammaVero& programma);

    /// Each returns false when the program doesn't answer within some twenty seconds.
    bool Comincia();
    bool Smetti();
    bool AvviaMetronomo();
    bool FermaMetronomo();
    /// Ends what goes on and opens the window of the devices, by which the first one is chosen;
    /// chooses the one `riga` rows below it, if there is one, and closes the window.
    bool ScegliDispositivo(int riga);
    /// An answer of the drill.
    void Rispondi();
    /// Answers the boxes that are up.
    void ViaIRiquadri();

    /// A picture of the screen, in the folder that CORVANA_PICTURES names, if it names one.
    void Ritrai();

    bool Batte();

    const std::vector<double>& Attese() const { return attese_; }  ///< seconds of each answer
    int Riquadri() const { return riquadri_; }

private:
    bool InCorso();
    bool ApriDispositivi();
    void CliccaLaRiga(int riga);
    bool Ottieni(const std::string& controllo, const std::string& forma,
                 const std::function<bool()>& effetto);
    bool Attendi(const std::function<bool()>& effetto);

    ProgrammaVero& p_;
    Rettangolo regolo_, sequenza_;
    std::vector<std::uint8_t> senzaEsercizio_, senzaBattito_;
    std::vector<double> attese_;
    int riquadri_ = 0;
};

}  // namespace corvana::prova
