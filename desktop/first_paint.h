// When the program's first window has been painted: what can wait until then leaves it the machine.
// GUI thread, but for `Aspetta`.
#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <future>
#include <utility>

class QWindow;

namespace corvana {

class PrimaPittura final : public QObject {
public:
    /// The window whose painting it is; the first one counts.
    void Segui(QWindow& finestra);
    /// What the GUI thread does when it has been painted. To be set before.
    void PonPoi(std::function<void()> poi) { poi_ = std::move(poi); }
    /// It is done, or something else comes first.
    void Avvenuta();
    /// Nobody shall wait any longer.
    void Rinuncia();
    /// Returns when the window has been painted, or after `pazienza`. Any thread.
    void Aspetta(std::chrono::milliseconds pazienza) const { avvenuta_.wait_for(pazienza); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    bool seguita_ = false;
    bool detta_ = false;
    std::function<void()> poi_;
    std::promise<void> promessa_;
    const std::shared_future<void> avvenuta_{promessa_.get_future()};
};

}  // namespace corvana
