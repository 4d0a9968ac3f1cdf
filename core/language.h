// Texts of the windows in the chosen language, from a file of lines "id;form;text".
// Logic thread.
#pragma once

#include <string>

#include "core/globals.h"
#include "core/language_targets.h"

namespace corvana {

/// `PercorsoLingua` names an existing file.
bool FileLinguaEsiste(const Ambiente& ambiente);

/// Applies the file's rows of the form, which are those with its name, compared without case, to
/// its `bersagli`. A fault in the file shows "Error Reading file!!!" and ends the reading; rows
/// applied stay applied.
void UpdateString(const Ambiente& ambiente, Form& form, Bersagli bersagli);

/// Applies one row. An id without a target is ignored.
void ApplicaRiga(Globali& globali, const std::string& id, const std::string& testo, Form& form,
                 Bersagli bersagli);

}  // namespace corvana
