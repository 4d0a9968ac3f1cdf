#include "bench/painted.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "bench/stopwatch.h"

namespace corvana::misura {

Pitture::Pitture() {
    qApp->installEventFilter(this);
}

double Pitture::Cronometra(const std::function<void()>& comincia,
                           const std::function<bool(const QWidget&)>& mostra) {
    dipinta_ = false;
    mostra_ = mostra;
    const Cronometro tempo;
    comincia();
    // What is painted goes to the screen before the loop's turn ends.
    while (!dipinta_)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    mostra_ = nullptr;
    return tempo.Millisecondi();
}

double Pitture::CronometraTutte(const std::function<void()>& comincia,
                                const std::function<bool(const QWidget&)>& mostra) {
    constexpr int quiete = 100;  // milliseconds
    const Cronometro tempo;
    double ultima = Cronometra(comincia, mostra);
    mostra_ = mostra;
    QTimer pausa;
    pausa.start(quiete);
    bool quieta = false;
    QObject::connect(&pausa, &QTimer::timeout, [&] { quieta = true; });
    while (!quieta) {
        dipinta_ = false;
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!dipinta_) continue;
        ultima = tempo.Millisecondi();
        pausa.start(quiete);
    }
    mostra_ = nullptr;
    return ultima;
}

bool Pitture::eventFilter(QObject* oggetto, QEvent* evento) {
    if (mostra_ && evento->type() == QEvent::Paint && oggetto->isWidgetType())
        dipinta_ = dipinta_ || mostra_(static_cast<const QWidget&>(*oggetto));
    return false;
}

}  // namespace corvana::misura
