// A message, question or input box on the screen. GUI thread; doesn't block.
#pragma once

#include <QDialog>
#include <functional>

#include "desktop/command.h"
#include "desktop/remote_mirror.h"

namespace corvana {

/// Opens the box over `sopra`, or alone when that is null, with `parole` on its buttons. It deletes
/// itself when it has been answered, after it told the answer.
QDialog* MostraRiquadro(const ApriRiquadro& richiesta, const ParoleSchermo& parole, QWidget* sopra,
                        const std::function<void(Risposta)>& risposta);

}  // namespace corvana
