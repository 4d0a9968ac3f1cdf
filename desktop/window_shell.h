// The real window around a face: what the system does to it goes to whom it concerns. GUI thread.
#pragma once

#include <QMainWindow>
#include <functional>

namespace corvana {

/// What becomes of what happens to a window.
struct CasiFinestra {
    std::function<void()> chiusura;             ///< the user wants to close it
    std::function<void()> misura;               ///< the room for its face has changed
    std::function<void()> posto;                ///< it may stand elsewhere
    std::function<bool(bool avanti)> prossima;  ///< the Tab key; false where there is no stop
};

class Guscio final : public QMainWindow {
public:
    explicit Guscio(CasiFinestra casi);

    /// To be called when there is a native window.
    void Segui();

protected:
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    bool focusNextPrevChild(bool avanti) override { return casi_.prossima(avanti); }

private:
    CasiFinestra casi_;
};

}  // namespace corvana
