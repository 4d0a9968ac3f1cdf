#include "desktop/painted_view.h"

#include "desktop/face.h"
#include "desktop/face_reader.h"
#include "desktop/key_map.h"

namespace corvana {

VistaDipinta::VistaDipinta(const CopiaControllo& copia, Mittente mittente)
    : Vista(copia, mittente) {}

VistaDipinta::~VistaDipinta() {
    if (lettore_) QAccessible::deleteAccessibleInterface(lettore_);
}

void VistaDipinta::DaiFaccia(QWidget& dove) {
    faccia_ = new Faccia(*this, dove);
    PonWidgetMuto(*faccia_);
}

const VistaDipinta* VistaDipinta::Sotto() const {
    return static_cast<const VistaDipinta*>(Padre());
}

Faccia& VistaDipinta::FacciaDove() const {
    return faccia_ ? *faccia_ : Sotto()->FacciaDove();
}

QRect VistaDipinta::Posto() const {
    if (faccia_) return faccia_->rect();
    return InPixel(Stato().Twips(), Scala()).translated(Sotto()->Posto().topLeft());
}

QRect VistaDipinta::Ritaglio() const {
    return faccia_ ? Posto() : Portata() & Sotto()->Ritaglio();
}

bool VistaDipinta::InVista() const {
    if (faccia_) return faccia_->isVisible();
    return SiVede() && Sotto()->InVista();
}

bool VistaDipinta::Abilitata() const {
    if (faccia_) return faccia_->isEnabled();
    return Stato().Enabled && Sotto()->Abilitata();
}

bool VistaDipinta::Usabile() const {
    return InVista() && Abilitata();
}

bool VistaDipinta::HaFuoco() const {
    return FacciaDove().Fuoco() == this;
}

void VistaDipinta::PrendiFuoco(Qt::FocusReason perche) {
    if (Usabile()) FacciaDove().PonFuoco(*this, perche);
}

bool VistaDipinta::Cliccabile() const {
    return Stato().Ascolta(ascoltaClick) && Origine().tipo != Genere::Casella &&
           Origine().tipo != Genere::Finestra && !Stato().Ha("dietro");
}

bool VistaDipinta::PremiTasto(const QKeyEvent& tasto) {
    const bool spazio = tasto.key() == Qt::Key_Space || tasto.key() == Qt::Key_Select;
    if (!spazio && !EInvio(tasto.key())) return false;
    if (tasto.isAutoRepeat()) return true;
    if (!spazio) {
        Manda(Fatto::Click);
        return true;
    }
    premutaDaTasto_ = true;
    Sporca();
    return true;
}

bool VistaDipinta::LasciaTasto(const QKeyEvent& tasto) {
    if (!premutaDaTasto_ || tasto.key() != Qt::Key_Space) return false;
    if (tasto.isAutoRepeat()) return true;
    premutaDaTasto_ = false;
    Sporca();
    Manda(Fatto::Click);
    return true;
}

void VistaDipinta::Rinuncia() {
    premutaDaTasto_ = false;
}

void VistaDipinta::Sporca() const {
    FacciaDove().update(Ritaglio());
}

Accessibile& VistaDipinta::PerLettore() {
    if (!lettore_) lettore_ = QAccessible::registerAccessibleInterface(new Accessibile(*this));
    return *static_cast<Accessibile*>(QAccessible::accessibleInterface(lettore_));
}

void VistaDipinta::Prepara(Nome nome) {
    if (EPosto(nome)) Sporca();
}

void VistaDipinta::Rinfresca(Nome nome) {
    if (nome == &Valori::ToolTipText) return;
    Sporca();
    if (nome != &Valori::Visible && nome != &Valori::Enabled && nome != &Valori::Ascolti) return;
    DiStatoCambiato(*this);
    FacciaDove().Controlla();
}

void VistaDipinta::Riscala() {
    if (faccia_) faccia_->update();
}

void VistaDipinta::NomeCambiato() {
    DiNomeCambiato(*this);
}

}  // namespace corvana
