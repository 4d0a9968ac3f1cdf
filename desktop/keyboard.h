// Makes key events of the windows' keys: by place, one press and one release for each key, nothing
// while a menu or a drop-down list is open, no arrow that the control has a use for to which the
// Tab key has led, and never a release after the keyboard was lost. One for all windows, since a
// key can go down in one and up in another. GUI thread.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <bitset>
#include <functional>
#include <map>

#include "desktop/sender.h"

class QKeyEvent;
class QWindow;

namespace corvana {

class Tastiera final : public QObject {
public:
    Tastiera();

    /// Watches the native window until it is destroyed.
    void Segui(QWindow& finestra, Mittente mittente);
    /// The Tab key has led to that widget.
    void Raggiungi(QWidget* widget) { raggiunto_ = widget; }
    /// Tells the logic that no key is held any more.
    void Perdi();

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void Annuncia(const QKeyEvent& tasto);
    bool DelControllo(int codice) const;
    bool Premi(const Mittente& mittente, const QKeyEvent& tasto);
    void Lascia(const Mittente& mittente, const QKeyEvent& tasto);
    void CambiaFinestra(QWindow* nuova);

    std::map<QObject*, Mittente> finestre_;
    QPointer<QObject> attiva_;
    QPointer<QWidget> raggiunto_;
    std::bitset<256> mandati_;
    int nelMenu_ = 0;  ///< code of the key that goes down while a menu or a drop-down list is open
};

}  // namespace corvana
