#include "desktop/style_words.h"

#include <algorithm>
#include <optional>

#include "desktop/face_table.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

struct ParolaStile {
    const char* parola;  ///< one with a colon begins the word
    std::optional<Lettere> lettere = {};
    std::optional<FormaFondo> forma = {};
    bool centrata = false;
};

constexpr auto semi = QFont::DemiBold;

const ParolaStile parole[] = {
    {"pulsante", {}, FormaFondo{7, true, true, &tinta::bottone}, true},
    {"carta", {}, FormaFondo{10, true, false, &tinta::pannello}},
    {"arrotondata", {}, FormaFondo{11, true, false, &tinta::finestra}},
    {"pannello", {}, FormaFondo{11, true, false, &tinta::pannello}},
    {"scelta", {}, FormaFondo{6, true, true, &tinta::bottone}, true},
    {"aiuto", Lettere{15, semi}, FormaFondo{12, true, true, &tinta::bottone}, true},
    {"chiudi", Lettere{15, semi}, FormaFondo{9, true, true, &tinta::bottone}, true},
    {"lettera", Lettere{20, QFont::Bold}, FormaFondo{6, true, true, &tinta::carta}, true},
    {"barra", {}, FormaFondo{6, true, false, nullptr}},
    {"riquadro", {}, FormaFondo{5, true, false, &tinta::carta}},
    {"ammissione", {}, FormaFondo{4, true, true, nullptr}},
    {"riga", {}, FormaFondo{8, true, false, nullptr}},
    {"cursore", {}, FormaFondo{4, false, false, &tinta::accento}},
    {"tondo", {}, FormaFondo{5, false, false, nullptr}},
    {"fitta", Lettere{13, semi}},
    {"titolo", Lettere{15, semi}},
    {"cifra", Lettere{21, semi}},
    {"piccolo", Lettere{11, QFont::Normal}},
    {"nome", Lettere{22, QFont::Bold}},
    {"risposta", Lettere{15, semi}},
    {"principale", Lettere{15, semi}},
    {"insegna", Lettere{24, QFont::Bold}, {}, true},
    {"pagina", Lettere{18, semi}},
    {"consonante", {}, {}, true},
    {"melodico", {}, {}, true},
    {"dissonante", {}, {}, true},
    {"percento", Lettere{15, semi}},
    // Of the letters: heavier. Of the text: its place.
    {"forte"},
    {"sottolineato"},
    {"centro"},
    {"destra"},
    {"mezzo"},
    // One line, of which the end is shown.
    {"percorso"},
    // Of a list's rows those without a letter part the others.
    {"separata"},
    // A painter draws something more.
    {"passi"},
    {"giuste"},
    {"sbagliate"},
    {"esito"},
    {"tastierina"},
    {"tasti"},
    {"ornamento"},
    {"scheda"},
    {"nuda"},
    // Another control covers it; others name it.
    {"dietro"},
    {"nome:"},
    {"consiglio:"},
    // To those who don't see it: they stop at it; they are told whenever it changes.
    {"letto"},
    {"annunciato"},
    // The arrow keys go from one to the next.
    {"griglia:"},
};

bool Contiene(const QStringList& stile, const ParolaStile& riga) {
    return stile.contains(QLatin1String(riga.parola));
}

}  // namespace

Lettere LettereDi(const QStringList& stile) {
    for (const ParolaStile& riga : parole)
        if (riga.lettere && Contiene(stile, riga)) return *riga.lettere;
    return {};
}

FormaFondo FormaDi(const QStringList& stile) {
    for (const ParolaStile& riga : parole)
        if (riga.forma && Contiene(stile, riga)) return *riga.forma;
    return {};
}

bool Centrato(const QStringList& stile) {
    return std::any_of(std::begin(parole), std::end(parole), [&](const ParolaStile& riga) {
        return riga.centrata && Contiene(stile, riga);
    });
}

bool ParolaNota(const QString& parola) {
    return ScegliUnaFaccia(parola) ||
           std::any_of(std::begin(parole), std::end(parole), [&](const ParolaStile& riga) {
               const QLatin1String sua(riga.parola);
               return sua.endsWith(QLatin1Char(':')) ? parola.startsWith(sua) : parola == sua;
           });
}

}  // namespace corvana
