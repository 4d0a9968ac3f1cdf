#include "desktop/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <utility>

#include "desktop/aspect.h"
#include "desktop/placement.h"

namespace corvana {

namespace {

/// False on Wayland, where a window neither knows nor chooses where it stands.
bool DiceIPosti() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// What windows may cover of the screen that has the point, or else of the window's own.
QRect LiberoPresso(QPoint punto, const QWidget& finestra) {
    const QScreen* schermo = QGuiApplication::screenAt(punto);
    return (schermo ? schermo : finestra.screen())->availableGeometry();
}

/// Moves the window, and makes it smaller, so that it lies on the screen with its whole frame.
void Contieni(QWidget& finestra) {
    const QRect cornice = finestra.windowHandle()->frameGeometry();
    const QRect giusta = DentroSchermo(cornice, finestra.screen()->availableGeometry());
    if (giusta == cornice || finestra.isMaximized() || finestra.isFullScreen()) return;
    const QSize orlo = cornice.size() - finestra.size();
    finestra.resize(ConLaSuaForma(finestra.size(), giusta.size() - orlo));
    finestra.windowHandle()->setFramePosition(giusta.topLeft());
}

}  // namespace

void PostoFinestra::Colloca(const QPoint* detto, const QMainWindow* sotto) {
    const bool nuda = finestra_.windowFlags() & Qt::FramelessWindowHint;
    // Its own frame isn't there yet; that of the window beneath is the window manager's, too.
    const QWindow* vicina = sotto ? sotto->windowHandle() : nullptr;
    const QMargins cornice = vicina && !nuda ? vicina->frameMargins() : QMargins();
    const QSize misura = finestra_.size().grownBy(cornice);
    const QRect diSotto = vicina ? vicina->frameGeometry() : QRect();
    const QRect libero = LiberoPresso(detto ? *detto : diSotto.center(), finestra_);
    if (detto)
        finestra_.move(DentroSchermo({*detto, misura}, libero).topLeft());
    else if (vicina)
        finestra_.move(AlCentro(misura, diSotto, libero).topLeft());
}

void PostoFinestra::Guarda() {
    const QWindow& vera = *finestra_.windowHandle();
    // Where the platform doesn't tell places, it finds good ones itself.
    if (!vera.isExposed() || !DiceIPosti()) return;
    if (!std::exchange(intera_, true)) Contieni(finestra_);
    const QPoint posto = vera.framePosition() * twipsPerPixel;
    if (posto == std::exchange(posto_, posto)) return;
    Evento evento;
    evento.fatto = Fatto::Spostata;
    evento.x = posto.x();
    evento.y = posto.y();
    mittente_.Manda(std::move(evento));
}

void PostoFinestra::Sposta(Nome nome, int twips) {
    nome == &Valori::Left ? posto_.setX(twips) : posto_.setY(twips);
    const QRect cornice(posto_ / twipsPerPixel, finestra_.frameGeometry().size());
    finestra_.windowHandle()->setFramePosition(
        DentroSchermo(cornice, LiberoPresso(cornice.topLeft(), finestra_)).topLeft());
}

}  // namespace corvana
