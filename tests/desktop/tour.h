// One who is shown around the whole program and tries what he is shown, with the mouse and the
// keyboard in the real windows. What he sees he reads from the windows, what he hears from a record
// of the output. What the program waits for takes no time, unless he lets it pass. GUI thread.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/desktop/melody_hand.h"
#include "tests/desktop/visit.h"

namespace corvana::prova {

using Interi = std::vector<int>;

/// Of the voice that is written in.
constexpr Colore verde = Rgb(0, 255, 0);

class Giro : public PalcoMelodia {
public:
    explicit Giro(CasaDiMemoria& casa);

    CasaDiMemoria& casa;
    Interi primeNote;  ///< that the first drills showed, by their positions
    Interi luci;       ///< colours of the metronome's first two as it was last stopped

    /// From now on, what is asked for is what was heard since.
    void Ascolta();
    /// Numbers of the notes that were struck on the channel, 1 to 16, in order; with their
    /// velocities; their instants.
    Interi Note(int canale = 1) const;
    Interi Forze(int canale = 1) const;
    std::vector<double> Istanti(int canale = 1) const;
    /// What instruments were chosen: channel and program.
    std::vector<std::pair<int, int>> Strumenti() const;
    /// The wave files, without their folders.
    std::vector<std::string> Onde() const;

    /// The positions that are to be seen on the staff.
    Interi SulPentagramma();
    /// The lit keys of the keyboard on the screen, 0 to 59.
    Interi TastiAccesi();
    void ToccaTasto(int indice);

    std::string Titolo() { return scrivania.Davanti()->Finestra().windowTitle().toStdString(); }
    bool Vede(const std::string& nome) { return Di(nome).isVisible(); }
    bool Usabile(const std::string& nome) { return Di(nome).isEnabled(); }
    /// What stands on a button, or in a box, of the window in front.
    std::string Bottone(const std::string& nome) { return Scritta(nome.c_str()).toStdString(); }
    std::string Casella(const std::string& nome) { return Testo(nome.c_str()).toStdString(); }
    int Numero(const std::string& casella) { return Testo(casella.c_str()).toInt(); }
    int Colore(const std::string& nome) {
        return StatoDi(scrivania, QString::fromStdString(nome)).BackColor;
    }
    /// The arrow keys bring a list to the row that begins so.
    void ScegliRiga(const std::string& lista, const std::string& inizio);
    /// What a melody's file holds, of those in the user's folder of melodies.
    const std::string& Salvata(const std::string& nome) const;
    double Ora() const { return orologio.Adesso(); }
    /// Brings a slider to one of its ends.
    void AllEstremo(const std::string& barra, bool massimo);

private:
    std::vector<Registratore::Voce> Battute(int canale) const;
    std::size_t daMessaggio_ = 0, daOnda_ = 0;
};

/// A stop of the tour, in the words of the one who leads it.
struct Tappa {
    const char* nome;
    void (*fai)(Giro&);
};

std::vector<Tappa> TappeDellaLettura();
std::vector<Tappa> TappeDellaMelodia();
std::vector<Tappa> TappeDellOrecchio();
std::vector<Tappa> TappeDegliAttrezzi();

}  // namespace corvana::prova
