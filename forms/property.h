// A value of a control that tells the control when it changes, and is silent when it is set to what
// it holds already. Logic thread.
#pragma once

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

template <class T, Nome N>
class Proprieta final : public ProprietaBase {
public:
    Proprieta(Controllo& padrone, T iniziale)
        : ProprietaBase(padrone, N), valore_(std::move(iniziale)) {}

    Proprieta& operator=(T nuovo) {
        if (nuovo == valore_) return *this;
        valore_ = std::move(nuovo);
        Annuncia();
        return *this;
    }
    operator const T&() const { return valore_; }
    const T& operator()() const { return valore_; }
    const T* operator->() const { return &valore_; }
    Valore Leggi() const override { return valore_; }

    /// Takes what the user has made of it on the screen; the face shows it already.
    void PonDaUtente(T nuovo) { valore_ = std::move(nuovo); }

private:
    T valore_;
};

template <class T, Nome N>
bool operator==(const Proprieta<T, N>& a, const T& b) {
    return a() == b;
}

}  // namespace corvana
