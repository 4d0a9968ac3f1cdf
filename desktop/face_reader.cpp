#include "desktop/face_reader.h"

#include <QWindow>
#include <algorithm>

#include "desktop/face.h"
#include "desktop/face_layers.h"

namespace corvana {

namespace {

using Interfacce = std::vector<QAccessibleInterface*>;

/// Of all that lies in the control, what is something to a screen reader.
Interfacce Dette(const VistaDipinta& vista) {
    Interfacce dette;
    for (Vista* figlia : vista.Figlie())
        if (QWidget* widget = figlia->Widget()) {
            dette.push_back(QAccessible::queryAccessibleInterface(widget));
        } else if (auto* dipinta = dynamic_cast<VistaDipinta*>(figlia)) {
            if (dipinta->Detta()) dette.push_back(&dipinta->PerLettore());
        }
    return dette;
}

int Indice(const Interfacce& dette, const QAccessibleInterface* quale) {
    const auto e = std::find(dette.begin(), dette.end(), quale);
    return e == dette.end() ? -1 : static_cast<int>(e - dette.begin());
}

QAccessibleInterface* Di(const Interfacce& dette, int indice) {
    const auto quale = static_cast<std::size_t>(indice);
    return indice >= 0 && quale < dette.size() ? dette[quale] : nullptr;
}

QAccessibleInterface* Al(const Interfacce& dette, int x, int y) {
    // The last ones lie over the others.
    const auto e = std::find_if(dette.rbegin(), dette.rend(), [&](const QAccessibleInterface* i) {
        return !i->state().invisible && i->rect().contains(x, y);
    });
    if (e == dette.rend()) return nullptr;
    QAccessibleInterface* dentro = (*e)->childAt(x, y);
    return dentro ? dentro : *e;
}

QAccessible::Role Ruolo(const VistaDipinta& vista) {
    if (vista.Azionabile())
        return vista.Spuntata() ? QAccessible::CheckBox : QAccessible::PushButton;
    switch (vista.Origine().tipo) {
        case Genere::Figura: return vista.Fermata() ? QAccessible::Grouping : QAccessible::Graphic;
        case Genere::Cornice: return QAccessible::Grouping;
        default: return QAccessible::StaticText;
    }
}

void Di(VistaDipinta& vista, QAccessible::Event cosa) {
    if (!QAccessible::isActive() || !vista.Detta()) return;
    QAccessibleEvent evento(&vista.PerLettore(), cosa);
    QAccessible::updateAccessibility(&evento);
}

}  // namespace

QWindow* Accessibile::window() const {
    return vista_.FacciaDove().window()->windowHandle();
}

QAccessibleInterface* Accessibile::parent() const {
    auto& sopra = const_cast<VistaDipinta&>(*vista_.Sotto());
    if (QWidget* faccia = sopra.Widget()) return QAccessible::queryAccessibleInterface(faccia);
    return &sopra.PerLettore();
}

QAccessibleInterface* Accessibile::child(int indice) const {
    return Di(Dette(vista_), indice);
}

int Accessibile::childCount() const {
    return static_cast<int>(Dette(vista_).size());
}

int Accessibile::indexOfChild(const QAccessibleInterface* figlio) const {
    return Indice(Dette(vista_), figlio);
}

QAccessibleInterface* Accessibile::childAt(int x, int y) const {
    return Al(Dette(vista_), x, y);
}

QString Accessibile::text(QAccessible::Text quale) const {
    const QString& nome = vista_.NomeDetto();
    if (quale == QAccessible::Name) return nome;
    const QString consiglio = InQt(vista_.Stato().ToolTipText).trimmed();
    const bool altro = quale == QAccessible::Description && consiglio != nome.trimmed();
    return altro ? consiglio : QString();
}

QRect Accessibile::rect() const {
    const QRect area = vista_.Area();
    return {vista_.FacciaDove().mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::Role Accessibile::role() const {
    return Ruolo(vista_);
}

QAccessible::State Accessibile::state() const {
    QAccessible::State stato;
    stato.invisible = !vista_.InVista();
    stato.disabled = !vista_.Abilitata();
    stato.focusable = vista_.Fermata();
    const VistaDipinta* fuoco = vista_.FacciaDove().Fuoco();
    stato.focused = fuoco && &fuoco->DovEIlFuoco() == &vista_;
    stato.pressed = vista_.PremutaDaTasto();
    stato.checkable = vista_.Spuntata().has_value();
    stato.checked = vista_.Spuntata().value_or(false);
    stato.selectable = vista_.Stato().Ha("risposta");
    stato.selected = vista_.Svelata();
    return stato;
}

void* Accessibile::interface_cast(QAccessible::InterfaceType quale) {
    if (quale != QAccessible::ActionInterface || !vista_.Azionabile()) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
}

QStringList Accessibile::actionNames() const {
    if (!vista_.Azionabile() || !vista_.Usabile()) return {};
    return {pressAction(), setFocusAction()};
}

void Accessibile::doAction(const QString& nome) {
    if (!vista_.Usabile()) return;
    if (nome == setFocusAction()) vista_.PrendiFuoco(Qt::OtherFocusReason);
    if (nome == pressAction()) vista_.Aziona();
}

AccessibileFaccia::AccessibileFaccia(Faccia& faccia)
    : QAccessibleWidget(&faccia, QAccessible::Grouping), faccia_(faccia) {}

QAccessibleInterface* AccessibileFaccia::child(int indice) const {
    return Di(Dette(faccia_.Terra()), indice);
}

int AccessibileFaccia::childCount() const {
    return static_cast<int>(Dette(faccia_.Terra()).size());
}

int AccessibileFaccia::indexOfChild(const QAccessibleInterface* figlio) const {
    return Indice(Dette(faccia_.Terra()), figlio);
}

QAccessibleInterface* AccessibileFaccia::childAt(int x, int y) const {
    return Al(Dette(faccia_.Terra()), x, y);
}

QAccessibleInterface* AccessibileFaccia::focusChild() const {
    if (VistaDipinta* fuoco = faccia_.Fuoco())
        return &const_cast<VistaDipinta&>(fuoco->DovEIlFuoco()).PerLettore();
    return QAccessibleWidget::focusChild();
}

void PreparaLettori() {
    QAccessible::installFactory([](const QString&, QObject* oggetto) -> QAccessibleInterface* {
        auto* faccia = dynamic_cast<Faccia*>(oggetto);
        return faccia ? new AccessibileFaccia(*faccia) : nullptr;
    });
}

void DiFuoco(VistaDipinta& vista) {
    Di(const_cast<VistaDipinta&>(vista.DovEIlFuoco()), QAccessible::Focus);
}

void DiNomeCambiato(VistaDipinta& vista) {
    Di(vista, QAccessible::NameChanged);
}

void DiStatoCambiato(VistaDipinta& vista) {
    if (!QAccessible::isActive() || !vista.Detta()) return;
    QAccessible::State cambiati;
    cambiati.disabled = cambiati.invisible = cambiati.checked = cambiati.selected = true;
    QAccessibleStateChangeEvent evento(&vista.PerLettore(), cambiati);
    QAccessible::updateAccessibility(&evento);
}

}  // namespace corvana
