// Has a screen reader say at once what has changed in a window, wherever the focus is: the notes on
// the staff, and the controls of the style word "annunciato". All that changes in one go is one
// message. Costs nothing while nobody listens. GUI thread.
#pragma once

#include <QAccessibleInterface>
#include <QObject>
#include <array>
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
    /// The messages, as things in the window. A reader asks for the words of one some time after it
    /// was told of it: the last few stay as they are.
    std::vector<QAccessibleInterface*> PerLettore() const;

private:
    static constexpr std::size_t ultimi = 8;

    void Di();
    unsigned Nuovo(const QString& detto);

    Faccia& terra_;
    std::vector<const Vista*> daDire_;
    std::array<unsigned, ultimi> lettori_{};  ///< as the toolkit knows them, 0 for not yet
    std::size_t prossimo_ = 0;                ///< the one that has said its message long ago
};

}  // namespace corvana
