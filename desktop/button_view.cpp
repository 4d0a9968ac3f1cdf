#include "desktop/button_view.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include "desktop/face_painter.h"
#include "desktop/key_map.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

class Pulsante final : public QPushButton {
public:
    Pulsante(const Vista& vista, QWidget& padre) : QPushButton(&padre), vista_(vista) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        DipingiBottone(p, QRectF(rect()), vista_.Stato(), vista_.Scala(),
                       {underMouse(), isDown(), hasFocus(), isEnabled()});
    }
    void keyPressEvent(QKeyEvent* tasto) override {
        if (!EInvio(tasto->key())) return QPushButton::keyPressEvent(tasto);
        if (!tasto->isAutoRepeat()) click();
    }

private:
    const Vista& vista_;
};

}  // namespace

VistaBottone::VistaBottone(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), bottone_(new Pulsante(*this, padre)) {
    PonWidget(*bottone_);
    Rinfresca(Nome::Caption);
    QObject::connect(bottone_, &QAbstractButton::clicked, bottone_,
                     [this] { Manda(Fatto::Click); });
}

void VistaBottone::Rinfresca(Nome nome) {
    if (nome == Nome::Caption) bottone_->setText(Stato().caption);
    Vista::Rinfresca(nome);
}

VistaSpunta::VistaSpunta(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), spunta_(new QCheckBox(&padre)) {
    PonWidget(*spunta_);
    Rinfresca(Nome::Caption);
    Rinfresca(Nome::Checked);
    QObject::connect(spunta_, &QAbstractButton::clicked, spunta_,
                     [this](bool segnata) { Manda(Fatto::Click, segnata ? 1 : 0); });
}

void VistaSpunta::Rinfresca(Nome nome) {
    if (nome == Nome::Caption) spunta_->setText(Stato().caption);
    if (nome == Nome::Checked) spunta_->setChecked(Stato().checked);
    Vista::Rinfresca(nome);
}

void VistaSpunta::Riscala() {
    spunta_->setFont(Carattere(Stato().stile, Scala()));
}

}  // namespace corvana
