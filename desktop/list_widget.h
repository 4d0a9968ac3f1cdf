// The rows of a list that stands in its window. GUI thread.
#pragma once

#include <QListWidget>
#include <functional>

#include "forms/value.h"

namespace corvana {

class RigaAlta;
class Vista;

class Elenco : public QListWidget {
public:
    /// `scelta` hears of the row that the user has chosen.
    Elenco(const Vista& vista, std::function<void(int)> scelta, QWidget& padre);

    /// Letters are shortcuts of the program, and don't search the rows.
    void keyboardSearch(const QString&) override {}
    /// As many whole rows as there is room for; what is left over lies above and below them.
    void Adatta();

    /// What the logic says of the selection. Nothing is told back.
    virtual void PonScelta(int riga, const NumeriRiga& scelte);
    /// The rows that are selected, where several can be.
    virtual NumeriRiga Scelte() const { return {}; }

protected:
    bool event(QEvent* evento) override;
    /// What a double click does to the chosen row, Enter does too.
    void keyPressEvent(QKeyEvent* tasto) override;
    void mousePressEvent(QMouseEvent* mouse) override;
    void mouseReleaseEvent(QMouseEvent* mouse) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

    void Riferisci() const;
    /// The row has changed under a key, or for a screen reader.
    virtual void RigaCambiata();

    bool preme_ = false;  ///< a button of the mouse is down on it

private:
    const Vista& vista_;
    std::function<void(int)> scelta_;
    RigaAlta* riga_;
};

}  // namespace corvana
