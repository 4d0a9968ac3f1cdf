// The ruler beside the staves. The mouse marks the band under it; from the keyboard the arrows
// choose a band and the space bar marks it. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaRegolo final : public Vista {
public:
    VistaRegolo(const CopiaControllo& copia, Mittente mittente, QWidget& padre);
};

}  // namespace corvana
