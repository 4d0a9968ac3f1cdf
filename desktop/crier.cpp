#include "desktop/crier.h"

#include <QAccessible>
#include <QWindow>
#include <algorithm>

#include "desktop/face.h"

namespace corvana {

namespace {

/// A message that has no place on the screen.
class Messaggio final : public QAccessibleInterface {
public:
    Messaggio(const Banditore& banditore, Faccia& terra) : banditore_(banditore), terra_(terra) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return terra_.window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&terra_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text quale) const override {
        return quale == QAccessible::Name ? banditore_.Detto() : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override {
        QAccessible::State stato;
        stato.readOnly = true;
        return stato;
    }

private:
    const Banditore& banditore_;
    Faccia& terra_;
};

QString Frase(const Vista& vista) {
    const QString nome = vista.Lettura().trimmed(), dettaglio = vista.Dettaglio();
    return dettaglio.isEmpty() ? nome : nome + QLatin1String(", ") + dettaglio;
}

}  // namespace

Banditore::~Banditore() {
    if (lettore_) QAccessible::deleteAccessibleInterface(lettore_);
}

QAccessibleInterface& Banditore::PerLettore() {
    if (!lettore_)
        lettore_ = QAccessible::registerAccessibleInterface(new Messaggio(*this, terra_));
    return *QAccessible::accessibleInterface(lettore_);
}

void Banditore::Annuncia(const Vista& vista) {
    if (!QAccessible::isActive()) return;
    if (daDire_.empty())
        QMetaObject::invokeMethod(
            this, [this] { Di(); }, Qt::QueuedConnection);
    // What changes again is told where it changed last.
    std::erase(daDire_, &vista);
    daDire_.push_back(&vista);
}

void Banditore::Di() {
    QStringList frasi;
    for (const Vista* vista : std::exchange(daDire_, {}))
        if (vista->InVista() && !Frase(*vista).isEmpty()) frasi.append(Frase(*vista));
    if (frasi.isEmpty()) return;
    detto_ = frasi.join(QLatin1String(". "));
    for (const auto cosa : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
        QAccessibleEvent evento(&PerLettore(), cosa);
        QAccessible::updateAccessibility(&evento);
    }
}

}  // namespace corvana
