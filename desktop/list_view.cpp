#include "desktop/list_view.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>
#include <functional>

#include "desktop/row_painter.h"

namespace corvana {

namespace {

constexpr double aria = 5;  ///< pixels between the list's edge and its rows

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

class Elenco final : public QListWidget {
public:
    Elenco(const Vista& vista, std::function<void(int)> scelta, QWidget& padre)
        : QListWidget(&padre), vista_(vista), scelta_(std::move(scelta)) {
        // It is painted, and takes no room of its own.
        setFrameShape(Panel);
        setLineWidth(0);
        setUniformItemSizes(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(ScrollPerItem);
        viewport()->setAutoFillBackground(false);
        setItemDelegate(riga_);
        connect(this, &QListWidget::currentRowChanged, this, [this](int riga) {
            if (!preme_ && riga >= 0) scelta_(riga);
        });
    }
    /// Letters are shortcuts of the program, and don't search the rows.
    void keyboardSearch(const QString&) override {}
    /// As many whole rows as there is room for; what is left over lies above and below them.
    void Adatta() {
        const int margine = static_cast<int>(aria * vista_.Scala());
        const int alto = height() - 2 * margine, voluta = AltezzaDellaRiga(vista_.Scala());
        const int riga = std::max(voluta, alto / std::max(1, alto / voluta));
        const int avanzo = std::max(0, alto % riga);
        const QMargins margini(margine, margine + avanzo / 2, margine,
                               margine + avanzo - avanzo / 2);
        if (margini != viewportMargins()) setViewportMargins(margini);
        if (riga_->Altezza() == riga) return;
        riga_->PonAltezza(riga);
        scheduleDelayedItemsLayout();
    }

protected:
    bool event(QEvent* evento) override {
        if (evento->type() == QEvent::Resize) Adatta();
        return QListWidget::event(evento);
    }
    void mousePressEvent(QMouseEvent* mouse) override {
        preme_ = true;
        QListWidget::mousePressEvent(mouse);
    }
    void mouseReleaseEvent(QMouseEvent* mouse) override {
        QListWidget::mouseReleaseEvent(mouse);
        // Where the button was let go is what the user chose, the row that was chosen before too.
        if (std::exchange(preme_, false) && currentRow() >= 0) scelta_(currentRow());
    }
    void focusInEvent(QFocusEvent* evento) override {
        {
            // Qt would select the first row of a list in which none is.
            const QSignalBlocker silenzio(this);
            const int scelta = currentRow();
            QListWidget::focusInEvent(evento);
            setCurrentRow(scelta);
        }
        update();
    }
    void focusOutEvent(QFocusEvent* evento) override {
        QListWidget::focusOutEvent(evento);
        update();
    }

private:
    const Vista& vista_;
    std::function<void(int)> scelta_;
    bool preme_ = false;
    RigaAlta* riga_ = new RigaAlta(this);
};

}  // namespace

VistaLista::VistaLista(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    auto* elenco = new Elenco(
        *this,
        [this](int riga) {
            PonDaUtente(&Valori::ListIndex, riga);
            Manda(Fatto::Click, riga);
        },
        padre);
    lista_ = elenco;
    PonWidget(*lista_, lista_->viewport());
    PonRighe();
}

void VistaLista::PonRighe() {
    const QSignalBlocker silenzio(lista_);
    // Keeping the rows in place keeps the view where the user scrolled it to.
    const QStringList righe = InQt(Stato().List);
    while (lista_->count() > righe.size())
        delete lista_->takeItem(lista_->count() - 1);
    for (int i = 0; i < righe.size(); ++i) {
        if (i == lista_->count()) lista_->addItem(QString());
        lista_->item(i)->setText(righe[i]);
    }
    PonScelta();
}

void VistaLista::PonScelta() {
    const QSignalBlocker silenzio(lista_);
    lista_->setCurrentRow(Stato().ListIndex);
}

void VistaLista::Rinfresca(Nome nome) {
    if (nome == &Valori::List) PonRighe();
    if (nome == &Valori::ListIndex) PonScelta();
    Vista::Rinfresca(nome);
    lista_->viewport()->update();
}

void VistaLista::Riscala() {
    RiscalaRighe(*lista_, Stato(), Scala());
    static_cast<Elenco*>(lista_)->Adatta();
}

}  // namespace corvana
