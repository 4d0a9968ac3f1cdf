#include "core/language_targets.h"

namespace corvana {

std::span<const Bersaglio> Bersagli(std::string_view nomeForm) {
    if (nomeForm == "corvanamainf") return BersagliPrincipali();
    if (nomeForm == "frmconfmetro") return BersagliConfMetro();
    if (nomeForm == "frmmiditest") return BersagliMidiTest();
    if (nomeForm == "frmabout") return BersagliAbout();
    if (nomeForm == "frmoptions") return BersagliOptions();
    if (nomeForm == "frminto") return BersagliInto();
    if (nomeForm == "frmcomposer") return BersagliComposer();
    if (nomeForm == "frmcopyfroma") return BersagliCopyFromA();
    return {};
}

}  // namespace corvana
