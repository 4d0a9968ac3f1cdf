// A list in which several rows can be selected: with the mouse and Shift or Ctrl, and with the
// arrow keys, Shift, Ctrl and Space, as lists of files do everywhere. GUI thread.
#pragma once

#include "desktop/list_widget.h"

namespace corvana {

class ElencoMultiplo final : public Elenco {
public:
    ElencoMultiplo(const Vista& vista, std::function<void(int)> scelta, QWidget& padre);

    void PonScelta(int riga, const NumeriRiga& scelte) override;
    NumeriRiga Scelte() const override;
    /// A double click begins, of which the logic hears next. On one of several rows it means them
    /// all, though its first click has left that one alone.
    void Raddoppia(const QMouseEvent& mouse);

protected:
    void keyPressEvent(QKeyEvent* tasto) override;
    void mousePressEvent(QMouseEvent* mouse) override;
    void RigaCambiata() override {}

private:
    void SceltaCambiata();

    NumeriRiga prima_;     ///< what was selected before the last press
    quint64 premuto_ = 0;  ///< when that was
    bool batte_ = false;   ///< a key is being worked off
};

}  // namespace corvana
