// Sees to it that nothing written is lost: whenever events were delivered it looks whether the
// melody shows as modified, and hands the guardian a copy when it differs from the last one.
// Without events it costs nothing. Logic thread.
#pragma once

#include <functional>
#include <optional>

#include "composer/composer_state.h"
#include "core/globals.h"
#include "melody/kept_melody.h"

namespace corvana {

class Salvaguardia {
public:
    /// Brings the copy up to the melody as it stands; true when it differed.
    using Copia = std::function<bool(MelodiaTenuta&)>;

    /// The state must outlive it. Without a guardian it does nothing.
    Salvaguardia(const Ambiente& ambiente, const StatoComposer& stato, Copia copia);
    Salvaguardia(const Salvaguardia&) = delete;
    Salvaguardia& operator=(const Salvaguardia&) = delete;
    ~Salvaguardia();

    /// Begins to look.
    void Inizia();
    /// What an earlier run left unsaved. What can't be read is put aside; `AvvisoIlleggibile` then
    /// tells of it.
    std::optional<MelodiaTenuta> Ritrova();
    /// What is to be told, once; empty when nothing is.
    std::string AvvisoIlleggibile() { return std::exchange(avviso_, {}); }

    void Guarda();
    /// The program ends, and nobody was asked: what isn't saved stays for the next time.
    void Conserva();
    /// The melody is left: nothing stays.
    void Finisci();

private:
    void Smetti();

    Ambiente a_;
    const StatoComposer& stato_;
    Copia copia_;
    MelodiaTenuta ultima_;  ///< the one that was handed over last
    bool tenuta_ = false;   ///< and that is kept
    bool guarda_ = false;
    std::string avviso_;
};

/// A record that is brought up to what it is a record of, field by field.
class Aggiornamento {
public:
    template <class Campo, class Valore>
    void operator()(Campo& campo, const Valore& valore) {
        if (campo == valore) return;
        campo = valore;
        cambiato_ = true;
    }
    bool Cambiato() const { return cambiato_; }

private:
    bool cambiato_ = false;
};

}  // namespace corvana
