#include "tests/melody/kept_check.h"

#include "melody/kept_melody.h"

namespace corvana::prova {

namespace {

/// What is read is written as just those bytes.
bool Regge(std::string_view byte) {
    const auto letta = LeggiTenuta(byte);
    return !letta || ScriviTenuta(*letta) == byte;
}

}  // namespace

std::string ControllaTenuta(std::string_view byte) {
    if (!Regge(byte)) return "what is read is written otherwise";
    std::string corpo = "corvana kept melody 1\n" + std::string(byte);
    corpo += SommaTenuta(corpo);
    return Regge(corpo) ? "" : "fields under a right checksum are written otherwise";
}

}  // namespace corvana::prova
