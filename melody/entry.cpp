#include "melody/entry.h"

#include <array>
#include <limits>
#include <optional>

#include "core/octaves.h"
#include "forms/fault.h"
#include "melody/edits.h"
#include "melody/numbers.h"

namespace corvana {

namespace {

constexpr std::array<double, numeroFigure> valoriFigure = {4, 2, 1, 0.5, 0.25, 0.125, 0.0625};
constexpr std::uint8_t noteTerzina = 3;

double Valore(const StatoInserimento& stato, std::int16_t per) {
    const double v = stato.valoreFigura;
    switch (stato.attributoAttivo) {
        case attributoPunto: return (v + v / 2) * per;
        case attributoTerzina: return (per * v + per * v) / 3;
        default: return per * v;
    }
}

const char* Lettera(std::uint8_t attributo) {
    switch (attributo) {
        case attributoStaccato: return "s";
        case attributoAppoggiato: return "t";
        case attributoAccento: return "a";
        default: return "n";
    }
}

void ContaNota(StatoInserimento& stato) {
    if (stato.contaTerzina < std::numeric_limits<std::uint8_t>::max()) ++stato.contaTerzina;
}

/// Takes the last note off the texts, for the new one to last as long as both.
void Lega(StatoInserimento& stato, VoceMelodia& voce) {
    if (voce.Vuota()) return;
    std::string_view durate = voce.testoDurate;
    if (!durate.empty()) durate.remove_suffix(1);
    const std::size_t ultimo = durate.rfind(';');
    stato.valorePrecedente =
        NumeroReale(durate.substr(ultimo == std::string_view::npos ? 0 : ultimo + 1));
    stato.valoreNota += stato.valorePrecedente;
    if (ultimo == std::string_view::npos)
        SvuotaTesti(voce);
    else
        TogliUltimi(voce);
}

void CalcolaNota(StatoInserimento& stato, VoceMelodia& voce, std::int16_t per) {
    stato.valoreNota = Valore(stato, per);
    stato.letteraAttributo = Lettera(stato.attributoAttivo);
    if (stato.attributoAttivo == attributoLegatura) Lega(stato, voce);
    if (stato.attributoAttivo != attributoTerzina) return;
    if (!stato.soloAscolto) ContaNota(stato);
    if (stato.accentoAcceso) stato.letteraAttributo = "a";
}

void CalcolaPausa(StatoInserimento& stato, VoceMelodia& voce, std::int16_t per) {
    stato.valoreNota = Valore(stato, per);
    stato.letteraAttributo = "p";
    if (stato.attributoAttivo == attributoLegatura) Lega(stato, voce);
    if (stato.attributoAttivo == attributoTerzina) ContaNota(stato);
}

/// A triplet goes on until it has three notes; any other attribute goes out. True when a triplet
/// was closed.
bool Concludi(StatoInserimento& stato, bool conserva) {
    if (stato.attributoAttivo == attributoTerzina && stato.contaTerzina < noteTerzina) return false;
    const bool chiusa = stato.contaTerzina == noteTerzina;
    if (chiusa) stato.contaTerzina = 0;
    if (!chiusa && conserva) return false;
    AzzeraAttributi(stato);
    stato.letteraAttributo = "n";
    return chiusa;
}

/// One insertion, true when it closed a triplet; a fault leaves counters and texts as they were.
template <class Calcolo>
bool Inserisci(StatoInserimento& stato, VoceMelodia& voce, const std::string& nota,
               const OpzioniInserimento& opzioni, const Calcolo& calcola) {
    StatoInserimento nuovo = stato;
    calcola(nuovo, voce, opzioni.per);
    Accoda(voce, {nota, TestoNumero(nuovo.valoreNota, opzioni.separatore), nuovo.letteraAttributo});
    const bool chiusa = Concludi(nuovo, opzioni.conserva);
    stato = std::move(nuovo);
    return chiusa;
}

std::optional<double> NumeroDi(const std::string& testo) {
    try {
        return NumeroReale(testo);
    } catch (const Guasto&) {
        return std::nullopt;
    }
}

}  // namespace

double ValoreFigura(std::uint8_t figura) {
    return valoriFigure.at(figura);
}

void ScegliFigura(StatoInserimento& stato, std::uint8_t figura) {
    stato.valoreFigura = ValoreFigura(figura);
    stato.figuraAttiva = figura;
}

void PremiAttributo(StatoInserimento& stato, int Index) {
    if (Index < 0 || Index >= senzaAttributo) return;
    const bool acceso = Index != stato.attributoAttivo;
    stato.attributoAttivo = acceso ? static_cast<std::uint8_t>(Index) : senzaAttributo;
    if (Index != attributoTerzina) return;
    stato.accentoVisibile = acceso;
    if (acceso)
        stato.accentoAcceso = true;
    else
        stato.contaTerzina = 0;
}

void AzzeraAttributi(StatoInserimento& stato) {
    stato.attributoAttivo = senzaAttributo;
}

std::int16_t Moltiplicatore(std::string_view testo) {
    using Limiti = std::numeric_limits<std::int16_t>;
    const std::int64_t numero = ArrotondaAlPari(NumeroReale(testo));
    if (numero < Limiti::min() || numero > Limiti::max())
        throw Guasto(guastoTraboccamento, "Overflow");
    return static_cast<std::int16_t>(numero);
}

std::string MoltiplicatoreValido(const std::string& testo) {
    constexpr double massimo = 100;
    const std::optional<double> numero = NumeroDi(testo);
    return numero && *numero >= 0 && *numero <= massimo ? testo : "1";
}

bool InserisciNota(StatoInserimento& stato, VoceMelodia& voce, const OpzioniInserimento& opzioni) {
    if (!SullaTastiera(stato.notaAttiva)) return false;
    stato.soloAscolto = false;
    const bool ultima =
        Inserisci(stato, voce, std::to_string(stato.notaAttiva), opzioni, CalcolaNota);
    if (ultima) stato.accentoVisibile = false;
    // Of a triplet only the first note has the accent by itself.
    if (stato.accentoVisibile) stato.accentoAcceso = false;
    return true;
}

void InserisciPausa(StatoInserimento& stato, VoceMelodia& voce, const OpzioniInserimento& opzioni) {
    Inserisci(stato, voce, tokenPausa, opzioni, CalcolaPausa);
}

Anteprima PreparaAnteprima(StatoInserimento& stato, std::int16_t per, int tempo) {
    constexpr double msAlMinuto = 60000;
    constexpr std::int16_t velocitaNormale = 90, velocitaAccento = 127;
    stato.valoreNota = Valore(stato, per);
    stato.letteraAttributo = Lettera(stato.attributoAttivo);
    if (stato.attributoAttivo == attributoTerzina && !stato.soloAscolto) ContaNota(stato);
    Anteprima anteprima{ArrotondaAlPari(msAlMinuto / tempo * stato.valoreNota), velocitaNormale};
    if (stato.attributoAttivo == attributoStaccato) anteprima.millisecondi /= 5;
    if (stato.attributoAttivo == attributoAppoggiato) anteprima.millisecondi /= 2;
    if (stato.attributoAttivo == attributoAccento) anteprima.velocita = velocitaAccento;
    return anteprima;
}

}  // namespace corvana
