#include "composer/ruler_steps.h"

#include "core/octaves.h"

namespace corvana {

namespace {

// A row beyond either end: the step that follows comes home from there.
constexpr std::int16_t rigaSottoTutte = 34, rigaSopraTutte = -2;

/// The white keys with no black one above them.
bool MiOSi(std::int16_t nota) {
    constexpr int mi = 4, si = 11;
    return nota % 12 == mi || nota % 12 == si;
}

PostoCursore Arrivato(PostoCursore posto, std::string_view verso) {
    posto.riga = RigaDopo(posto.riga, posto.nota, verso);
    return posto;
}

}  // namespace

bool NotaConDiesis(std::int16_t nota) {
    return SullaTastiera(nota) && TastoNero(nota - notaPiuBassa);
}

std::int16_t RigaDopo(std::int16_t riga, std::int16_t nota, std::string_view verso) {
    const bool diesis = NotaConDiesis(nota);
    if (verso == "su" && !diesis) --riga;
    if (verso == "giu" && SullaTastiera(nota) && (diesis || MiOSi(nota))) ++riga;
    return riga;
}

PostoCursore CursoreSu(PostoCursore posto) {
    if (++posto.nota > notaPiuAlta) posto = {rigaSottoTutte, notaPiuBassa};
    return Arrivato(posto, "su");
}

PostoCursore CursoreGiu(PostoCursore posto) {
    if (--posto.nota < notaPiuBassa) posto = {rigaSopraTutte, notaPiuAlta};
    return Arrivato(posto, "giu");
}

}  // namespace corvana
