#include "desktop/button_view.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyleOptionButton>

#include "desktop/key_map.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

class Pulsante final : public QPushButton {
public:
    explicit Pulsante(QWidget& padre) : QPushButton(&padre) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void initStyleOption(QStyleOptionButton* o) const override {
        QPushButton::initStyleOption(o);
        // The toolkit waits for a move where the pointer came, or was already.
        o->state.setFlag(QStyle::State_MouseOver, underMouse());
    }
    void keyPressEvent(QKeyEvent* tasto) override {
        if (!EInvio(tasto->key())) return QPushButton::keyPressEvent(tasto);
        if (!tasto->isAutoRepeat()) click();
    }
};

}  // namespace

VistaBottone::VistaBottone(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), bottone_(new Pulsante(padre)) {
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
