#include "desktop/mouse.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>
#include <QWindow>

#include "desktop/key_map.h"
#include "desktop/mouse_event.h"
#include "desktop/view.h"

namespace corvana {

namespace {

/// A text box has a menu of its own.
bool ChiedeMenu(const QKeyEvent& tasto) {
    const bool chiede = tasto.key() == Qt::Key_Menu ||
                        (tasto.key() == Qt::Key_F10 && tasto.modifiers() == Qt::ShiftModifier);
    return chiede && !tasto.isAutoRepeat() && !QApplication::activePopupWidget() &&
           !qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

}  // namespace

Mouse::Mouse(QWidget& widget, const Vista& vista)
    : QObject(&widget), widget_(widget), vista_(vista) {
    widget.installEventFilter(this);
}

bool Mouse::eventFilter(QObject*, QEvent* evento) {
    // Of the other kinds it is no mouse event.
    const auto mouse = [evento]() -> const QMouseEvent& {
        return static_cast<const QMouseEvent&>(*evento);
    };
    switch (evento->type()) {
        case QEvent::MouseButtonPress: Premi(mouse()); return false;
        case QEvent::MouseButtonDblClick: Raddoppia(mouse()); return false;
        case QEvent::MouseMove:
            Muovi(mouse());
            // A mere move must not climb to the parents, which would report it as their own.
            return mouse().buttons() == Qt::NoButton;
        case QEvent::Leave: Esci(); return false;
        default: return false;
    }
}

void Mouse::Manda(Fatto fatto, const QMouseEvent& mouse) const {
    const QPointF posto = mouse.position() + QPointF(widget_.mapTo(vista_.Widget(), QPoint()));
    Evento evento = EventoMouse(vista_, fatto, posto);
    evento.codice = NumeroBottone(mouse.button());
    evento.shift = BitMaiuscole(mouse.modifiers());
    vista_.Manda(std::move(evento));
}

void Mouse::Muovi(const QMouseEvent& mouse) const {
    if (vista_.Stato().Ascolta(ascoltaMossa))
        Manda(Fatto::MouseMove, mouse);
    else
        vista_.MuoviFinestra();
}

void Mouse::Esci() const {
    // What sank under the pointer comes up even when only deaf controls lie beside it.
    if (vista_.Stato().Ascolta(ascoltaMossa)) vista_.MuoviFinestra();
}

void Mouse::Premi(const QMouseEvent& mouse) {
    premuto_ = mouse.timestamp();
    Manda(Fatto::MouseDown, mouse);
}

void Mouse::Raddoppia(const QMouseEvent& mouse) {
    // The second of two quick presses on different controls is the first on its own.
    const quint64 pausa = mouse.timestamp() - premuto_;
    const auto quanto =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    // A push button knows no double click: each press is a press.
    const Genere tipo = vista_.Origine().tipo;
    if (tipo == Genere::Bottone || tipo == Genere::Spunta || pausa > quanto) return Premi(mouse);
    Manda(Fatto::DblClick, mouse);
}

TopoFinestra::TopoFinestra(QWindow& finestra, const Vista& faccia)
    : QObject(&finestra), finestra_(finestra), faccia_(faccia) {
    finestra.installEventFilter(this);
}

bool TopoFinestra::eventFilter(QObject*, QEvent* evento) {
    // Of the other kinds it is no mouse event.
    const auto mouse = [evento]() -> const QMouseEvent& {
        return static_cast<const QMouseEvent&>(*evento);
    };
    switch (evento->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            daTasto_.reset();
            giu_ |= mouse().button();
            break;
        case QEvent::MouseButtonRelease:
            Alza(mouse().button(), mouse().scenePosition(), BitMaiuscole(mouse().modifiers()));
            break;
        case QEvent::MouseMove: Confronta(mouse()); break;
        case QEvent::WindowBlocked:
        case QEvent::Hide: Alza(giu_, finestra_.mapFromGlobal(QCursor::pos()), 0); break;
        case QEvent::KeyPress:
            if (ChiedeMenu(static_cast<const QKeyEvent&>(*evento))) ChiediMenu();
            break;
        default: break;
    }
    return false;
}

void TopoFinestra::Alza(Qt::MouseButtons bottoni, QPointF dove, int shift) {
    giu_ &= ~bottoni;
    for (const auto bottone :
         {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton})
        if (bottoni.testFlag(bottone)) Manda(Fatto::MouseUp, NumeroBottone(bottone), dove, shift);
}

void TopoFinestra::Confronta(const QMouseEvent& mouse) {
    const Qt::MouseButtons saliti = giu_ & ~mouse.buttons();
    if (saliti) Alza(saliti, mouse.scenePosition(), BitMaiuscole(mouse.modifiers()));
}

void TopoFinestra::ChiediMenu() {
    const QWidget& faccia = *faccia_.Widget();
    const QWidget* fuoco = faccia.window()->focusWidget();
    if (!fuoco) fuoco = &faccia;
    const QRect dove = fuoco->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    daTasto_ = fuoco->mapToGlobal(dove.center());
    const QPointF posto = fuoco->mapTo(fuoco->window(), QPointF(dove.center()));
    Manda(Fatto::MouseDown, bottoneDestro, posto, 0);
    Manda(Fatto::MouseUp, bottoneDestro, posto, 0);
}

QPoint TopoFinestra::PostoMenu() const {
    return daTasto_.value_or(QCursor::pos());
}

void TopoFinestra::Manda(Fatto fatto, int codice, QPointF dove, int shift) const {
    const QWidget& faccia = *faccia_.Widget();
    Evento evento = EventoMouse(faccia_, fatto, dove - faccia.mapTo(faccia.window(), QPointF()));
    evento.codice = codice;
    evento.shift = shift;
    faccia_.Manda(std::move(evento));
}

}  // namespace corvana
