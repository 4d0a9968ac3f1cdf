// The rows of a list, whether it stands in its window or drops down from a control: their measures
// and how they are painted. Everything grows with the scale. GUI thread.
#pragma once

#include <QPainter>
#include <QStyleOptionViewItem>

#include "desktop/aspect.h"

class QAbstractItemView;

namespace corvana {

int AltezzaDellaRiga(double scala);

/// Pixels to each side of a row's text, taken together.
int MargineDellaRiga(double scala);

/// A row with room around its text, in the letters' colour of the list's control; one of dashes
/// alone is a thin line.
void DipingiRiga(QPainter& p, const QStyleOptionViewItem& o, const Aspetto& aspetto, double scala);

/// The letters of the rows and the scroll bar beside them, after the scale has changed.
void RiscalaRighe(QAbstractItemView& elenco, const Aspetto& aspetto, double scala);

}  // namespace corvana
