// Paints the rows of a list, whether it stands in its window or drops down from a control.
// GUI thread.
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace corvana {

class Vista;

/// Rows with room around their text; one of dashes alone is a thin line. The view gives scale and
/// colours, and must outlive it.
class Riga final : public QStyledItemDelegate {
public:
    Riga(const Vista& vista, QObject& padre) : QStyledItemDelegate(&padre), vista_(vista) {}

    /// For a list that fits its rows to its height.
    void PonAltezza(int pixel) { altezza_ = pixel; }
    /// The width is the list's own to choose.
    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex& indice) const override;
    void paint(QPainter* p, const QStyleOptionViewItem& o,
               const QModelIndex& indice) const override;

private:
    void Evidenzia(QPainter& p, const QRectF& riga, bool scelta) const;
    void Filo(QPainter& p, const QRectF& riga, bool scelta) const;
    void Scrivi(QPainter& p, const QStyleOptionViewItem& o, const QString& testo,
                bool scelta) const;

    const Vista& vista_;
    int altezza_ = 0;  ///< pixels, 0 for what the scale makes of the designed height
};

int AltezzaDellaRiga(double scala);

/// Pixels to each side of a row's text, taken together.
int MargineDellaRiga(double scala);

/// Gives the list such rows.
void VestiRighe(QAbstractItemView& elenco, const Vista& vista);
/// Their letters and the scroll bar, after the scale has changed.
void RiscalaRighe(QAbstractItemView& elenco, const Vista& vista);

}  // namespace corvana
