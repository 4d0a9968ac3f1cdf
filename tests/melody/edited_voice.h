// Voices as the editors find them: their texts, split. Any thread.
#pragma once

#include <array>
#include <string>

#include "melody/mel_reader.h"
#include "melody/tokens.h"

namespace corvana::prova {

inline VoceMelodia VoceSpezzata(const std::string& note, const std::string& durate,
                                const std::string& attributi) {
    VoceMelodia voce;
    voce.testoNote = note;
    voce.testoDurate = durate;
    voce.testoAttributi = attributi;
    Spezza(voce);
    return voce;
}

inline VoceMelodia TreNote() {
    return VoceSpezzata("60;62;64;", "1;0.5;2;", "n;s;t;");
}

inline TestiVoce TestiDellaVoce(const VoceMelodia& voce) {
    return {voce.testoNote, voce.testoDurate, voce.testoAttributi};
}

}  // namespace corvana::prova
