#include "desktop/painted_view.h"

#include <algorithm>
#include <utility>

#include "desktop/face.h"
#include "desktop/face_reader.h"
#include "desktop/grid_steps.h"
#include "desktop/key_map.h"
#include "desktop/style_words.h"
#include "eartrainer/answer_colours.h"

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

bool VistaDipinta::Fermata() const {
    return Azionabile() || (Stato().Ha("letto") && Detta() && QAccessible::isActive());
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

bool VistaDipinta::Azionabile() const {
    const bool ascolta = Stato().Ascolta(ascoltaPressione) ||
                         (Stato().Ascolta(ascoltaDoppio) && FormaDi(Stato().stile).premibile);
    return Cliccabile() || (ascolta && Origine().tipo != Genere::Casella &&
                            Origine().tipo != Genere::Finestra && !Stato().Ha("dietro"));
}

void VistaDipinta::Aziona() const {
    if (Stato().Ascolta(ascoltaPressione)) {
        MandaBottone(Fatto::MouseDown);
        MandaBottone(Fatto::MouseUp);
    }
    Compi();
}

void VistaDipinta::Compi() const {
    if (Cliccabile())
        Manda(Fatto::Click);
    else if (!Stato().Ascolta(ascoltaPressione) && Stato().Ascolta(ascoltaDoppio))
        Manda(Fatto::DblClick);
}

bool VistaDipinta::PremiTasto(const QKeyEvent& tasto) {
    if (VaNellaGriglia(*this, tasto.key())) return true;
    const bool spazio = tasto.key() == Qt::Key_Space || tasto.key() == Qt::Key_Select;
    if (!Azionabile() || (!spazio && !EInvio(tasto.key()))) return false;
    if (tasto.isAutoRepeat()) return true;
    if (!spazio && tasto.modifiers().testFlag(Qt::ShiftModifier) &&
        Stato().Ascolta(ascoltaDoppio)) {
        Manda(Fatto::DblClick);
    } else if (spazio || Stato().Ascolta(ascoltaPressione)) {
        Rinuncia();
        tastoGiu_ = tasto.key();
        if (Stato().Ascolta(ascoltaPressione)) MandaBottone(Fatto::MouseDown);
        Sporca();
    } else {
        Aziona();
    }
    return true;
}

bool VistaDipinta::LasciaTasto(const QKeyEvent& tasto) {
    if (!tastoGiu_ || tasto.key() != tastoGiu_) return false;
    if (tasto.isAutoRepeat()) return true;
    Rinuncia();
    Sporca();
    Compi();
    return true;
}

void VistaDipinta::Rinuncia() {
    if (std::exchange(tastoGiu_, 0) != 0 && Stato().Ascolta(ascoltaPressione))
        MandaBottone(Fatto::MouseUp);
}

bool VistaDipinta::Insieme(const Vista& altra) const {
    const QString griglia = GrigliaDi(Stato());
    return !griglia.isEmpty() && altra.Padre() == Padre() && GrigliaDi(altra.Stato()) == griglia;
}

Vista& VistaDipinta::Ingresso() {
    const auto griglia = Griglia(*this);
    const auto segnalata = std::find_if(griglia.begin(), griglia.end(),
                                        [](const VistaDipinta* v) { return v->segnalata_; });
    if (segnalata != griglia.end()) return **segnalata;
    return griglia.empty() ? *this : *griglia.front();
}

void VistaDipinta::Segnala() {
    for (VistaDipinta* vicina : Griglia(*this))
        vicina->segnalata_ = vicina == this;
}

std::optional<bool> VistaDipinta::Spuntata() const {
    if (!Stato().Ha("aiuto")) return {};
    return Stato().Caption.empty();
}

bool VistaDipinta::Svelata() const {
    return Stato().Ha("risposta") && Stato().Ha("pulsante") && Stato().BackColor == coloreSvelato;
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
    DiCambiato(nome);
    if (nome == &Valori::ToolTipText) return;
    Sporca();
    if (nome != &Valori::Visible && nome != &Valori::Enabled && nome != &Valori::Ascolti) return;
    FacciaDove().Controlla();
}

void VistaDipinta::DiCambiato(Nome nome) {
    if (!QAccessible::isActive()) return;
    if (ENome(nome)) Di(QAccessible::DescriptionChanged, *this);
    if (nome == &Valori::Enabled) DiStato(*this, [](auto& stato) { stato.disabled = true; });
    if (std::exchange(spuntataDetta_, Spuntata()) != Spuntata())
        DiStato(*this, [](auto& stato) { stato.checked = true; });
    if (std::exchange(svelataDetta_, Svelata()) != Svelata()) Di(QAccessible::Selection, *this);
    if (nome != &Valori::Visible) return;
    Di(SiVede() ? QAccessible::ObjectShow : QAccessible::ObjectHide, *this);
    if (Stato().Ha("annunciato")) Annuncia(*this);
    for (const Vista* figlia : Figlie())
        if (figlia->Stato().Ha("annunciato")) Annuncia(*figlia);
}

void VistaDipinta::Riscala() {
    if (faccia_) faccia_->update();
}

void VistaDipinta::NomeCambiato() {
    Di(QAccessible::NameChanged, *this);
    Vista::NomeCambiato();
}

}  // namespace corvana
