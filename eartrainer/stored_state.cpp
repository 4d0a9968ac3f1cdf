#include "eartrainer/stored_state.h"

#include "core/notation.h"
#include "core/octaves.h"
#include "core/text.h"
#include "forms/fault.h"

namespace corvana {

namespace {

constexpr long ultimoTasto = notaPiuAlta - notaPiuBassa;
constexpr long ultimoStrumento = 127;

bool SullaTastieraEOrdinati(const StatoMemorizzato& s) {
    return s.IntoBasso >= 0 && s.IntoBasso < s.IntoAlto && s.IntoAlto <= ultimoTasto;
}

std::int16_t Breve(const std::string& campo, long basso, long alto) {
    return static_cast<std::int16_t>(NumeroIntero(campo, basso, alto));
}

bool Booleano(const std::string& campo) {
    const std::string parola = Minuscolo(SenzaBlanchi(campo));
    if (parola != "true" && parola != "false") throw Guasto(guastoTipo, "Type mismatch");
    return parola == "true";
}

}  // namespace

std::string ComponiStatoInto(const StatoMemorizzato& s) {
    const bool estensione = SullaTastieraEOrdinati(s);
    const StatoMemorizzato predefinito;
    const bool dentro =
        s.NotaRif >= s.IntoBasso + scartoIndiceNota && s.NotaRif <= s.IntoAlto + scartoIndiceNota;
    const bool generale = s.StrumentoInto >= 0 && s.StrumentoInto <= ultimoStrumento;
    return std::to_string(estensione ? s.IntoBasso : predefinito.IntoBasso) + ";" +
           std::to_string(estensione ? s.IntoAlto : predefinito.IntoAlto) + ";" +
           std::to_string(dentro ? s.NotaRif : predefinito.NotaRif) + ";" +
           (s.senzaRiferimento ? "1" : "0") + ";" + (s.tuttiITasti ? "True" : "False") + ";" +
           std::to_string(generale ? s.StrumentoInto : predefinito.StrumentoInto);
}

std::optional<StatoMemorizzato> LeggiStatoInto(const std::string& testo) {
    const auto campi = Dividi(testo, ';');
    if (campi.size() < 2) return std::nullopt;
    if (campi.size() < 6) throw Guasto(guastoIndice, "Subscript out of range");
    StatoMemorizzato letto;
    letto.IntoBasso = Breve(campi[0], 0, ultimoTasto);
    letto.IntoAlto = Breve(campi[1], 0, ultimoTasto);
    letto.NotaRif = Breve(campi[2], notaPiuBassa, notaPiuAlta);
    letto.senzaRiferimento = NumeroIntero(campi[3], 0, 1) == 1;
    letto.tuttiITasti = Booleano(campi[4]);
    letto.StrumentoInto = static_cast<std::int32_t>(NumeroIntero(campi[5], 0, ultimoStrumento));
    if (!SullaTastieraEOrdinati(letto))
        throw Guasto(guastoArgomento, "Invalid procedure call or argument");
    return letto;
}

}  // namespace corvana
