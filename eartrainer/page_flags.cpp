#include "eartrainer/page_flags.h"

namespace corvana {

namespace {

struct RigaPagina {
    int aiuto;
    BandiereInto spegne;  ///< flags that entering it clears
};

constexpr std::array righePagine = {
    RigaPagina{3, {}},
    RigaPagina{5, {true}},
    RigaPagina{7, {true, true, false, true, true}},
    RigaPagina{20, {false, false, false, false, true}},
    RigaPagina{30, {}},
};
static_assert(righePagine.size() == pagineInto.size(), "a row for each page");

const RigaPagina& RigaDiPagina(PaginaInto pagina) {
    return righePagine.at(static_cast<std::size_t>(pagina));
}

}  // namespace

BandiereInto DopoIngresso(BandiereInto bandiere, PaginaInto pagina) {
    for (std::size_t i = 0; i < bandiere.size(); ++i)
        if (RigaDiPagina(pagina).spegne.at(i)) bandiere.at(i) = false;
    bandiere.at(static_cast<std::size_t>(pagina)) = true;
    return bandiere;
}

int AiutoDi(PaginaInto pagina) {
    return RigaDiPagina(pagina).aiuto;
}

}  // namespace corvana
