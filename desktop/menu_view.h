// An entry of the menu bar, or of a menu. One that has entries of its own is a menu; opening it is
// a click on it. A context menu stands in no bar. GUI thread.
#pragma once

#include <functional>

#include "desktop/view.h"

class QAction;
class QMenu;
class QMenuBar;

namespace corvana {

/// What the entries of one window share.
struct Menu {
    QMenuBar& sbarra;
    /// A menu or a drop-down list opens: no key is held any more as far as the window is concerned.
    std::function<void()> apertura;
};

class VistaVoce final : public Vista {
public:
    /// `padre` is the entry that it lies under, or null for one of the bar.
    VistaVoce(const CopiaControllo& copia, Mittente mittente, const Menu& menu, VistaVoce* padre,
              bool haVoci);

    QAction& Azione() const { return *azione_; }
    /// Of a menu: opens it there on the screen.
    void Apri(QPoint dove);

protected:
    void Rinfresca(Nome nome) override;

private:
    void Crea(QMenuBar& sbarra, VistaVoce* padre, bool haVoci);

    QMenu* menu_ = nullptr;
    QAction* azione_ = nullptr;
};

}  // namespace corvana
