#include "desktop/window_shell.h"

#include <QCloseEvent>
#include <QWindow>

namespace corvana {

namespace {

/// Looks the same with and without the focus: Qt would paint all that lies in it again.
class Centro final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}
};

}  // namespace

Guscio::Guscio(CasiFinestra casi) : casi_(std::move(casi)) {
    auto* centro = new Centro(this);
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
