// What a window does when something happens to one of its controls. It may be attached, replaced
// and taken away at any time, also while it runs; the control says at once whether anybody listens,
// since its face looks and is reached accordingly. Logic thread.
#pragma once

#include <functional>
#include <utility>

namespace corvana {

struct Controllo;

/// What all handlers have in common: the control, and the bit of `Controllo::Ascolti` that tells
/// whether there is one, 0 for none.
class GestoreBase {
protected:
    GestoreBase(Controllo& padrone, int ascolto) : padrone_(padrone), ascolto_(ascolto) {}
    void Annuncia(bool presente);

private:
    Controllo& padrone_;
    int ascolto_;
};

template <class... Argomenti>
class Gestore final : GestoreBase {
public:
    using Funzione = std::function<void(Argomenti...)>;

    explicit Gestore(Controllo& padrone, int ascolto = 0) : GestoreBase(padrone, ascolto) {}
    Gestore(const Gestore&) = delete;
    ~Gestore() = default;

    Gestore& operator=(Funzione funzione) {
        funzione_ = std::move(funzione);
        Annuncia(static_cast<bool>(funzione_));
        return *this;
    }
    /// The same as the other control does: `a.Click = b.Click = [] { ... }`.
    Gestore& operator=(const Gestore& altro) { return *this = altro.funzione_; }

    /// What is attached now, for who puts something before or after it.
    const Funzione& Attuale() const { return funzione_; }
    explicit operator bool() const { return static_cast<bool>(funzione_); }
    /// Nothing, when there is none.
    void operator()(Argomenti... argomenti) const {
        if (!funzione_) return;
        // It may take itself away while it runs.
        const Funzione funzione = funzione_;
        funzione(std::forward<Argomenti>(argomenti)...);
    }

private:
    Funzione funzione_;
};

}  // namespace corvana
