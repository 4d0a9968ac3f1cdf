#include "desktop/mouse_event.h"

#include "desktop/view.h"

namespace corvana {

Evento EventoMouse(const Vista& vista, Fatto fatto, const QPointF& posto) {
    const double twips = twipsPerPixel / vista.Scala();
    Evento evento;
    evento.fatto = fatto;
    evento.x = static_cast<int>(posto.x() * twips);
    evento.y = static_cast<int>(posto.y() * twips);
    return evento;
}

int NumeroBottone(Qt::MouseButton bottone) {
    if (bottone == Qt::LeftButton) return bottoneSinistro;
    return bottone == Qt::RightButton ? bottoneDestro : 0;
}

}  // namespace corvana
