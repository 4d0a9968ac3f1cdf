// What is to be known of all controls of a window before the first is made. GUI thread.
#pragma once

#include <set>
#include <vector>

#include "desktop/command.h"

namespace corvana {

/// An entry of a menu, or a menu.
bool EDiMenu(const CopiaControllo& copia);

/// What has menu entries under it.
std::set<int> VociConVoci(const std::vector<CopiaControllo>& controlli);

/// The controls on which widgets stand, be it on others that lie in them; the window always.
std::set<int> ConWidget(const std::vector<CopiaControllo>& controlli);

}  // namespace corvana
