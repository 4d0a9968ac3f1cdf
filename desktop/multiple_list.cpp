#include "desktop/multiple_list.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyleHints>
#include <algorithm>
#include <utility>

namespace corvana {

ElencoMultiplo::ElencoMultiplo(const Vista& vista, std::function<void(int)> scelta, QWidget& padre)
    : Elenco(vista, std::move(scelta), padre) {
    setSelectionMode(ExtendedSelection);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] { SceltaCambiata(); });
}

void ElencoMultiplo::PonScelta(int riga, const NumeriRiga& scelte) {
    const QSignalBlocker silenzio(this);
    setCurrentRow(riga, QItemSelectionModel::NoUpdate);
    if (scelte == Scelte()) return;
    clearSelection();
    for (const int scelta : scelte)
        if (scelta < count()) item(scelta)->setSelected(true);
}

NumeriRiga ElencoMultiplo::Scelte() const {
    NumeriRiga scelte;
    for (const QModelIndex& indice : selectedIndexes())
        scelte.push_back(indice.row());
    std::sort(scelte.begin(), scelte.end());
    return scelte;
}

void ElencoMultiplo::Raddoppia(const QMouseEvent& mouse) {
    const int riga = indexAt(mouse.position().toPoint()).row();
    const auto quanto =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    // The first of the two presses may have been elsewhere.
    if (riga < 0 || mouse.timestamp() - premuto_ > quanto) return;
    const bool ferma = std::find(prima_.begin(), prima_.end(), riga) != prima_.end();
    NumeriRiga scelte;
    if (ferma || mouse.modifiers().testFlag(Qt::ControlModifier)) scelte = prima_;
    if (!ferma) scelte.push_back(riga);
    PonScelta(riga, scelte);
    Riferisci();
}

/// Row and selection change one after the other under a key: what they came to is told once.
void ElencoMultiplo::keyPressEvent(QKeyEvent* tasto) {
    const auto stato = [this] { return std::pair(currentRow(), Scelte()); };
    const auto vecchio = stato();
    batte_ = true;
    Elenco::keyPressEvent(tasto);
    batte_ = false;
    if (stato() != vecchio) Riferisci();
}

void ElencoMultiplo::mousePressEvent(QMouseEvent* mouse) {
    prima_ = Scelte();
    premuto_ = mouse->timestamp();
    Elenco::mousePressEvent(mouse);
}

void ElencoMultiplo::SceltaCambiata() {
    if (!preme_ && !batte_) Riferisci();
}

}  // namespace corvana
