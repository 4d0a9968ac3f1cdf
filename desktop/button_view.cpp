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
    /// Whether one that may stay down does, the logic says.
    void nextCheckState() override {}
    void keyPressEvent(QKeyEvent* tasto) override {
        if (!EInvio(tasto->key())) return QPushButton::keyPressEvent(tasto);
        if (!tasto->isAutoRepeat()) click();
    }
};

}  // namespace

VistaBottone::VistaBottone(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), bottone_(new Pulsante(padre)) {
    PonWidget(*bottone_);
    for (const auto& [nome, valore] : copia.proprieta)
        if (nome == &Valori::Checked) bottone_->setCheckable(true);
    Rinfresca(&Valori::Caption);
    Rinfresca(&Valori::Checked);
    QObject::connect(bottone_, &QAbstractButton::clicked, bottone_,
                     [this] { Manda(Fatto::Click); });
}

void VistaBottone::Rinfresca(Nome nome) {
    if (nome == &Valori::Caption) bottone_->setText(InQt(Stato().Caption));
    if (nome == &Valori::Checked) bottone_->setChecked(Stato().Checked);
    Vista::Rinfresca(nome);
}

VistaSpunta::VistaSpunta(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), spunta_(new QCheckBox(&padre)) {
    PonWidget(*spunta_);
    Rinfresca(&Valori::Caption);
    Rinfresca(&Valori::Checked);
    QObject::connect(spunta_, &QAbstractButton::clicked, spunta_,
                     [this](bool segnata) { Manda(Fatto::Click, segnata ? 1 : 0); });
}

void VistaSpunta::Rinfresca(Nome nome) {
    if (nome == &Valori::Caption) spunta_->setText(InQt(Stato().Caption));
    if (nome == &Valori::Checked) spunta_->setChecked(Stato().Checked);
    Vista::Rinfresca(nome);
}

void VistaSpunta::Riscala() {
    spunta_->setFont(Carattere(Stato().stile, Scala()));
}

}  // namespace corvana
