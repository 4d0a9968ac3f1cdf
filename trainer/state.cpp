#include "trainer/state.h"

#include <limits>

#include "core/text.h"

namespace corvana {

namespace {
constexpr long massimoLimite = 255;
constexpr long massimoIntero = std::numeric_limits<std::int32_t>::max();
}  // namespace

std::string ComponiStato(const StatoTrainer& s) {
    const bool valido = s.limiteBasso > 0 && s.limiteBasso < s.limiteAlto;
    const int basso = valido ? s.limiteBasso : limiteBassoPredefinito;
    const int alto = valido ? s.limiteAlto : limiteAltoPredefinito;
    const bool generale = s.strumento >= 0 && s.strumento <= 127;
    return std::to_string(basso) + ";" + std::to_string(alto) + ";" +
           std::to_string(generale ? s.strumento : strumentoPredefinito) + ";" +
           std::to_string(s.noteAlMinuto) + ";" + (s.automatico ? "a" : "n");
}

std::optional<StatoTrainer> LeggiStato(const std::string& testo) {
    auto campi = Dividi(testo, ';');
    if (campi.size() < 2) return std::nullopt;
    campi.resize(5);
    StatoTrainer stato;
    stato.limiteAlto = static_cast<int>(NumeroIntero(campi[1], 0, massimoLimite));
    stato.limiteBasso = static_cast<int>(NumeroIntero(campi[0], 0, massimoLimite));
    if (!campi[2].empty())
        stato.strumento =
            static_cast<std::int32_t>(NumeroIntero(campi[2], -massimoIntero, massimoIntero));
    stato.noteAlMinuto = static_cast<int>(NumeroIntero(campi[3], -massimoIntero, massimoIntero));
    stato.automatico = campi[4] == "a";
    return stato;
}

}  // namespace corvana
