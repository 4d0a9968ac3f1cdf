// The melody window on the virtual clock, played by the synthesiser without a device: what a play
// sounds like, and what it should sound like by its tokens.
#pragma once

#include <string>
#include <vector>

#include "core/real_files.h"
#include "forms/virtual_clock.h"
#include "melody/ticks.h"
#include "sound/outputs/offline_renderer.h"
#include "tests/hearing/melody_stage.h"
#include "tests/outputs/hearing.h"

namespace corvana::prova {

/// What is heard before a play begins, in seconds.
constexpr double anticipo = 0.1;

/// A note that is to sound; instants in seconds of what is heard.
struct NotaAttesa {
    int nota = 0;
    double inizio = 0;
    double fine = 0;
};

/// Instruments: the pitch of its notes is clear in all five octaves; they begin as strokes; they
/// stay as loud as they began.
constexpr int clavicembalo = 6;
constexpr int xilofono = 13;
constexpr int organo = 16;

class Ascolto {
public:
    Ascolto();

    /// Gives a voice its tokens. `attributi` has a letter for each note.
    void Voce(std::size_t voce, const std::string& note, const std::string& durate,
              const std::string& attributi);
    /// Loads a melody of the folder (with a closing separator) as a click on its row does, and
    /// stops the play that begins with it. False when the folder doesn't have it.
    bool Carica(const std::string& cartella, const std::string& nome);
    /// All four voices get this instrument.
    void Strumento(std::int32_t programma);
    /// Of all voices only this one will sound.
    void Solo(std::size_t voce);

    /// Plays, after a pause in which what sounded before fades, and returns when the play is over.
    void Suona();
    /// Stops the play that `Suona` starts next, so many seconds after its beginning.
    void FermaDopo(double secondi);
    /// The last play, to the instant `secondi` of it, in one channel: `anticipo` seconds of silence
    /// and then the play. Once for each play.
    std::vector<float> Senti(double secondi);
    /// Where in what is heard the last play ends.
    double Fine() const { return anticipo + fine_ - inizio_; }

    /// The notes of a voice that sound in a whole play.
    std::vector<NotaAttesa> Attese(std::size_t voce) const;
    /// Seconds of so many ticks.
    double Secondi(Tick tick) const;
    /// Where in what is heard a tick begins.
    double Istante(Tick tick) const { return anticipo + Secondi(tick); }

    OrologioVirtuale orologio;
    FileReali file;
    ResaOffline* resa = nullptr;
    PalcoMelodia palco;
    frmComposer& finestra = palco.finestra;
    Melodia& melodia = finestra.stato.melodia;

private:
    double inizio_ = 0;
    double fine_ = 0;
    double fermata_ = 0;
    double resi_ = 0;  ///< seconds that have been rendered
};

/// The part of a note in which its pitch is heard best: it has begun, and the one before has faded.
/// Of a very short one it is what rings after it.
std::span<const float> Cuore(std::span<const float> suono, const NotaAttesa& nota);

}  // namespace corvana::prova
