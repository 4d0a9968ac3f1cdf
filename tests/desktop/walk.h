// A walk through all windows of the program and their states, for whoever looks at them: a person,
// by pictures, or a test. GUI thread.
#pragma once

#include <functional>

#include "tests/desktop/screen.h"

namespace corvana::prova {

/// Is shown a window, or what opened over it, and the name of its state.
using Guarda = std::function<void(QWidget& cosa, const QString& nome)>;

class Passeggiata {
public:
    Passeggiata(Scrivania& scrivania, Guarda guarda)
        : scrivania_(scrivania), guarda_(std::move(guarda)) {}

    /// All windows in that language, from the main window and back to it.
    void Gira(bool inglese);

    /// What the walks of single windows are made of.
    void Mostra(const QString& nome) { guarda_(scrivania_.Davanti()->Finestra(), nome); }
    void Mostra(QWidget& cosa, const QString& nome) { guarda_(cosa, nome); }
    /// Each menu of the bar as it drops down.
    void MostraMenu(const QString& nome);
    /// A button held down with the mouse, which is taken away before it comes up.
    void MostraPremuto(const char* bottone, const QString& nome);
    /// What drops down of a list.
    void MostraTendina(const char* lista, const QString& nome);
    /// The box that comes of it, which is then refused.
    void MostraRiquadro(const std::function<void()>& apri, const QString& nome);
    /// Waits for a box that asks for a text, and gives it that one.
    void Rispondi(const QString& testo);
    /// What comes up over a control when the pointer rests on it.
    void MostraConsiglio(const char* controllo, const QString& nome);
    Cosa Di(const char* nome) { return Trova(scrivania_, QString::fromUtf8(nome)); }
    const Aspetto& Stato(const char* nome) { return StatoDi(scrivania_, QString::fromUtf8(nome)); }
    void Premi(const char* nome);
    void Scegli(const char* voce);
    void Attendi(const char* finestra) { AspettaFinestra(scrivania_, QLatin1String(finestra)); }
    void AttendiScritta(const char* nome, const char* scritta);
    /// Fails where it doesn't come true.
    void Attendi(const std::function<bool()>& condizione);
    /// Closes the window in front, which the main one lies beneath.
    void Chiudi();
    /// Lets the logic answer, and what it says come to the screen.
    void Respira();

private:
    QDialog& Riquadro();

    Scrivania& scrivania_;
    Guarda guarda_;
};

void PasseggiaOrecchio(Passeggiata& g);
void PasseggiaComposer(Passeggiata& g);

}  // namespace corvana::prova
