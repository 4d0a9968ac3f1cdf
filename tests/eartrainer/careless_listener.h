// A user of the ear trainer who goes through all its pages without waiting for anything: starts and
// stops drills, answers rightly and wrongly, sets ranges, plays the piano, chooses instruments,
// clicks on whatever there is, closes the window and opens it again. For virtual days; all that he
// does comes from one seed.
#pragma once

#include <map>
#include <memory>
#include <random>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

class AscoltatoreDistratto {
public:
    AscoltatoreDistratto(std::uint32_t seme, int eventi) : generatore_(seme), rimasti_(eventi) {}

    /// Uses the window until the events are used up or something is wrong.
    void Vivi();

    int aperture = 0;               ///< openings of the window
    int chiuse = 0;                 ///< times that it was seen closed
    int esatte = 0;                 ///< right answers that he was seen with
    std::map<std::string, int> in;  ///< times that each drill was seen running, by its button
    double secondi = 0;
    std::string guasto;  ///< what was wrong, empty for nothing

private:
    int Tra(int basso, int alto) { return std::uniform_int_distribution(basso, alto)(generatore_); }
    bool Capita(int suMille) { return Tra(0, 999) < suMille; }
    double Pausa();

    void Apri();
    void Passo();
    void Agisci();
    std::string PerAbitudine();
    std::string RispostaGiusta();
    Evento GestoQualunque();
    void Tasto();

    void Esigi(bool vero, const std::string& cosa);
    void Controlla();
    void ControllaPunti();
    void ControllaChiusa();

    std::mt19937 generatore_;
    CasualeFisso chance_;
    int rimasti_;
    int pazienza_ = 0;  ///< with this window, in steps
    std::unique_ptr<BancoInto> banco_;
};

}  // namespace corvana::prova
