// Paints the ruler beside the staves, on which the learner marks a range. In twips from the ruler's
// top left; the painter is scaled by the caller. GUI thread.
#pragma once

#include <QPainter>

namespace corvana {

/// `evidenziata` is the position whose band stands out, 0 for none.
void DipingiRegolo(QPainter& p, const QSizeF& misura, int evidenziata);

}  // namespace corvana
