#include "desktop/window_shell.h"

#include <QCloseEvent>
#include <QWindow>

namespace corvana {

Guscio::Guscio(CasiFinestra casi) : casi_(std::move(casi)) {
    auto* centro = new QWidget(this);
    centro->setAutoFillBackground(true);
    setCentralWidget(centro);
    centro->installEventFilter(this);
}

void Guscio::Segui() {
    windowHandle()->installEventFilter(this);
}

void Guscio::closeEvent(QCloseEvent* evento) {
    casi_.chiusura();
    evento->ignore();
}

bool Guscio::eventFilter(QObject* oggetto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::Resize:
            if (oggetto == centralWidget()) casi_.misura();
            break;
        // The frame may become known after the last move: looked at again at the next occasion.
        case QEvent::Move:
        case QEvent::Expose:
        case QEvent::FocusIn:
            if (oggetto == windowHandle()) casi_.posto();
            break;
        default: break;
    }
    return QMainWindow::eventFilter(oggetto, evento);
}

}  // namespace corvana
