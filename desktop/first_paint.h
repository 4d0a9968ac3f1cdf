// When the program's first window has been painted: what can wait until then leaves it the machine.
// GUI thread, but for `Aspetta`.
#pragma once

#include <QObject>
#include <chrono>
#include <future>

class QWindow;

namespace corvana {

class PrimaPittura final : public QObject {
public:
    /// The window whose painting it is; the first one counts.
    void Segui(QWindow& finestra);
    /// Nobody shall wait any longer.
    void Rinuncia();
    /// Returns when the window has been painted, or after `pazienza`. Any thread.
    void Aspetta(std::chrono::milliseconds pazienza) const { avvenuta_.wait_for(pazienza); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    bool seguita_ = false;
    bool detta_ = false;
    std::promise<void> promessa_;
    const std::shared_future<void> avvenuta_{promessa_.get_future()};
};

}  // namespace corvana
