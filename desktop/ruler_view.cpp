#include "desktop/ruler_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <functional>

#include "desktop/ruler_painter.h"
#include "trainer/positions.h"

namespace corvana {

namespace {

class Regolo final : public QWidget {
public:
    Regolo(const Vista& vista, QWidget& padre) : QWidget(&padre), vista_(vista) {
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.save();
        const double scala = vista_.Scala() / twipsPerPixel;
        p.scale(scala, scala);
        DipingiRegolo(p, QSizeF(size()) / scala, hasFocus() && !underMouse() ? scelta_ : sotto_);
        p.restore();
        if (hasFocus()) DipingiAnello(p, QRectF(rect()), vista_.Scala());
    }
    bool event(QEvent* evento) override {
        if (evento->type() == QEvent::HoverMove)
            Indica(static_cast<QHoverEvent*>(evento)->position().y());
        if (evento->type() == QEvent::HoverLeave) Indica(-1);
        return QWidget::event(evento);
    }
    void keyPressEvent(QKeyEvent* tasto) override {
        switch (tasto->key()) {
            case Qt::Key_Up: return Sposta(1);
            case Qt::Key_Down: return Sposta(-1);
            case Qt::Key_PageUp: return Sposta(7);
            case Qt::Key_PageDown: return Sposta(-7);
            case Qt::Key_Space:
            case Qt::Key_Return:
            case Qt::Key_Enter:
                if (!tasto->isAutoRepeat()) Segna();
                return;
            default: QWidget::keyPressEvent(tasto);
        }
    }

private:
    void Indica(double y) {
        const Posizione* sotto =
            PosizioneDaRegolo(static_cast<int>(y * twipsPerPixel / vista_.Scala()));
        const int numero = sotto ? sotto->numero : 0;
        if (std::exchange(sotto_, numero) != numero) update();
    }
    void Sposta(int passi) {
        const auto posizioni = Posizioni();
        const auto qui = std::find_if(posizioni.begin(), posizioni.end(),
                                      [this](const Posizione& p) { return p.numero == scelta_; });
        const auto indice = std::clamp<std::ptrdiff_t>(
            qui - posizioni.begin() + passi, 0, static_cast<std::ptrdiff_t>(posizioni.size()) - 1);
        scelta_ = posizioni[static_cast<std::size_t>(indice)].numero;
        update();
    }
    void Segna() {
        const Posizione* scelta = CercaPosizione(scelta_);
        Evento evento;
        evento.fatto = Fatto::MouseDown;
        evento.codice = bottoneSinistro;
        evento.x = vista_.Stato().width / 2;
        evento.y = (scelta->fasciaDa + scelta->fasciaA) / 2;
        vista_.Manda(std::move(evento));
    }

    const Vista& vista_;
    int sotto_ = 0;    ///< position under the pointer
    int scelta_ = 46;  ///< position that the keyboard would mark: at first the lowest treble line
};

}  // namespace

VistaRegolo::VistaRegolo(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    PonWidget(*new Regolo(*this, padre));
}

}  // namespace corvana
