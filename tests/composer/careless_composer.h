// A user of the melody window's loop who presses keys and buttons of the mouse anywhere, lets them
// go anywhere or not at all, enters, mixes, transposes and moves ranges while melodies play, and
// opens the window again when it closes. All that he does comes from one seed.
#pragma once

#include <memory>
#include <optional>
#include <random>
#include <set>

#include "tests/composer/careless_files.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

class CompositoreDistratto {
public:
    CompositoreDistratto(std::uint32_t seme, int eventi) : generatore_(seme), rimasti_(eventi) {}

    /// Uses the window until the events are used up or something is wrong.
    void Vivi();

    int chiuse = 0;       ///< closings of the window
    int play = 0;         ///< times that it was seen playing
    int prese = 0;        ///< times that an arrow was seen held
    int quieti = 0;       ///< pauses after which nothing was held and nothing sounded
    int trasporti = 0;    ///< transpositions that were refused
    int riferimenti = 0;  ///< times that two bookmarks of his were seen
    int incolla = 0;      ///< times that a paste was seen waiting
    int nati = 0;         ///< files and folders that came, and that went
    int morti = 0;
    int caricate = 0;    ///< times that a melody was seen with a name
    double secondi = 0;  ///< virtual time that passed
    std::string guasto;  ///< what was wrong, empty for nothing

private:
    struct Palco : Banco {
        frmComposer finestra{Tutto(), {[] { return ""; }, [] { return ""; }, {}}};
        /// The names of files and folders when they were last looked at.
        std::set<std::string> nomi;
    };

    int Tra(int basso, int alto) { return std::uniform_int_distribution(basso, alto)(generatore_); }
    bool Capita(int suMille) { return Tra(0, 999) < suMille; }
    /// Often within a tick, at times a few notes.
    double Pausa();

    void Apri();
    void PonMelodia();
    void Passo();
    void Agisci();
    void Mouse();
    void Tasto();
    void Abitudine();
    void Archivio();
    void Qualunque();
    /// Lets go of all that he holds and waits for longer than anything goes on by itself.
    void Quieto();
    void Manda(Evento evento, const std::string& controllo);

    void Esigi(bool vero, const std::string& cosa);
    void Controlla();
    void ControllaArchivio();
    void ControllaQuieto();
    void ControllaChiusa();

    std::mt19937 generatore_;
    int rimasti_;
    std::unique_ptr<Palco> banco_;
};

}  // namespace corvana::prova
