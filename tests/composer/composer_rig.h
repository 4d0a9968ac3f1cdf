// The melody window on the virtual clock, opened, with a melody that a test puts into it.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "composer/composer.h"
#include "tests/support/rig.h"

namespace corvana::prova {

/// A note message of a play, with the tick in which it was sent; ticks count from 1. Velocity 0 is
/// a note off.
struct Mandato {
    int tick = 0;
    int canale = 0;
    int nota = 0;
    int velocita = 0;
    bool operator==(const Mandato&) const = default;
};
std::ostream& operator<<(std::ostream& dove, const Mandato& mandato);
using Mandati = std::vector<Mandato>;

/// What the system says of an errno, in the language of its settings.
std::string ParoleSistema(int errore);

struct BancoComposer : Banco {
    /// Opens the window, with a device that is open. `separatore` is the decimal one.
    explicit BancoComposer(char separatore = '.');
    /// The same, with melodies that lie elsewhere than in memory.
    explicit BancoComposer(ArchivioFile& archivio, char separatore = '.');
    /// The same after a run that left this unsaved.
    struct Rimasto {
        std::string byte;
    };
    explicit BancoComposer(Rimasto rimasto, char separatore = '.');

    int playFiniti = 0;  ///< plays of the instrument picker that were told to have ended
    frmComposer finestra;
    Melodia& melodia = finestra.stato.melodia;
    StatoInserimento& inserimento = finestra.stato.inserimento;
    StatoPasso& passo = finestra.stato.passo;
    StatoRiproduzione& stato = finestra.stato.riproduzione;

    static constexpr const char* demo = "/programma/Melodie/Demo/";

    /// Gives a voice its texts and splits them; the active voice stays the same.
    void Voce(std::size_t voce, const std::string& note, const std::string& durate,
              const std::string& attributi);
    /// The same with plain notes, for a text of note tokens, all of one duration.
    void Voce(std::size_t voce, const std::string& note, const std::string& durata);
    /// A range of the soprano, 1-based as the boxes show it.
    void Tratto(int prima, int ultima);
    /// Puts a file into the current folder and its row into the list, and chooses the row.
    void PonFile(const std::string& nome, const std::string& byte);
    std::string ContenutoFile(const std::string& nome) const;
    /// Chooses the row of the list with that text; none when there is no such row.
    void Scegli(const std::string& riga);
    /// The user's event, delivered at once.
    void Subito(Fatto fatto, const std::string& controllo, int valore = 0);
    /// The instruments sent, as channel (from 1) and program, in order.
    std::vector<std::pair<int, int>> Programmi() const;

    /// Plays and returns when the play has ended; what was sent before is forgotten.
    void Suona();
    /// The same for a play that `comando` starts.
    void Suona(const std::function<void()>& comando);
    /// The note messages of the last play, up to its end procedure, in order.
    Mandati Messaggi() const;
    /// Those of one channel.
    Mandati Messaggi(int canale) const;
    /// Those of one round, from 1, of a play whose rounds take `tick` ticks each and the pause
    /// between them. What is sent at the end of a round bears the tick after its last.
    Mandati MessaggiDelGiro(int giro, int tick) const;
    /// Ticks that the last play took.
    int TickPassati() const;
    /// Clicks the control in tick `tick`, counted from 1, of the play that `Suona` starts next: it
    /// is delivered after that tick.
    void CliccaNelTick(int tick, const std::string& controllo);
    /// Does something at that time instead.
    void NelTick(int tick, OrologioVirtuale::Passo passo);

private:
    BancoComposer(ArchivioFile& archivio, char separatore, std::optional<std::string> rimasto);
    double DurataTick() const;
    Mandati MessaggiTra(double inizio, double fine) const;

    double inizio_ = 0;
    double fine_ = 0;
    std::size_t fineMessaggi_ = 0;
};

}  // namespace corvana::prova
