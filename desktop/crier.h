// Has a screen reader say at once what has changed in a window, wherever the focus is: the notes on
// the staff, and the controls of the style word "annunciato". All that changes in one go is one
// message. Costs nothing while nobody listens. GUI thread.
#pragma once

#include <QAccessibleInterface>
#include <QObject>
#include <vector>

namespace corvana {

class Faccia;
class Vista;

class Banditore final : public QObject {
public:
    /// Speaks for the window of that ground.
    explicit Banditore(Faccia& terra) : terra_(terra) {}
    Banditore(const Banditore&) = delete;
    Banditore& operator=(const Banditore&) = delete;
    ~Banditore() override;

    /// What it says by the time that the loop comes round is told, if it is to be seen then.
    void Annuncia(const Vista& vista);
    /// What was told last.
    const QString& Detto() const { return detto_; }
    /// The message, as something in the window; made when first asked for.
    QAccessibleInterface& PerLettore();

private:
    void Di();

    Faccia& terra_;
    std::vector<const Vista*> daDire_;
    QString detto_;
    unsigned lettore_ = 0;  ///< as the toolkit knows it, 0 for not yet
};

}  // namespace corvana
