// A user of the melody window who enters, edits, plays, stops, loads, saves, empties and turns
// knobs without waiting for anything, for virtual hours, and opens the window again when it closes.
// All that he does comes from one seed.
#pragma once

#include <memory>
#include <random>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

class SuonatoreDistratto {
public:
    SuonatoreDistratto(std::uint32_t seme, int eventi) : generatore_(seme), rimasti_(eventi) {}

    /// Uses the window until the events are used up or something is wrong.
    void Vivi();

    int aperture = 0;    ///< openings of the window
    int play = 0;        ///< times that the window was seen playing
    int fermo = 0;       ///< times that nothing was under way, and was looked through
    int caricate = 0;    ///< loads that he asked for
    int salvate = 0;     ///< files written
    int importi = 0;     ///< things done in the import window
    double secondi = 0;  ///< virtual time that passed
    std::string guasto;  ///< what was wrong, empty for nothing

private:
    int Tra(int basso, int alto);
    bool Capita(int suMille) { return Tra(0, 999) < suMille; }
    double Pausa();

    void Apri();
    void PonFile();
    std::string VoceACaso(bool strana);
    std::string MelodiaACaso();
    void Passo();
    void Agisci();
    void Inceppa();
    /// Uses the import window, which is in front, or closes it.
    void Importa();
    std::pair<std::string, Evento> Gesto();

    /// Notes the first thing that is wrong and ends the script.
    void Esigi(bool vero, const std::string& cosa);
    void Controlla();
    void ControllaFermo();

    std::mt19937 generatore_;
    int rimasti_;
    std::unique_ptr<BancoComposer> banco_;
    bool inceppata_ = false;  ///< a message may have failed since the window was opened
    bool redige_ = false;     ///< enters and edits too, melodies that an editor can make
    bool aPassi_ = false;     ///< a step may have been taken, which leaves a button disabled
};

}  // namespace corvana::prova
