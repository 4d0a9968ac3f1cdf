// Where one window stands: it appears where it is told to, or else in the middle of the one
// beneath, always whole on the screen; where the platform tells, the logic hears where that is.
// GUI thread.
#pragma once

#include <QMainWindow>

#include "desktop/sender.h"
#include "forms/value.h"

namespace corvana {

class PostoFinestra {
public:
    PostoFinestra(QMainWindow& finestra, Mittente mittente)
        : finestra_(finestra), mittente_(mittente) {}

    /// Says where the window is to appear: at `detto`, in pixels, or else over `sotto`, which may
    /// be null.
    void Colloca(const QPoint* detto, const QMainWindow* sotto);
    /// The platform may have put the window somewhere.
    void Guarda();
    /// The logic wants it elsewhere.
    void Sposta(Nome nome, int twips);

private:
    QMainWindow& finestra_;
    Mittente mittente_;
    QPoint posto_;         ///< twips, as the logic knows it
    bool intera_ = false;  ///< it was made sure that it lies on the screen as a whole
};

}  // namespace corvana
