// A value of a control that tells the control when it changes, and is silent when it is set to what
// it holds already. Logic thread.
#pragma once

#include <concepts>
#include <type_traits>
#include <utility>

#include "forms/value.h"

namespace corvana {

struct Controllo;

/// What all properties have in common, so that a control can list them.
class ProprietaBase {
public:
    ProprietaBase(Controllo& padrone, Nome nome);
    ProprietaBase(const ProprietaBase&) = delete;
    ProprietaBase& operator=(const ProprietaBase&) = delete;
    virtual ~ProprietaBase() = default;

    Nome NomeProprieta() const { return nome_; }
    virtual Valore Leggi() const = 0;

protected:
    void Annuncia();

private:
    Controllo& padrone_;
    Nome nome_;
};

/// The one that `Campo` names, `&Valori::Caption`.
template <auto Campo>
class Proprieta final : public ProprietaBase {
public:
    using Tipo = std::remove_cvref_t<decltype(std::declval<Valori>().*Campo)>;

    explicit Proprieta(Controllo& padrone) : ProprietaBase(padrone, Campo) {}

    Proprieta& operator=(Tipo nuovo) {
        if (nuovo == valore_) return *this;
        valore_ = std::move(nuovo);
        Annuncia();
        return *this;
    }
    operator const Tipo&() const { return valore_; }
    const Tipo& operator()() const { return valore_; }
    const Tipo* operator->() const { return &valore_; }
    Valore Leggi() const override { return valore_; }

    /// Takes what the user has made of it on the screen; the face shows it already.
    void PonDaUtente(Tipo nuovo) { valore_ = std::move(nuovo); }

private:
    Tipo valore_ = Valori().*Campo;
};

template <auto Campo>
bool operator==(const Proprieta<Campo>& a,
                const std::same_as<typename Proprieta<Campo>::Tipo> auto& b) {
    return a() == b;
}

}  // namespace corvana
