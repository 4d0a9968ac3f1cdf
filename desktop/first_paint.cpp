#include "desktop/first_paint.h"

#include <QWindow>
#include <utility>

namespace corvana {

void PrimaPittura::Segui(QWindow& finestra) {
    if (!std::exchange(seguita_, true)) finestra.installEventFilter(this);
}

void PrimaPittura::Avvenuta() {
    Rinuncia();
    if (const auto poi = std::exchange(poi_, {})) poi();
}

void PrimaPittura::Rinuncia() {
    if (!std::exchange(detta_, true)) promessa_.set_value();
}

bool PrimaPittura::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::Expose) return false;
    oggetto->removeEventFilter(this);
    // Painted by whom the event goes on to.
    QMetaObject::invokeMethod(
        this, [this] { Avvenuta(); }, Qt::QueuedConnection);
    return false;
}

}  // namespace corvana
