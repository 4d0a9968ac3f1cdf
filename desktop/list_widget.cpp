#include "desktop/list_widget.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "desktop/key_map.h"
#include "desktop/row_painter.h"
#include "desktop/view.h"

namespace corvana {

namespace {

constexpr double aria = 5;  ///< pixels between the list's edge and its rows

}  // namespace

/// Rows that are as high as the list has them, whatever the style makes of their text.
class RigaAlta final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void PonAltezza(int pixel) { altezza_ = pixel; }
    int Altezza() const { return altezza_; }
    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex& indice) const override {
        return {QStyledItemDelegate::sizeHint(o, indice).width(), altezza_};
    }

private:
    int altezza_ = 0;
};

Elenco::Elenco(const Vista& vista, std::function<void(int)> scelta, QWidget& padre)
    : QListWidget(&padre), vista_(vista), scelta_(std::move(scelta)), riga_(new RigaAlta(this)) {
    // It is painted, and takes no room of its own.
    setFrameShape(Panel);
    setLineWidth(0);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    viewport()->setAutoFillBackground(false);
    setItemDelegate(riga_);
    connect(this, &QListWidget::currentRowChanged, this, [this] { RigaCambiata(); });
}

void Elenco::Adatta() {
    const int margine = static_cast<int>(aria * vista_.Scala());
    const int alto = height() - 2 * margine, voluta = AltezzaDellaRiga(vista_.Scala());
    const int riga = std::max(voluta, alto / std::max(1, alto / voluta));
    const int avanzo = std::max(0, alto % riga);
    const QMargins margini(margine, margine + avanzo / 2, margine, margine + avanzo - avanzo / 2);
    if (margini != viewportMargins()) setViewportMargins(margini);
    if (riga_->Altezza() == riga) return;
    riga_->PonAltezza(riga);
    scheduleDelayedItemsLayout();
}

void Elenco::PonScelta(int riga, const NumeriRiga&) {
    const QSignalBlocker silenzio(this);
    setCurrentRow(riga);
}

void Elenco::Riferisci() const {
    // Of several rows all can be selected before one was ever touched.
    if (currentRow() >= 0 || selectionMode() != SingleSelection) scelta_(currentRow());
}

void Elenco::RigaCambiata() {
    if (!preme_) Riferisci();
}

bool Elenco::event(QEvent* evento) {
    if (evento->type() == QEvent::Resize) Adatta();
    return QListWidget::event(evento);
}

void Elenco::keyPressEvent(QKeyEvent* tasto) {
    if (!EInvio(tasto->key()) || !vista_.Stato().Ascolta(ascoltaDoppio))
        return QListWidget::keyPressEvent(tasto);
    if (currentRow() >= 0 && !tasto->isAutoRepeat()) vista_.Manda(Fatto::DblClick);
}

void Elenco::mousePressEvent(QMouseEvent* mouse) {
    preme_ = true;
    QListWidget::mousePressEvent(mouse);
}

void Elenco::mouseReleaseEvent(QMouseEvent* mouse) {
    QListWidget::mouseReleaseEvent(mouse);
    // Where the button was let go is what the user chose, the row that was chosen before too.
    if (std::exchange(preme_, false)) Riferisci();
}

void Elenco::focusInEvent(QFocusEvent* evento) {
    {
        // Qt would select the first row of a list in which none is.
        const QSignalBlocker silenzio(this);
        const int riga = currentRow();
        const NumeriRiga scelte = Scelte();
        QListWidget::focusInEvent(evento);
        PonScelta(riga, scelte);
    }
    update();
}

void Elenco::focusOutEvent(QFocusEvent* evento) {
    QListWidget::focusOutEvent(evento);
    update();
}

}  // namespace corvana
