#include "tests/desktop/keys_hand.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <QTest>
#include <stdexcept>

namespace corvana::prova {

namespace {

void AspettaTendina(const std::string& di) {
    if (!Aspetta([] { return QApplication::activePopupWidget() != nullptr; }))
        throw std::logic_error("nothing drops down from " + di);
}

}  // namespace

void PalcoTasti::DalMenu(Qt::Key lettera, int giu) {
    Batti(lettera, Qt::AltModifier);
    AspettaTendina("the menu");
    Ripeti(Qt::Key_Down, giu);
    Batti(Qt::Key_Return);
}

void PalcoTasti::Apri(Qt::Key lettera, int giu, const char* finestra) {
    DalMenu(lettera, giu);
    AspettaFinestra(scrivania, QString::fromLatin1(finestra));
    Calma();
}

void PalcoTasti::Aziona(const std::string& nome) {
    VaiA(nome);
    Batti(Qt::Key_Space);
}

void PalcoTasti::Scegli(const std::string& combo, int riga) {
    Aziona(combo);
    AspettaTendina(combo);
    Batti(Qt::Key_Home);
    Ripeti(Qt::Key_Down, riga);
    Batti(Qt::Key_Return);
}

void PalcoTasti::Scrivi(const std::string& casella, const std::string& testo) {
    VaiA(casella);
    Batti(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(testo));
    Calma();
    Batti(Qt::Key_Tab);
}

void PalcoTasti::Ripeti(Qt::Key tasto, int volte) {
    for (int i = 0; i < volte; ++i)
        Batti(tasto);
}

void PalcoTasti::Decidi(bool si) {
    if (!Aspetta([this] { return scrivania.Riquadro() && scrivania.Riquadro()->isVisible(); }))
        throw std::logic_error("no question came");
    const QPointer<QDialog> domanda = scrivania.Riquadro();
    QTest::keyClick(domanda, si ? Qt::Key_S : Qt::Key_Escape);
    // A button that is pressed by its letter shows that for a moment.
    Aspetta([&] { return !domanda; });
    Calma();
    scrivania.Davanti()->Finestra().activateWindow();
    Calma();
}

QStringList PalcoTasti::Fermate() {
    QStringList fermate;
    while (true) {
        Batti(Qt::Key_Tab);
        for (int numero = 0; Vista* vista = scrivania.Davanti()->Controllo(numero); ++numero)
            if (vista->HaFuoco()) {
                if (fermate.contains(vista->Stato().nome)) return fermate;
                fermate.append(vista->Stato().nome);
            }
    }
}

}  // namespace corvana::prova
