// Makes events of the mouse. GUI thread.
#pragma once

#include <QObject>
#include <QPoint>
#include <optional>

#include "forms/event.h"

class QMouseEvent;
class QWidget;
class QWindow;

namespace corvana {

class Vista;

/// Over one widget: down, double click, moves. A click is the widget's own to report. Moves over a
/// control that doesn't listen to them count as moves over its window. Dies with the widget.
class Mouse final : public QObject {
public:
    Mouse(QWidget& widget, const Vista& vista);
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void Manda(Fatto fatto, const QMouseEvent& mouse) const;
    void Muovi(const QMouseEvent& mouse) const;
    void Esci() const;
    void Premi(const QMouseEvent& mouse);
    void Raddoppia(const QMouseEvent& mouse);

    QWidget& widget_;
    const Vista& vista_;
    quint64 premuto_ = 0;  ///< when a button last went down on it, in milliseconds
};

/// Of one native window as a whole. Each button that went down in it comes up, wherever the pointer
/// is by then and whatever became of the control on which it went down; also when the release
/// itself never comes, since a modal window or a menu took the mouse away. The logic knows which
/// control is meant. The keys that ask for a context menu, where what has the focus has none of its
/// own, are a press of the right button on the window, at the focus. Dies with the window.
class TopoFinestra final : public QObject {
public:
    /// `faccia` is the view of the window itself.
    TopoFinestra(QWindow& finestra, const Vista& faccia);
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

    /// Where on the screen a context menu is asked for: at the pointer, or at the focus.
    QPoint PostoMenu() const;

private:
    void Alza(Qt::MouseButtons bottoni, QPointF dove, int shift);
    /// Those that are no longer down, though nobody said so.
    void Confronta(const QMouseEvent& mouse);
    void ChiediMenu();
    /// `dove` lies in the window.
    void Manda(Fatto fatto, int codice, QPointF dove, int shift) const;

    QWindow& finestra_;
    const Vista& faccia_;
    Qt::MouseButtons giu_;
    std::optional<QPoint> daTasto_;
};

}  // namespace corvana
