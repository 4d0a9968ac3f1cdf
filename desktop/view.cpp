#include "desktop/view.h"

#include <utility>

#include "desktop/face.h"
#include "desktop/mouse.h"
#include "desktop/widget_aspect.h"

namespace corvana {

Vista::Vista(const CopiaControllo& copia, Mittente mittente)
    : copia_(copia),
      mittente_(mittente),
      aspetto_(AspettoDa(copia)),
      nomeDetto_(NomeAccessibile(aspetto_)) {}

void Vista::Adotta(Vista& figlia) {
    figlia.padre_ = this;
    figlie_.push_back(&figlia);
}

void Vista::PonWidget(QWidget& widget, QWidget* bersaglio) {
    PonWidgetMuto(widget);
    QWidget& udito = bersaglio ? *bersaglio : widget;
    new Mouse(udito, *this);
    udito.setMouseTracking(true);
}

void Vista::PonWidgetMuto(QWidget& widget) {
    widget_ = &widget;
    widget.setObjectName(aspetto_.nome);
    PonAspetto(widget, aspetto_);
    // Before it may be shown: the toolkit would measure its letters for a size of its own.
    widget.setGeometry(InPixel(aspetto_.Twips(), scala_));
    for (const auto& [nome, valore] : copia_.proprieta)
        RinfrescaComune(nome);
}

void Vista::Manda(Evento evento) const {
    evento.controllo = copia_.numero;
    mittente_.Manda(std::move(evento));
}

void Vista::MandaBottone(Fatto fatto) const {
    Evento evento;
    evento.fatto = fatto;
    evento.codice = bottoneSinistro;
    evento.x = aspetto_.Width / 2;
    evento.y = aspetto_.Height / 2;
    Manda(std::move(evento));
}

void Vista::MuoviFinestra() const {
    mittente_.Manda(0, Fatto::MouseMove);
}

void Vista::Cambia(Nome nome, const Valore& valore) {
    Prepara(nome);
    nome.Poni(aspetto_, valore);
    RinfrescaComune(nome);
    Rinfresca(nome);
}

void Vista::Disponi(double scala) {
    scala_ = scala;
    if (widget_) widget_->setGeometry(InPixel(aspetto_.Twips(), scala));
    Riscala();
}

bool Vista::Fermata() const {
    return widget_ && (widget_->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

bool Vista::Usabile() const {
    return widget_ && widget_->isVisible() && widget_->isEnabled();
}

bool Vista::HaFuoco() const {
    return widget_ && widget_->hasFocus();
}

void Vista::PrendiFuoco(Qt::FocusReason perche) {
    if (widget_) widget_->setFocus(perche);
}

void Vista::PonNomeDetto(const QString& nome) {
    nomeDetto_ = nome;
    if (widget_) widget_->setAccessibleName(nome);
    PonDettaglio();
    NomeCambiato();
}

void Vista::PonDettaglio() {
    if (widget_) widget_->setAccessibleDescription(Dettaglio());
}

void Vista::NomeCambiato() {
    if (aspetto_.Ha("annunciato")) Annuncia(*this);
}

void Vista::Annuncia(const Vista& vista) {
    const Vista* radice = &vista;
    while (radice->Padre())
        radice = radice->Padre();
    if (const auto* terra = dynamic_cast<Faccia*>(radice->Widget())) terra->Voce().Annuncia(vista);
}

void Vista::Rinfresca(Nome) {
    if (widget_) widget_->update();
}

void Vista::RinfrescaComune(Nome nome) {
    if (ENome(nome)) PonNomeDetto(NomeAccessibile(aspetto_));
    if (!widget_) return;
    if (nome == &Valori::Visible) widget_->setVisible(aspetto_.Visible);
    if (nome == &Valori::Enabled) widget_->setEnabled(aspetto_.Enabled);
    if (nome == &Valori::ToolTipText) widget_->setToolTip(InQt(aspetto_.ToolTipText));
    if (EPosto(nome)) widget_->setGeometry(InPixel(aspetto_.Twips(), scala_));
}

}  // namespace corvana
