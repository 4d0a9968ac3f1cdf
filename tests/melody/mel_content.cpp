#include "tests/melody/mel_content.h"

#include <limits>
#include <tuple>

#include "core/text.h"

namespace corvana::prova {

namespace {

int Intero(const std::string& testo) {
    using Limiti = std::numeric_limits<int>;
    return static_cast<int>(NumeroIntero(testo, Limiti::min(), Limiti::max()));
}

VoceMelodia Voce(const std::string& strumento, const std::string& note, const std::string& durate,
                 const std::string& attributi) {
    VoceMelodia voce;
    if (note.empty()) return voce;
    voce.strumento = Intero(strumento);
    voce.testoNote = note;
    voce.testoDurate = durate;
    voce.testoAttributi = attributi;
    return voce;
}

ContenutoMel Convertito(const LetturaMel& letta) {
    ContenutoMel contenuto;
    VoceMelodia& prima = contenuto.voci[soprano];
    prima.testoNote = letta.soprano[0];
    prima.testoDurate = letta.soprano[1];
    prima.testoAttributi = letta.soprano[2];
    prima.strumento = Intero(letta.strumento.at(0));
    contenuto.tempo = Intero(letta.tempo);
    if (letta.conMetronomo)
        contenuto.metronomo = {letta.strumento[1], letta.strumento[2], Intero(letta.strumento[3])};
    contenuto.riferimenti = letta.riferimenti;
    for (const BloccoMel& blocco : letta.blocchi)
        contenuto.voci.at(blocco.voce) =
            Voce(blocco.strumento, blocco.testi.at(0), blocco.testi.at(1), blocco.testi.at(2));
    return contenuto;
}

auto CampiDi(const VoceMelodia& voce) {
    return std::tie(voce.testoNote, voce.testoDurate, voce.testoAttributi, voce.strumento);
}

bool UgualiMetronomi(const std::optional<MetronomoMel>& uno,
                     const std::optional<MetronomoMel>& altro) {
    if (!uno || !altro) return !uno && !altro;
    return uno->pulsazioni == altro->pulsazioni &&
           uno->durataPulsazioni == altro->durataPulsazioni && uno->inizioPuls == altro->inizioPuls;
}

}  // namespace

bool operator==(const ContenutoMel& uno, const ContenutoMel& altro) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        if (CampiDi(uno.voci[voce]) != CampiDi(altro.voci[voce])) return false;
    return uno.tempo == altro.tempo && UgualiMetronomi(uno.metronomo, altro.metronomo) &&
           uno.riferimenti == altro.riferimenti;
}

std::optional<ContenutoMel> Contenuto(const LetturaMel& letta) {
    constexpr std::size_t campiConMetronomo = 4;
    if (letta.guasto) return std::nullopt;
    if (letta.conMetronomo && letta.strumento.size() < campiConMetronomo) return std::nullopt;
    try {
        return Convertito(letta);
    } catch (const Guasto&) {
        return std::nullopt;
    }
}

}  // namespace corvana::prova
