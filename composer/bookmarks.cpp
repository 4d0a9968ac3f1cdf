// The bookmarks: each row of their list is the record itself.
#include "composer/composer.h"

namespace corvana {

namespace {

constexpr const char* separatore = "÷";

}  // namespace

void frmComposer::AggiornaRiferimentoIntero() {
    Righe righe = lstBookMark.List();
    if (righe.empty()) return;
    righe.front() = std::string("1 ") + separatore + " " +
                    std::to_string(melodia.voci[soprano].numeroNote) + " " + separatore +
                    a_.globali.testi.TxtMelodiaIntera;
    lstBookMark.List = std::move(righe);
}

}  // namespace corvana
