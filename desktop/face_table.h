// Which face a control has: one table, by kind and style word. GUI thread.
#pragma once

#include <memory>

#include "desktop/view.h"

namespace corvana {

/// The control is a widget of the toolkit; otherwise a face paints it.
bool HaWidget(const CopiaControllo& copia);

/// The face that the control's kind and style ask for. A widget is put on `dove`.
std::unique_ptr<Vista> CreaVista(const CopiaControllo& copia, Mittente mittente, QWidget& dove);

/// The word chooses a face.
bool ScegliUnaFaccia(const QString& parola);

}  // namespace corvana
