#include "desktop/translator.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <string_view>

#include "desktop/aspect.h"

namespace corvana {

namespace {

/// As the toolkit names it, and what stands for it.
struct Voce {
    std::string_view nome;
    std::string ParoleSchermo::*parola;
};

using P = ParoleSchermo;
constexpr std::array voci = {Voce{"&Undo", &P::parAnnullaModifica},
                             Voce{"&Redo", &P::parRipeti},
                             Voce{"Cu&t", &P::parTaglia},
                             Voce{"&Copy", &P::parCopia},
                             Voce{"Copy &Link Location", &P::parCopiaIndirizzo},
                             Voce{"&Paste", &P::parIncolla},
                             Voce{"Delete", &P::parElimina},
                             Voce{"Select All", &P::parSelezionaTutto}};

}  // namespace

Traduttore::Traduttore(const ParoleSchermo& parole) : parole_(parole) {
    QCoreApplication::installTranslator(this);
}

QString Traduttore::translate(const char* contesto, const char* testo, const char*, int) const {
    const std::string_view dove = contesto;
    if (dove != "QLineEdit" && dove != "QWidgetTextControl") return {};
    const auto* voce = std::ranges::find(voci, std::string_view(testo), &Voce::nome);
    return voce == voci.end() ? QString() : InQt(parole_.*voce->parola);
}

}  // namespace corvana
