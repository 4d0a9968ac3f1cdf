// A careless user of the whole program in its real windows: clicks, drags, types, opens menus,
// answers boxes, makes windows larger and closes them, often before the program has done what he
// asked for last. The program's time is his, and its files are in memory. All that he does comes
// from one seed; what it meets depends on how fast the program's threads are. GUI thread.
#pragma once

#include <algorithm>
#include <concepts>
#include <map>
#include <memory>
#include <random>
#include <string>

#include "tests/desktop/dosed_clock.h"
#include "tests/desktop/program_stage.h"
#include "tests/support/memory_files.h"

class QDialog;
class QWindow;

namespace corvana::prova {

class ManoDistratta {
public:
    ManoDistratta(std::uint32_t seme, int gesti) : generatore_(seme), rimasti_(gesti) {}

    /// Uses the program until the gestures are used up or something is wrong.
    void Vivi();

    std::string guasto;            ///< the first thing that went wrong
    std::map<QString, int> gesti;  ///< by the window that was in front

private:
    struct Sera;

    int Tra(int basso, int alto) {
        return std::uniform_int_distribution(basso, std::max(basso, alto))(generatore_);
    }
    /// One of so many.
    std::size_t Quale(std::integral auto quanti) {
        return static_cast<std::size_t>(Tra(0, static_cast<int>(quanti) - 1));
    }
    bool Capita(int perMille) { return Tra(0, 999) < perMille; }

    void Avvia();
    void Gesto();
    void NelRiquadro(QDialog& riquadro);
    void NelMenu(QWidget& menu);
    void NellaFinestra(VistaFinestra& finestra);
    void Mouse(VistaFinestra& finestra);
    void Tasto(QWindow& finestra);
    void Voce(VistaFinestra& finestra);
    void Parole(QWindow& finestra);
    void Finestra(VistaFinestra& finestra);
    QPoint Punto(VistaFinestra& finestra);
    /// Lets the program go on, as a rule until it has taken all that was done.
    void Aspetta();
    /// The program has done all that it can before more time passes or more is asked for.
    bool HaFinito() const;

    std::mt19937 generatore_;
    int rimasti_;
    std::unique_ptr<Sera> sera_;
};

}  // namespace corvana::prova
