#include "desktop/crier.h"

#include <QAccessible>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/face.h"

namespace corvana {

namespace {

/// A message that has no place on the screen.
class Messaggio final : public QAccessibleInterface {
public:
    Messaggio(QString detto, Faccia& terra) : detto_(std::move(detto)), terra_(terra) {}

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
        return quale == QAccessible::Name ? detto_ : QString();
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
    QString detto_;
    Faccia& terra_;
};

QString Frase(const Vista& vista) {
    const QString nome = vista.Lettura().trimmed(), dettaglio = vista.Dettaglio();
    return dettaglio.isEmpty() ? nome : nome + QLatin1String(", ") + dettaglio;
}

}  // namespace

Banditore::~Banditore() {
    for (const unsigned lettore : lettori_)
        if (lettore) QAccessible::deleteAccessibleInterface(lettore);
}

std::vector<QAccessibleInterface*> Banditore::PerLettore() const {
    std::vector<QAccessibleInterface*> messaggi;
    for (const unsigned lettore : lettori_)
        if (lettore) messaggi.push_back(QAccessible::accessibleInterface(lettore));
    return messaggi;
}

unsigned Banditore::Nuovo(const QString& detto) {
    unsigned& lettore = lettori_.at(prossimo_);
    prossimo_ = (prossimo_ + 1) % ultimi;
    if (lettore) QAccessible::deleteAccessibleInterface(lettore);
    return lettore = QAccessible::registerAccessibleInterface(new Messaggio(detto, terra_));
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
    QAccessibleEvent evento(
        QAccessible::accessibleInterface(Nuovo(frasi.join(QLatin1String(". ")))),
        QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&evento);
}

}  // namespace corvana
