// The way of the arrow keys through a grid: painted controls that lie in one another's
// neighbourhood, belong together by the style word "griglia:" and share a stop of the Tab key. GUI
// thread.
#pragma once

#include <QRect>
#include <vector>

#include "desktop/aspect.h"

namespace corvana {

class VistaDipinta;

/// The name of its grid; empty where it lies in none.
QString GrigliaDi(const Aspetto& aspetto);

/// All of its grid that can be used, in their order.
std::vector<VistaDipinta*> Griglia(const VistaDipinta& vista);

/// Which of the places one comes to from `da` by that key: the next in the row, the nearest in the
/// next row, the first or the last of the row. `da` itself at the edges, and for any other key -1.
int PassoNellaGriglia(const std::vector<QRect>& posti, int da, int tasto);

/// The focus goes on in the grid of the control; false when it has none, or the key isn't for that.
bool VaNellaGriglia(const VistaDipinta& vista, int tasto);

}  // namespace corvana
