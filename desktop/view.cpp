#include "desktop/view.h"

#include "desktop/mouse.h"

namespace corvana {

Vista::Vista(const CopiaControllo& copia, Mittente mittente)
    : copia_(copia), mittente_(mittente), aspetto_(AspettoDa(copia)) {}

void Vista::PonWidget(QWidget& widget, QWidget* bersaglio) {
    widget_ = &widget;
    widget.setObjectName(aspetto_.nome);
    QWidget& udito = bersaglio ? *bersaglio : widget;
    new Mouse(udito, *this);
    udito.setMouseTracking(true);
    for (const auto& [nome, valore] : copia_.proprieta)
        RinfrescaComune(nome);
}

void Vista::Manda(Evento evento) const {
    evento.controllo = copia_.numero;
    mittente_.Manda(std::move(evento));
}

void Vista::MuoviFinestra() const {
    mittente_.Manda(0, Fatto::MouseMove);
}

void Vista::Cambia(Nome nome, const Valore& valore) {
    Poni(aspetto_, nome, valore);
    if (widget_) RinfrescaComune(nome);
    Rinfresca(nome);
}

void Vista::Disponi(double scala) {
    scala_ = scala;
    if (widget_) widget_->setGeometry(InPixel(aspetto_.Twips(), scala));
    Riscala();
}

void Vista::Rinfresca(Nome) {
    if (widget_) widget_->update();
}

void Vista::RinfrescaComune(Nome nome) {
    switch (nome) {
        case Nome::Visible: return widget_->setVisible(aspetto_.visible);
        case Nome::Enabled: return widget_->setEnabled(aspetto_.enabled);
        case Nome::ToolTipText: widget_->setToolTip(aspetto_.toolTip); [[fallthrough]];
        case Nome::Caption: return widget_->setAccessibleName(NomeAccessibile(aspetto_));
        case Nome::Left:
        case Nome::Top:
        case Nome::Width:
        case Nome::Height: return widget_->setGeometry(InPixel(aspetto_.Twips(), scala_));
        default: return;
    }
}

}  // namespace corvana
