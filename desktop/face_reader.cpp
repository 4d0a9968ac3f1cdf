#include "desktop/face_reader.h"

#include <QWindow>
#include <algorithm>

#include "desktop/face.h"
#include "desktop/face_layers.h"

namespace corvana {

namespace {

using Interfacce = std::vector<QAccessibleInterface*>;

void Raccogli(const VistaDipinta& vista, Interfacce& dette) {
    for (Vista* figlia : vista.Figlie())
        if (QWidget* widget = figlia->Widget()) {
            dette.push_back(QAccessible::queryAccessibleInterface(widget));
        } else if (auto* dipinta = dynamic_cast<VistaDipinta*>(figlia)) {
            if (dipinta->Detta())
                dette.push_back(&dipinta->PerLettore());
            else
                Raccogli(*dipinta, dette);
        }
}

/// Of all that lies in the control, what is something to a screen reader. What has nothing to say
/// gives way to what lies in it.
Interfacce Dette(const VistaDipinta& vista) {
    Interfacce dette;
    Raccogli(vista, dette);
    return dette;
}

/// Of a face: at last what is told of the window, where it is the window's ground.
Interfacce DetteDi(Faccia& faccia) {
    Interfacce dette = Dette(faccia.Terra());
    if (faccia.Terra().Padre()) return dette;
    const Interfacce messaggi = faccia.Voce().PerLettore();
    dette.insert(dette.end(), messaggi.begin(), messaggi.end());
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
        case Genere::Figura:
            return vista.Stato().Ha("tastiera") ? QAccessible::Grouping : QAccessible::Graphic;
        case Genere::Cornice: return QAccessible::Grouping;
        default: return QAccessible::StaticText;
    }
}

}  // namespace

QWindow* Accessibile::window() const {
    return vista_.FacciaDove().window()->windowHandle();
}

QAccessibleInterface* Accessibile::parent() const {
    const VistaDipinta* sopra = vista_.Sotto();
    while (!sopra->Widget() && !sopra->Detta())
        sopra = sopra->Sotto();
    if (QWidget* faccia = sopra->Widget()) return QAccessible::queryAccessibleInterface(faccia);
    return &const_cast<VistaDipinta*>(sopra)->PerLettore();
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
    if (quale == QAccessible::Name) return vista_.Lettura();
    return quale == QAccessible::Description ? vista_.Dettaglio() : QString();
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
    stato.selectable = vista_.Svelabile();
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
    return Di(DetteDi(faccia_), indice);
}

int AccessibileFaccia::childCount() const {
    return static_cast<int>(DetteDi(faccia_).size());
}

int AccessibileFaccia::indexOfChild(const QAccessibleInterface* figlio) const {
    return Indice(DetteDi(faccia_), figlio);
}

QAccessibleInterface* AccessibileFaccia::childAt(int x, int y) const {
    return Al(Dette(faccia_.Terra()), x, y);
}

QAccessibleInterface* AccessibileFaccia::focusChild() const {
    if (VistaDipinta* fuoco = faccia_.Fuoco())
        return &const_cast<VistaDipinta&>(fuoco->DovEIlFuoco()).PerLettore();
    return QAccessibleWidget::focusChild();
}

QAccessible::State AccessibileFaccia::state() const {
    QAccessible::State stato = QAccessibleWidget::state();
    stato.focusable = stato.focused = false;
    return stato;
}

void PreparaLettori() {
    QAccessible::installFactory([](const QString&, QObject* oggetto) -> QAccessibleInterface* {
        auto* faccia = dynamic_cast<Faccia*>(oggetto);
        return faccia ? new AccessibileFaccia(*faccia) : nullptr;
    });
}

void Di(QAccessible::Event cosa, VistaDipinta& vista) {
    if (!QAccessible::isActive() || !vista.Detta()) return;
    QAccessibleEvent evento(&vista.PerLettore(), cosa);
    QAccessible::updateAccessibility(&evento);
}

void DiFuoco(VistaDipinta& vista) {
    Di(QAccessible::Focus, const_cast<VistaDipinta&>(vista.DovEIlFuoco()));
}

void DiStato(VistaDipinta& vista, void (*quale)(QAccessible::State&)) {
    if (!QAccessible::isActive() || !vista.Detta()) return;
    QAccessible::State cambiato;
    quale(cambiato);
    QAccessibleStateChangeEvent evento(&vista.PerLettore(), cambiato);
    QAccessible::updateAccessibility(&evento);
}

}  // namespace corvana
