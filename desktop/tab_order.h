// The way of the Tab key through a window: by the controls' order, whether they are widgets or
// painted. GUI thread.
#pragma once

#include <memory>
#include <vector>

#include "desktop/view.h"

namespace corvana {

/// The stop after the one that has the focus, or before it; null where there is none that can be
/// seen and used. After the last comes the first.
Vista* ProssimaFermata(const std::vector<std::unique_ptr<Vista>>& viste, bool avanti);

}  // namespace corvana
