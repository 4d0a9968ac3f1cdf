#include "desktop/list_view.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QSignalBlocker>
#include <functional>

#include "desktop/face_painter.h"
#include "desktop/row_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double aria = 5;  ///< pixels between the list's edge and its rows

class Elenco final : public QListWidget {
public:
    Elenco(const Vista& vista, std::function<void(int)> scelta, QWidget& padre)
        : QListWidget(&padre), vista_(vista), scelta_(std::move(scelta)) {
        setFrameShape(NoFrame);
        setUniformItemSizes(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(ScrollPerPixel);
        viewport()->setAutoFillBackground(false);
        connect(this, &QListWidget::currentRowChanged, this, [this](int riga) {
            if (!preme_ && riga >= 0) scelta_(riga);
        });
    }
    /// Letters are shortcuts of the program, and don't search the rows.
    void keyboardSearch(const QString&) override {}
    void PonAria(int pixel) { setViewportMargins(pixel, pixel, pixel, pixel); }

protected:
    bool event(QEvent* evento) override {
        if (evento->type() == QEvent::Paint) DipingiCornice();
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
    void DipingiCornice() {
        Aspetto aspetto = vista_.Stato();
        if (aspetto.fondo == coloreDiSistema) aspetto.fondo = Rgb(255, 254, 251);
        aspetto.stile << QStringLiteral("carta");
        QPainter p(this);
        DipingiFondo(p, QRectF(rect()), aspetto, vista_.Scala(), {});
        if (hasFocus()) DipingiAnello(p, QRectF(rect()), vista_.Scala());
    }

    const Vista& vista_;
    std::function<void(int)> scelta_;
    bool preme_ = false;
};

}  // namespace

VistaLista::VistaLista(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    auto* elenco = new Elenco(
        *this,
        [this](int riga) {
            PonDaUtente(Nome::ListIndex, riga);
            Manda(Fatto::Click, riga);
        },
        padre);
    lista_ = elenco;
    VestiRighe(*lista_, *this);
    PonWidget(*lista_, lista_->viewport());
    PonRighe();
}

void VistaLista::PonRighe() {
    const QSignalBlocker silenzio(lista_);
    // Keeping the rows in place keeps the view where the user scrolled it to.
    while (lista_->count() > Stato().righe.size())
        delete lista_->takeItem(lista_->count() - 1);
    for (int i = 0; i < Stato().righe.size(); ++i) {
        if (i == lista_->count()) lista_->addItem(QString());
        lista_->item(i)->setText(Stato().righe[i]);
    }
    PonScelta();
}

void VistaLista::PonScelta() {
    const QSignalBlocker silenzio(lista_);
    lista_->setCurrentRow(Stato().listIndex);
}

void VistaLista::Rinfresca(Nome nome) {
    if (nome == Nome::List) PonRighe();
    if (nome == Nome::ListIndex) PonScelta();
    Vista::Rinfresca(nome);
    lista_->viewport()->update();
}

void VistaLista::Riscala() {
    lista_->setFont(Carattere(Stato().stile, Scala()));
    static_cast<Elenco*>(lista_)->PonAria(static_cast<int>(aria * Scala()));
}

}  // namespace corvana
