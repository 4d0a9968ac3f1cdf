#include "melody/tokens.h"

#include <algorithm>
#include <limits>

#include "core/text.h"
#include "forms/fault.h"

namespace corvana {

namespace {

std::string Unisci(const std::vector<std::string>& elementi) {
    std::string testo;
    for (std::size_t i = 0; i < elementi.size(); ++i)
        testo.append(i ? ";" : "").append(elementi[i]);
    return testo;
}

}  // namespace

std::optional<std::size_t> IndiceVoce(std::string_view nome) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        if (nomiVoci[voce] == nome) return voce;
    return std::nullopt;
}

const std::string& Elemento(const std::vector<std::string>& elementi, long indice) {
    if (indice < 0 || indice >= static_cast<long>(elementi.size()))
        throw Guasto(guastoIndice, "Subscript out of range");
    return elementi[static_cast<std::size_t>(indice)];
}

std::string SostituisciToken(std::string_view testo, long indice, std::string_view nuovo) {
    std::vector<std::string> token = Dividi(testo, ';');
    static_cast<void>(Elemento(token, indice));
    token[static_cast<std::size_t>(indice)] = nuovo;
    return Unisci(token);
}

void Spezza(VoceMelodia& voce) {
    std::vector<std::string> note = Dividi(voce.testoNote, ';');
    const long numero = static_cast<long>(note.size()) - 1;
    if (numero > noteMassime) throw Guasto(guastoTraboccamento, "Overflow");
    voce.noteVoce = std::move(note);
    voce.durateVoce = Dividi(voce.testoDurate, ';');
    voce.attributiVoce = Dividi(voce.testoAttributi, ';');
    voce.numeroNote = static_cast<std::int16_t>(numero);
}

long NoteIntere(const VoceMelodia& voce) {
    const std::size_t elementi =
        std::min({voce.noteVoce.size(), voce.durateVoce.size(), voce.attributiVoce.size()});
    return elementi == 0 ? 0 : static_cast<long>(elementi) - 1;
}

std::int16_t NumeroNota(std::string_view token) {
    using Limiti = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(NumeroIntero(token, Limiti::min(), Limiti::max()));
}

std::int16_t IndiceNota(std::string_view testo) {
    using Limiti = std::numeric_limits<std::int16_t>;
    const std::int16_t numero = NumeroNota(testo);
    if (numero == Limiti::min()) throw Guasto(guastoTraboccamento, "Overflow");
    return static_cast<std::int16_t>(numero - 1);
}

}  // namespace corvana
