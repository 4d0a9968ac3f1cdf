#include "desktop/keyboard.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>
#include <utility>

#include "desktop/face.h"
#include "desktop/key_map.h"
#include "forms/keys.h"

namespace corvana {

namespace {

int Codice(const QKeyEvent& tasto) {
    return CodiceTasto(tasto.nativeScanCode(), tasto.key(),
                       tasto.modifiers().testFlag(Qt::KeypadModifier));
}

Evento FattoTasto(Fatto fatto, int codice, const QKeyEvent& tasto) {
    Evento evento;
    evento.fatto = fatto;
    evento.codice = codice;
    evento.shift = BitMaiuscole(tasto.modifiers());
    evento.ripetuto = tasto.isAutoRepeat();
    return evento;
}

/// Without the number lock a figure of the keypad would also move the focus or a slider.
bool SoloRisposta(int codice) {
    const bool cifra = codice >= vk::tastierino0 && codice <= vk::tastierino0 + 9;
    return cifra && !qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

bool EFreccia(int codice) {
    return codice == vk::sinistra || codice == vk::su || codice == vk::destra || codice == vk::giu;
}

bool UsaFrecce(const QWidget& widget) {
    if (const auto* faccia = dynamic_cast<const Faccia*>(&widget))
        return faccia->Fuoco() && faccia->Fuoco()->UsaFrecce();
    return qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget);
}

}  // namespace

Tastiera::Tastiera() {
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            [this](QWindow* nuova) { CambiaFinestra(nuova); });
}

void Tastiera::Segui(QWindow& finestra, Mittente mittente) {
    finestra.installEventFilter(this);
    finestre_.insert_or_assign(&finestra, mittente);
    connect(&finestra, &QObject::destroyed, this,
            [this](QObject* morta) { finestre_.erase(morta); });
    if (QGuiApplication::focusWindow() == &finestra) attiva_ = &finestra;
}

void Tastiera::CambiaFinestra(QWindow* nuova) {
    if (attiva_ && attiva_ != nuova) Perdi();
    attiva_ = finestre_.contains(nuova) ? nuova : nullptr;
}

void Tastiera::Perdi() {
    mandati_.reset();
    if (!finestre_.empty()) finestre_.begin()->second.Manda(0, Fatto::FuocoPerso);
}

bool Tastiera::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto finestra = finestre_.find(oggetto);
    if (finestra == finestre_.end()) return false;
    // Of the other kinds it is no key event.
    const auto tasto = [evento]() -> const QKeyEvent& {
        return static_cast<const QKeyEvent&>(*evento);
    };
    switch (evento->type()) {
        case QEvent::ShortcutOverride: Annuncia(tasto()); return false;
        case QEvent::KeyPress: return Premi(finestra->second, tasto());
        case QEvent::KeyRelease: Lascia(finestra->second, tasto()); return false;
        default: return false;
    }
}

/// Whoever clicked it still has the arrows for the program.
bool Tastiera::DelControllo(int codice) const {
    const QWidget* fuoco = QApplication::focusWidget();
    return EFreccia(codice) && fuoco && fuoco == raggiunto_ && UsaFrecce(*fuoco);
}

void Tastiera::Annuncia(const QKeyEvent& tasto) {
    nelMenu_ = QApplication::activePopupWidget() ? Codice(tasto) : 0;
}

bool Tastiera::Premi(const Mittente& mittente, const QKeyEvent& tasto) {
    const int codice = Codice(tasto);
    const bool fuMenu = codice == std::exchange(nelMenu_, 0);
    if (QApplication::activePopupWidget()) return false;
    if (codice <= 0 || codice >= static_cast<int>(mandati_.size())) return false;
    // The mere announcement of it has closed a drop-down list: that was all its work.
    if (fuMenu) return true;
    if (DelControllo(codice)) return false;
    // One that went down in a menu, which it may have closed, isn't pressed here by being held.
    if (tasto.isAutoRepeat() && !mandati_.test(static_cast<std::size_t>(codice))) return false;
    mandati_.set(static_cast<std::size_t>(codice));
    mittente.Manda(FattoTasto(Fatto::KeyDown, codice, tasto));
    return SoloRisposta(codice);
}

void Tastiera::Lascia(const Mittente& mittente, const QKeyEvent& tasto) {
    const int codice = Codice(tasto);
    if (tasto.isAutoRepeat() || codice <= 0 || codice >= static_cast<int>(mandati_.size())) return;
    // One that went down elsewhere, in a menu or in another program, is nobody's release here.
    if (!mandati_.test(static_cast<std::size_t>(codice))) return;
    mandati_.reset(static_cast<std::size_t>(codice));
    mittente.Manda(FattoTasto(Fatto::KeyUp, codice, tasto));
}

}  // namespace corvana
