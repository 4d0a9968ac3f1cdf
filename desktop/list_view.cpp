#include "desktop/list_view.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <functional>

#include "desktop/face_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

// A slim thumb without arrows, in the colours of the theme.
constexpr const char* stileScorrimento =
    "QScrollBar:vertical{background:transparent;width:10px;margin:1px;}"
    "QScrollBar::handle:vertical{background:#dcd2c0;border-radius:4px;min-height:24px;}"
    "QScrollBar::handle:vertical:hover{background:#b9ac96;}"
    "QScrollBar::add-line,QScrollBar::sub-line{height:0;}"
    "QScrollBar::add-page,QScrollBar::sub-page{background:transparent;}";

constexpr double altezzaRiga = 20;  ///< designed pixels
constexpr double aria = 5;          ///< pixels between the list's edge and its rows

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

/// Rows with room around their text; one of dashes alone is a thin line.
class Riga final : public QStyledItemDelegate {
public:
    Riga(const Vista& vista, QObject& padre) : QStyledItemDelegate(&padre), vista_(vista) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {0, static_cast<int>(altezzaRiga * vista_.Scala())};
    }
    void paint(QPainter* p, const QStyleOptionViewItem& o,
               const QModelIndex& indice) const override {
        const QString testo = indice.data().toString();
        const bool scelta = o.state.testFlag(QStyle::State_Selected);
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        if (scelta || o.state.testFlag(QStyle::State_MouseOver)) Evidenzia(*p, o.rect, scelta);
        if (testo.count(QLatin1Char('-')) == testo.size())
            Filo(*p, o.rect, scelta);
        else
            Scrivi(*p, o, testo, scelta);
        p->restore();
    }

private:
    void Evidenzia(QPainter& p, const QRectF& riga, bool scelta) const {
        p.setPen(Qt::NoPen);
        p.setBrush(scelta ? tinta::accento : tinta::accentoTenue);
        p.drawRoundedRect(riga, 5 * vista_.Scala(), 5 * vista_.Scala());
    }
    void Filo(QPainter& p, const QRectF& riga, bool scelta) const {
        p.setPen(QPen(scelta ? QColor(Qt::white) : tinta::filo, vista_.Scala()));
        const double rientro = 8 * vista_.Scala();
        p.drawLine(QPointF(riga.left() + rientro, riga.center().y()),
                   QPointF(riga.right() - rientro, riga.center().y()));
    }
    void Scrivi(QPainter& p, const QStyleOptionViewItem& o, const QString& testo,
                bool scelta) const {
        const bool abilitata = o.state.testFlag(QStyle::State_Enabled);
        const QColor penna = InQt(vista_.Stato().penna, tinta::inchiostro);
        p.setPen(scelta ? QColor(Qt::white) : abilitata ? penna : tinta::spento);
        p.setFont(o.font);
        const int rientro = static_cast<int>(8 * vista_.Scala());
        const QRect posto = o.rect.adjusted(rientro, 0, -rientro / 2, 0);
        p.drawText(posto, Qt::AlignVCenter | Qt::AlignLeft,
                   o.fontMetrics.elidedText(testo, Qt::ElideRight, posto.width()));
    }

    const Vista& vista_;
};

}  // namespace

VistaLista::VistaLista(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    auto* elenco = new Elenco(
        *this, [this](int riga) { Manda(Fatto::Click, riga); }, padre);
    lista_ = elenco;
    lista_->verticalScrollBar()->setStyleSheet(QString::fromLatin1(stileScorrimento));
    lista_->setItemDelegate(new Riga(*this, *lista_));
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
