// The whole program without a mouse: its menus, drop-down lists and controls, reached from where
// the hands are. GUI thread.
#pragma once

#include "tests/desktop/hand_stage.h"

namespace corvana::prova {

class PalcoTasti : public PalcoAMano {
public:
    using PalcoAMano::PalcoAMano;

    /// Chooses an entry of the menu with that letter, which lies so many entries down.
    void DalMenu(Qt::Key lettera, int giu);
    /// The same, and waits for the window that comes of it.
    void Apri(Qt::Key lettera, int giu, const char* finestra);
    /// Goes there with the Tab key and presses it.
    void Aziona(const std::string& nome);
    /// The row that lies so many rows from the first.
    void Scegli(const std::string& combo, int riga);
    /// Types into the box, after what it held is gone, and leaves it.
    void Scrivi(const std::string& casella, const std::string& testo);
    /// Whether something was sent since it was listened to.
    bool Suonato() const { return !uscita->Mandati().empty(); }
    /// A key, so many times.
    void Ripeti(Qt::Key tasto, int volte);
    /// Answers the question that is up with Yes or No, by its letter or Escape.
    void Decidi(bool si);
    /// Of the Tab key, once around.
    QStringList Fermate();
};

}  // namespace corvana::prova
