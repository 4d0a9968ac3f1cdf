// The melody window, for tests that load files into it.
#pragma once

#include <map>
#include <string>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

struct BancoCarica : BancoComposer {
    using BancoComposer::BancoComposer;

    /// Loads the file as a click on the button does; returns when its play has ended.
    void Carica(const std::string& byte);
    void Carica(const Linee& linee) { Carica(FileDi(linee)); }
    /// Loads the two voices with some lines, counted from 1, changed.
    void CaricaCon(const std::map<std::size_t, std::string>& cambi);
    const VoceMelodia& V(std::size_t voce) const { return finestra.stato.melodia.voci[voce]; }
};

/// Over another melody, with files that can't be loaded.
struct BancoGuasti : BancoCarica {
    BancoGuasti();
    /// A note was struck.
    bool HaSuonato() const;
    /// The load failed: the one box, the name, nothing played, still loading.
    void EsceGuasto(const std::string& box) const;
};

inline const std::string guastoFine = "62\r\nInput past end of file";
inline const std::string nonNumero = "13\r\nType mismatch";
inline const std::string troppo = "6\r\nOverflow";
inline const std::string nessunElemento = "9\r\nSubscript out of range";
inline const std::string valoreErrato = "380\r\nInvalid property value";

}  // namespace corvana::prova
