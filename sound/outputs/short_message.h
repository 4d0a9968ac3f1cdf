// A packed MIDI message taken apart as a device needs it. Data may have left the range of a byte on
// the way; here it is cut to the seven bits that a device understands.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace corvana {

struct MessaggioCorto {
    std::uint8_t stato = 0;  ///< 0x80 to 0xEF
    std::uint8_t dato1 = 0;  ///< 0 to 127
    std::uint8_t dato2 = 0;  ///< 0 to 127; 0 where the message has no second byte of data
    int lunghezza = 3;       ///< bytes, with the status

    int Tipo() const { return stato & 0xF0; }
    int Canale() const { return stato & 0x0F; }
    std::array<std::uint8_t, 3> Byte() const { return {stato, dato1, dato2}; }
};

constexpr int tipoNotaOff = 0x80;
constexpr int tipoNotaOn = 0x90;
constexpr int tipoPressioneNota = 0xA0;
constexpr int tipoControllo = 0xB0;
constexpr int tipoProgramma = 0xC0;
constexpr int tipoPressioneCanale = 0xD0;
constexpr int tipoIntonazione = 0xE0;

constexpr int canaliMidi = 16;
constexpr int controlloZittisci = 120;  ///< all sound off
constexpr int controlloAzzera = 121;    ///< all controllers off

/// Nothing for a message whose status isn't of a channel, which no output passes on.
constexpr std::optional<MessaggioCorto> Decodifica(std::uint32_t parola) {
    const auto stato = static_cast<std::uint8_t>(parola & 0xFF);
    if (stato < 0x80 || stato >= 0xF0) return std::nullopt;
    const int tipo = stato & 0xF0;
    const bool breve = tipo == tipoProgramma || tipo == tipoPressioneCanale;
    const auto dato1 = static_cast<std::uint8_t>((parola >> 8) & 0x7F);
    const auto dato2 = static_cast<std::uint8_t>(breve ? 0 : (parola >> 16) & 0x7F);
    return MessaggioCorto{stato, dato1, dato2, breve ? 2 : 3};
}

/// The message of a controller on the channel of index `canale`, packed.
constexpr std::uint32_t PaccoControllo(int canale, int controllo) {
    return static_cast<std::uint32_t>(tipoControllo | canale | (controllo << 8));
}

}  // namespace corvana
