#include "desktop/mouse.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QWidget>

#include "desktop/key_map.h"
#include "desktop/view.h"

namespace corvana {

namespace {

int NumeroBottone(const QMouseEvent& mouse) {
    if (mouse.button() == Qt::LeftButton) return bottoneSinistro;
    return mouse.button() == Qt::RightButton ? bottoneDestro : 0;
}

bool Dipinta(const Vista& vista) {
    switch (vista.Origine().tipo) {
        case Genere::Finestra:
        case Genere::Etichetta:
        case Genere::Cornice:
        case Genere::Figura: return true;
        default: return false;
    }
}

}  // namespace

Mouse::Mouse(QWidget& widget, const Vista& vista)
    : QObject(&widget),
      widget_(widget),
      vista_(vista),
      inerte_(Dipinta(vista) && !qobject_cast<QAbstractButton*>(&widget)) {
    widget.installEventFilter(this);
}

bool Mouse::eventFilter(QObject*, QEvent* evento) {
    // Of the other kinds it is no mouse event.
    const auto mouse = [evento]() -> const QMouseEvent& {
        return static_cast<const QMouseEvent&>(*evento);
    };
    switch (evento->type()) {
        case QEvent::MouseButtonPress: Manda(Fatto::MouseDown, mouse()); return inerte_;
        case QEvent::MouseButtonRelease: Manda(Fatto::MouseUp, mouse()); return inerte_;
        case QEvent::MouseButtonDblClick: return Raddoppia(mouse());
        case QEvent::MouseMove:
            Muovi(mouse());
            // A mere move must not climb to the parents, which would report it as their own.
            return inerte_ || mouse().buttons() == Qt::NoButton;
        case QEvent::Leave: Esci(); return false;
        default: return false;
    }
}

void Mouse::Manda(Fatto fatto, const QMouseEvent& mouse) const {
    const QPointF posto = mouse.position() + QPointF(widget_.mapTo(vista_.Widget(), QPoint()));
    const double twips = twipsPerPixel / vista_.Scala();
    Evento evento;
    evento.fatto = fatto;
    evento.codice = NumeroBottone(mouse);
    evento.shift = BitMaiuscole(mouse.modifiers());
    evento.x = static_cast<int>(posto.x() * twips);
    evento.y = static_cast<int>(posto.y() * twips);
    vista_.Manda(std::move(evento));
}

void Mouse::Muovi(const QMouseEvent& mouse) const {
    if (vista_.Origine().ascoltaMossa)
        Manda(Fatto::MouseMove, mouse);
    else
        vista_.MuoviFinestra();
}

void Mouse::Esci() const {
    // What sank under the pointer comes up even when only deaf controls lie beside it.
    if (vista_.Origine().ascoltaMossa) vista_.MuoviFinestra();
}

bool Mouse::Raddoppia(const QMouseEvent& mouse) const {
    // A push button knows no double click: each press is a press.
    const bool bottone = vista_.Origine().tipo == Genere::Bottone;
    Manda(bottone ? Fatto::MouseDown : Fatto::DblClick, mouse);
    return Dipinta(vista_);
}

}  // namespace corvana
