// A careless user of the whole program, the real metronome included: every window that opens is
// clicked through, typed into and closed, and the main one by habit: bursts of Start, metronome,
// modes, answers and languages, with pauses in which what is shown as running must run. For virtual
// days; all that he does comes from one seed.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>

#include "tests/program/program_rig.h"

namespace corvana::prova {

class Vagabondo {
public:
    Vagabondo(std::uint32_t seme, int eventi) : generatore_(seme), rimasti_(eventi) {}

    /// Uses the program until the events are used up or something is wrong.
    void Vivi();

    std::string guasto;                ///< the first thing that went wrong
    std::map<std::string, int> viste;  ///< events by the window that was in front
    int chiusure = 0;
    int pulsi = 0;
    int corse = 0;    ///< times that he was seen in a run
    int attese = 0;   ///< pauses in which something had to run
    int cambi = 0;    ///< times that an automatic run was seen in normal mode
    int suonate = 0;  ///< times that the picker was seen playing
    double secondi = 0;

private:
    /// What goes on while something runs.
    struct Avanzamento {
        int mostrate = 0;
        std::size_t messaggi = 0;
        bool operator==(const Avanzamento&) const = default;
    };

    int Tra(int basso, int alto) { return std::uniform_int_distribution(basso, alto)(generatore_); }
    bool Capita(int perMille) { return Tra(0, 999) < perMille; }
    double Pausa();

    void Avvia();
    void PonSupporto();
    void Passo();
    void Agisci();
    /// Starts or goes on with a burst of the main window's commands.
    bool PerAbitudine();
    bool VociAlCaso(const Form& davanti);
    bool DalComposer(const Form& davanti);
    void Premi(const std::string& controllo);
    void RispondiGiusto();
    Evento GestoQualunque(const Form& davanti);
    void Tasto(int codice);
    void Manda(Evento evento);

    /// Notes the first thing that is wrong and ends the script.
    void Esigi(bool vero, const std::string& cosa);
    void Controlla();
    void ControllaPicker();
    void ControllaRiquadri();
    void ControllaCorsa();
    void ControllaFermo();
    void ControllaChiusa();
    /// When he has done nothing for a while: does what is shown as running?
    void ControllaAttesa();
    bool DeveCorrere() const;
    Avanzamento Ora() const;

    std::mt19937 generatore_;
    int rimasti_;
    int raffica_ = 0;  ///< commands left of a burst
    std::optional<Avanzamento> prima_;
    const frmComposer* composer_ = nullptr;  ///< the melody window that he saw last
    CasualeFisso chance_;
    std::unique_ptr<BancoProgramma> banco_;
};

}  // namespace corvana::prova
