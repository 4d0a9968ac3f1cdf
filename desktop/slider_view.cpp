#include "desktop/slider_view.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>

namespace corvana {

namespace {

class Cursore final : public QSlider {
public:
    Cursore(Qt::Orientation verso, QWidget& padre) : QSlider(verso, &padre) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void mousePressEvent(QMouseEvent* mouse) override {
        ultimo_ = mouse->position();
        QSlider::mousePressEvent(mouse);
    }
    void mouseMoveEvent(QMouseEvent* mouse) override {
        ultimo_ = mouse->position();
        QSlider::mouseMoveEvent(mouse);
    }
    void mouseReleaseEvent(QMouseEvent* mouse) override {
        // The thumb stays where it is let go, which may be farther than the last move told.
        if (isSliderDown() && mouse->position() != ultimo_) mouseMoveEvent(mouse);
        QSlider::mouseReleaseEvent(mouse);
    }
    void hideEvent(QHideEvent* evento) override {
        // The release goes elsewhere from now on.
        setSliderDown(false);
        QSlider::hideEvent(evento);
    }

private:
    QPointF ultimo_;  ///< where the mouse was last told to be
};

}  // namespace

VistaBarra::VistaBarra(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    const bool ritta = Stato().Height > Stato().Width;
    barra_ = new Cursore(ritta ? Qt::Vertical : Qt::Horizontal, padre);
    barra_->setPageStep(std::max(1, copia.passoGrande));
    PonWidget(*barra_);
    PonValori();
    Collega();
}

void VistaBarra::PonValori() {
    const QSignalBlocker silenzio(barra_);
    const auto [minimo, massimo] = std::minmax(Stato().Min, Stato().Max);
    barra_->setRange(minimo, massimo);
    // `Min` is at the left or at the top, whichever of the two is larger.
    const bool rovescia = (barra_->orientation() == Qt::Vertical) != (Stato().Min > Stato().Max);
    barra_->setInvertedAppearance(rovescia);
    barra_->setInvertedControls(rovescia);
    // Under the user's hand it stays where the user has it, who will tell where that was.
    if (!mosso_) barra_->setValue(Stato().Value);
}

void VistaBarra::Collega() {
    QObject::connect(barra_, &QSlider::sliderMoved, barra_, [this](int valore) {
        mosso_ = true;
        PonDaUtente(&Valori::Value, valore);
        Manda(Fatto::Scroll, valore);
    });
    QObject::connect(barra_, &QSlider::sliderReleased, barra_, [this] {
        if (!std::exchange(mosso_, false)) return PonValori();
        PonDaUtente(&Valori::Value, barra_->value());
        Manda(Fatto::Change, barra_->value());
    });
    QObject::connect(barra_, &QSlider::valueChanged, barra_, [this](int valore) {
        if (barra_->isSliderDown()) return;
        PonDaUtente(&Valori::Value, valore);
        Manda(Fatto::Change, valore);
    });
}

void VistaBarra::Rinfresca(Nome nome) {
    if (nome == &Valori::Value || nome == &Valori::Min || nome == &Valori::Max) PonValori();
    Vista::Rinfresca(nome);
}

}  // namespace corvana
