#include "desktop/face.h"

#include <QAccessible>
#include <QChildEvent>
#include <QHelpEvent>
#include <QToolTip>

#include "desktop/face_layers.h"
#include "desktop/face_reader.h"

namespace corvana {

Faccia::Faccia(VistaDipinta& terra, QWidget& dove) : QWidget(&dove), terra_(terra), topo_(*this) {
    if (!terra.Padre()) voce_ = std::make_unique<Banditore>(*this);
    setMouseTracking(true);
}

VistaDipinta& Faccia::Sotto(const QPointF& punto) const {
    VistaDipinta* sopra = InCima(terra_, punto.toPoint());
    return sopra ? *sopra : terra_;
}

void Faccia::PonFuoco(VistaDipinta& vista, Qt::FocusReason perche) {
    CambiaFuoco();
    fuoco_ = &vista;
    vista.Segnala();
    setFocus(perche);
    DiFuoco(vista);
    CambiaFuoco();
}

void Faccia::CambiaFuoco() {
    if (!fuoco_) return;
    fuoco_->Rinuncia();
    fuoco_->Sporca();
}

void Faccia::Controlla() {
    topo_.Controlla();
    if (!fuoco_ || (fuoco_->Usabile() && fuoco_->Fermata())) return;
    // As a widget's focus goes on when the widget is hidden.
    if (hasFocus() && isVisible()) focusNextPrevChild(true);
    if (!fuoco_->Usabile() || !fuoco_->Fermata()) fuoco_ = nullptr;
}

void Faccia::paintEvent(QPaintEvent* evento) {
    QPainter p(this);
    DipingiStrati(p, terra_, evento->region(), [this](const VistaDipinta& vista) {
        Tocco tocco = topo_.Tatto(vista);
        tocco.premuto = tocco.premuto || vista.PremutaDaTasto();
        tocco.fuoco = Fuoco() && &Fuoco()->DovEIlFuoco() == &vista;
        tocco.abilitato = vista.Abilitata();
        return tocco;
    });
}

bool Faccia::event(QEvent* evento) {
    if (evento->type() == QEvent::ToolTip) {
        MostraConsiglio(static_cast<QHelpEvent&>(*evento));
        return true;
    }
    return topo_.Sente(*evento) || QWidget::event(evento);
}

QVariant Faccia::inputMethodQuery(Qt::InputMethodQuery domanda) const {
    if (domanda == Qt::ImCursorRectangle && Fuoco()) return Fuoco()->DovEIlFuoco().Area();
    return QWidget::inputMethodQuery(domanda);
}

bool Faccia::eventFilter(QObject* oggetto, QEvent* evento) {
    // Of the pointer over a widget that stands on it, it hears nothing else.
    if (evento->type() == QEvent::Enter) topo_.Esci();
    return QWidget::eventFilter(oggetto, evento);
}

void Faccia::childEvent(QChildEvent* evento) {
    if (evento->added() && evento->child()->isWidgetType())
        evento->child()->installEventFilter(this);
    QWidget::childEvent(evento);
}

void Faccia::MostraConsiglio(const QHelpEvent& evento) {
    const VistaDipinta* vista = &Sotto(evento.pos());
    while (vista->Stato().ToolTipText.empty() && vista != &terra_)
        vista = vista->Sotto();
    const QString testo = InQt(vista->Stato().ToolTipText);
    if (testo.isEmpty()) return QToolTip::hideText();
    QToolTip::showText(evento.globalPos(), testo, this, vista->Area());
}

void Faccia::keyPressEvent(QKeyEvent* tasto) {
    if (!fuoco_ || !fuoco_->PremiTasto(*tasto)) QWidget::keyPressEvent(tasto);
}

void Faccia::keyReleaseEvent(QKeyEvent* tasto) {
    if (!fuoco_ || !fuoco_->LasciaTasto(*tasto)) QWidget::keyReleaseEvent(tasto);
}

void Faccia::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    CambiaFuoco();
}

void Faccia::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    CambiaFuoco();
}

}  // namespace corvana
