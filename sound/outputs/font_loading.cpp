#include "sound/outputs/font_loading.h"

#include <malloc.h>

#include <utility>

namespace corvana {

namespace {
constexpr double attesaDelFont = 10;
constexpr double pazienzaColFont = 0.5;
}  // namespace

bool CaricaMotore(MotoreSonoro& motore, const ImpostazioniUscite& impostazioni) {
    if (!impostazioni.cartellaSegnali.empty())
        for (const char* nome : {"rok.wav", "rko.wav"})
            motore.onde.Trova(impostazioni.cartellaSegnali + "/" + nome);
    auto synth = Sintetizzatore::Carica(impostazioni.font);
    if (!synth) return false;
    motore.mescolatore.PonSintetizzatore(std::move(synth));
    // The library reads the file's lists into memory of which it drops the most again.
    malloc_trim(0);
    return true;
}

CaricamentoFont::CaricamentoFont(std::shared_ptr<MotoreSonoro> motore,
                                 const ImpostazioniUscite& impostazioni)
    : esito_(std::make_shared<bool>(false)),
      filo_([motore = std::move(motore), impostazioni,
             esito = esito_] { *esito = CaricaMotore(*motore, impostazioni); },
            pazienzaColFont) {}

bool CaricamentoFont::Pronto() {
    return filo_.AspettaFine(attesaDelFont) && *esito_;
}

}  // namespace corvana
