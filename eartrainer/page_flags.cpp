#include "eartrainer/page_flags.h"

namespace corvana {

namespace {

struct RigaPagina {
    int aiuto;
    std::array<bool, pagineInto.size()> spegne;  ///< flags that entering it clears
};

constexpr std::array<RigaPagina, pagineInto.size()> righePagine = {{
    {3, {}},
    {5, {true}},
    {7, {true, true, false, true, true}},
    {20, {false, false, false, false, true}},
    {30, {}},
}};

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
