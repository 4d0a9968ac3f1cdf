// What a screen reader knows of a face: the controls that it paints, with their names, roles and
// places, among the widgets that stand on it. GUI thread.
#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAccessibleWidget>

namespace corvana {

class Faccia;
class VistaDipinta;

/// A painted control. Made by its view, which outlives it.
class Accessibile final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    explicit Accessibile(VistaDipinta& vista) : vista_(vista) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int indice) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* figlio) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text quale) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType quale) override;

    QStringList actionNames() const override;
    void doAction(const QString& nome) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    VistaDipinta& vista_;
};

/// The face itself.
class AccessibileFaccia final : public QAccessibleWidget {
public:
    explicit AccessibileFaccia(Faccia& faccia);

    QAccessibleInterface* child(int indice) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* figlio) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    /// What it paints has the focus, never itself.
    QAccessible::State state() const override;

private:
    Faccia& faccia_;
};

/// Has the toolkit tell screen readers of faces; once, before the first window.
void PreparaLettori();

/// Tell screen readers, where there are any.
void DiFuoco(VistaDipinta& vista);
void Di(QAccessible::Event cosa, VistaDipinta& vista);
/// `quale` marks the one state that changed: the bridge to the readers takes no second one.
void DiStato(VistaDipinta& vista, void (*quale)(QAccessible::State&));

}  // namespace corvana
