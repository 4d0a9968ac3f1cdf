// The ground of a window, or of a frame on which widgets stand: paints the controls that lie on it
// and are no widgets, and hands the mouse, the keys and the focus on to them. GUI thread.
#pragma once

#include <QWidget>

#include "desktop/crier.h"
#include "desktop/face_mouse.h"
#include "desktop/painted_view.h"

namespace corvana {

class Faccia final : public QWidget {
public:
    /// `terra` is the control whose face it is.
    Faccia(VistaDipinta& terra, QWidget& dove);

    VistaDipinta& Terra() const { return terra_; }

    /// Speaks for the window, where this is its ground.
    Banditore& Voce() const { return *voce_; }

    /// What lies on top there and is painted; the ground itself where there is nothing else.
    VistaDipinta& Sotto(const QPointF& punto) const;

    /// The painted control that has the keyboard, or null.
    VistaDipinta* Fuoco() const { return hasFocus() ? fuoco_ : nullptr; }
    void PonFuoco(VistaDipinta& vista, Qt::FocusReason perche);
    /// A control was hidden or can't be used any more: it has neither focus nor pointer.
    void Controlla();

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool event(QEvent* evento) override;
    /// Where the painted control lies that has the keyboard.
    QVariant inputMethodQuery(Qt::InputMethodQuery domanda) const override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void childEvent(QChildEvent* evento) override;
    void keyPressEvent(QKeyEvent* tasto) override;
    void keyReleaseEvent(QKeyEvent* tasto) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    void MostraConsiglio(const QHelpEvent& evento);
    void CambiaFuoco();

    VistaDipinta& terra_;
    TopoFaccia topo_;
    std::unique_ptr<Banditore> voce_;
    VistaDipinta* fuoco_ = nullptr;
};

}  // namespace corvana
