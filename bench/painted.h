// When a window has shown what was asked of it: hears every painting of the process. GUI thread.
#pragma once

#include <QObject>
#include <functional>

namespace corvana::misura {

class Pitture final : public QObject {
public:
    Pitture();

    /// Calls `comincia` and runs the Qt loop until a widget has been painted of which `mostra`
    /// holds. Milliseconds from the one to the other.
    double Cronometra(const std::function<void()>& comincia,
                      const std::function<bool(const QWidget&)>& mostra);
    /// The same until the last such painting, after which none came for a tenth of a second.
    double CronometraTutte(const std::function<void()>& comincia,
                           const std::function<bool(const QWidget&)>& mostra);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    std::function<bool(const QWidget&)> mostra_;
    bool dipinta_ = false;
};

}  // namespace corvana::misura
