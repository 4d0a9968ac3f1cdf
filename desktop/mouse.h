// Makes events of the mouse over one widget: down, up, double click. A click is the widget's own to
// report. Moves over a control that doesn't listen to them count as moves over its window.
// GUI thread; dies with the widget.
#pragma once

#include <QObject>

#include "forms/event.h"

class QMouseEvent;
class QWidget;

namespace corvana {

class Vista;

class Mouse final : public QObject {
public:
    Mouse(QWidget& widget, const Vista& vista);
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void Manda(Fatto fatto, const QMouseEvent& mouse) const;
    void Muovi(const QMouseEvent& mouse) const;
    void Esci() const;
    bool Raddoppia(const QMouseEvent& mouse) const;

    QWidget& widget_;
    const Vista& vista_;
    const bool inerte_;  ///< the widget itself does nothing with the mouse
};

}  // namespace corvana
