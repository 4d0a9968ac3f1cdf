#include "melody/edits.h"

#include <algorithm>
#include <string_view>

#include "core/octaves.h"
#include "forms/fault.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

using Elementi = std::vector<std::string>;

void AggiungiToken(std::string& testo, std::string_view token) {
    testo.append(token).append(";");
}

/// A voice has one element more than notes, unless it is empty.
long Note(const Elementi& elementi) {
    return std::max(static_cast<long>(elementi.size()) - 1, 0L);
}

void ControllaPosto(const VoceMelodia& voce, long nuove) {
    const long note = std::count(voce.testoNote.begin(), voce.testoNote.end(), ';');
    if (note + nuove > noteMassime) throw Guasto(guastoTraboccamento, "Overflow");
}

/// The notes `da` to `a` of the elements as a text. The element behind the last is no note.
std::string Tratto(const Elementi& elementi, long da, long a) {
    std::string testo;
    if (a < da) return testo;
    if (da < 0 || a >= Note(elementi)) throw Guasto(guastoIndice, "Subscript out of range");
    for (long i = da; i <= a; ++i)
        AggiungiToken(testo, elementi[static_cast<std::size_t>(i)]);
    return testo;
}

std::string ConDopo(const Elementi& elementi, long i, std::string_view token) {
    std::string testo = Tratto(elementi, 0, i);
    AggiungiToken(testo, token);
    return testo + Tratto(elementi, i + 1, Note(elementi) - 1);
}

void TogliDopo(std::string& testo, const Elementi& elementi, long i) {
    testo.clear();
    for (long k = 0; k < Note(elementi); ++k)
        if (k != i + 1) AggiungiToken(testo, elementi[static_cast<std::size_t>(k)]);
}

std::size_t LungoSenzaUltimo(std::string_view testo) {
    if (!testo.empty()) testo.remove_suffix(1);
    const std::size_t fine = testo.rfind(';');
    if (fine == std::string_view::npos)
        throw Guasto(guastoArgomento, "Invalid procedure call or argument");
    return fine + 1;
}

bool SiTraspone(const VoceMelodia& voce, int semitoni) {
    if (voce.Vuota()) return true;
    return std::all_of(voce.noteVoce.begin(), voce.noteVoce.begin() + Note(voce.noteVoce),
                       [&](const std::string& token) {
                           const std::int16_t nota = NumeroNota(token);
                           const int mossa = nota + semitoni;
                           return nota == 0 || (mossa >= notaPiuBassa && mossa <= notaPiuAlta);
                       });
}

void TrasponiVoce(VoceMelodia& voce, int semitoni) {
    if (voce.Vuota()) return;
    voce.testoNote.clear();
    for (long i = 0; i < Note(voce.noteVoce); ++i) {
        std::string& token = voce.noteVoce[static_cast<std::size_t>(i)];
        const std::int16_t nota = NumeroNota(token);
        if (nota != 0) token = std::to_string(nota + semitoni);
        AggiungiToken(voce.testoNote, token);
    }
}

}  // namespace

void Accoda(VoceMelodia& voce, const TokenNota& token) {
    ControllaPosto(voce, 1);
    AggiungiToken(voce.testoNote, token.nota);
    AggiungiToken(voce.testoDurate, token.durata);
    AggiungiToken(voce.testoAttributi, token.attributo);
}

void InserisciDopo(VoceMelodia& voce, long i, const TokenNota& token) {
    ControllaPosto(voce, 1);
    std::string note = ConDopo(voce.noteVoce, i, token.nota);
    std::string durate = ConDopo(voce.durateVoce, i, token.durata);
    voce.testoAttributi = ConDopo(voce.attributiVoce, i, token.attributo);
    voce.testoNote = std::move(note);
    voce.testoDurate = std::move(durate);
}

void TogliTokenDopo(VoceMelodia& voce, long i) {
    TogliDopo(voce.testoNote, voce.noteVoce, i);
    TogliDopo(voce.testoDurate, voce.durateVoce, i);
    TogliDopo(voce.testoAttributi, voce.attributiVoce, i);
}

void TogliUltimi(VoceMelodia& voce) {
    const std::size_t note = LungoSenzaUltimo(voce.testoNote);
    const std::size_t durate = LungoSenzaUltimo(voce.testoDurate);
    voce.testoAttributi.resize(LungoSenzaUltimo(voce.testoAttributi));
    voce.testoNote.resize(note);
    voce.testoDurate.resize(durate);
}

void SvuotaTesti(VoceMelodia& voce) {
    voce.testoNote.clear();
    voce.testoDurate.clear();
    voce.testoAttributi.clear();
}

Taglio TagliaUltima(VoceMelodia& voce) {
    constexpr std::size_t lungoToken = 3;
    if (voce.testoNote.size() < lungoToken) return Taglio::Niente;
    if (voce.testoNote.size() == lungoToken) {
        SvuotaTesti(voce);
        return Taglio::Svuotata;
    }
    TogliUltimi(voce);
    return Taglio::Accorciata;
}

void Incolla(VoceMelodia& voce, long da, long a) {
    const std::string note = Tratto(voce.noteVoce, da, a);
    const std::string durate = Tratto(voce.durateVoce, da, a);
    const std::string attributi = Tratto(voce.attributiVoce, da, a);
    ControllaPosto(voce, std::max(a - da + 1, 0L));
    voce.testoNote += note;
    voce.testoDurate += durate;
    voce.testoAttributi += attributi;
}

bool Trasponi(std::array<VoceMelodia, numeroVoci>& voci, int semitoni) {
    if (!std::all_of(voci.begin(), voci.end(),
                     [&](const VoceMelodia& voce) { return SiTraspone(voce, semitoni); }))
        return false;
    for (VoceMelodia& voce : voci)
        TrasponiVoce(voce, semitoni);
    return true;
}

}  // namespace corvana
