#include "desktop/slider_view.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyleOptionSlider>
#include <algorithm>

#include "desktop/face_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

class Cursore final : public QSlider {
public:
    Cursore(const Vista& vista, Qt::Orientation verso, QWidget& padre)
        : QSlider(verso, &padre), vista_(vista) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        QStyleOptionSlider opzioni;
        initStyleOption(&opzioni);
        const QRectF pollice =
            style()->subControlRect(QStyle::CC_Slider, &opzioni, QStyle::SC_SliderHandle, this);
        DipingiGuida(p, pollice.center());
        DipingiPollice(p, pollice.center());
        if (hasFocus()) DipingiAnello(p, QRectF(rect()), vista_.Scala());
    }

private:
    QColor Tinta() const { return isEnabled() ? tinta::accento : tinta::spento; }

    void DipingiGuida(QPainter& p, const QPointF& pollice) const {
        const bool piana = orientation() == Qt::Horizontal;
        const double mezza = 2 * vista_.Scala();
        const QPointF c = QRectF(rect()).center();
        const QRectF guida = piana ? QRectF(0, c.y() - mezza, width(), 2 * mezza)
                                   : QRectF(c.x() - mezza, 0, 2 * mezza, height());
        p.setPen(Qt::NoPen);
        p.setBrush(tinta::filo);
        p.drawRoundedRect(guida, mezza, mezza);
        QRectF percorsa = guida;
        if (piana)
            percorsa.setRight(pollice.x());
        else
            percorsa.setBottom(pollice.y());
        p.setBrush(Tinta());
        p.drawRoundedRect(percorsa, mezza, mezza);
    }
    void DipingiPollice(QPainter& p, const QPointF& centro) const {
        const double raggio =
            std::min({7.5 * vista_.Scala(), width() / 2.0 - 1, height() / 2.0 - 1});
        p.setPen(QPen(Tinta(), 2 * vista_.Scala()));
        p.setBrush(isSliderDown() ? tinta::accentoTenue : tinta::carta);
        p.drawEllipse(centro, raggio, raggio);
    }

    const Vista& vista_;
};

}  // namespace

VistaBarra::VistaBarra(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    const bool ritta = Stato().height > Stato().width;
    barra_ = new Cursore(*this, ritta ? Qt::Vertical : Qt::Horizontal, padre);
    barra_->setPageStep(std::max(1, copia.passoGrande));
    PonWidget(*barra_);
    PonValori();
    Collega();
}

void VistaBarra::PonValori() {
    const QSignalBlocker silenzio(barra_);
    const auto [minimo, massimo] = std::minmax(Stato().min, Stato().max);
    barra_->setRange(minimo, massimo);
    // `Min` is at the left or at the top, whichever of the two is larger.
    const bool rovescia = (barra_->orientation() == Qt::Vertical) != (Stato().min > Stato().max);
    barra_->setInvertedAppearance(rovescia);
    barra_->setInvertedControls(rovescia);
    barra_->setValue(Stato().value);
}

void VistaBarra::Collega() {
    QObject::connect(barra_, &QSlider::sliderMoved, barra_, [this](int valore) {
        mosso_ = true;
        PonDaUtente(Nome::Value, valore);
        Manda(Fatto::Scroll, valore);
    });
    QObject::connect(barra_, &QSlider::sliderReleased, barra_, [this] {
        if (std::exchange(mosso_, false)) Manda(Fatto::Change, barra_->value());
    });
    QObject::connect(barra_, &QSlider::valueChanged, barra_, [this](int valore) {
        if (barra_->isSliderDown()) return;
        PonDaUtente(Nome::Value, valore);
        Manda(Fatto::Change, valore);
    });
}

void VistaBarra::Rinfresca(Nome nome) {
    if (nome == Nome::Value || nome == Nome::Min || nome == Nome::Max) PonValori();
    Vista::Rinfresca(nome);
}

}  // namespace corvana
