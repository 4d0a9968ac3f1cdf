#include "desktop/row_painter.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "desktop/theme.h"
#include "desktop/view.h"

namespace corvana {

namespace {

constexpr double altezzaRiga = 20;  ///< designed pixels
constexpr double rientroRiga = 8;   ///< designed pixels before the text

}  // namespace

int AltezzaDellaRiga(double scala) {
    return std::max(1, static_cast<int>(altezzaRiga * scala));
}

int MargineDellaRiga(double scala) {
    const int rientro = static_cast<int>(rientroRiga * scala);
    return rientro + rientro / 2;
}

QSize Riga::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {0, altezza_ > 0 ? altezza_ : AltezzaDellaRiga(vista_.Scala())};
}

void Riga::paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& indice) const {
    const QString testo = indice.data().toString();
    const bool scelta = o.state.testFlag(QStyle::State_Selected);
    p->save();
    p->setRenderHint(QPainter::Antialiasing);
    if (scelta || o.state.testFlag(QStyle::State_MouseOver)) Evidenzia(*p, o.rect, scelta);
    if (testo.count(QLatin1Char('-')) == testo.size())
        Filo(*p, o.rect, scelta);
    else
        Scrivi(*p, o, testo, scelta);
    p->restore();
}

void Riga::Evidenzia(QPainter& p, const QRectF& riga, bool scelta) const {
    p.setPen(Qt::NoPen);
    p.setBrush(scelta ? tinta::accento : tinta::accentoTenue);
    p.drawRoundedRect(riga, 5 * vista_.Scala(), 5 * vista_.Scala());
}

void Riga::Filo(QPainter& p, const QRectF& riga, bool scelta) const {
    p.setPen(QPen(scelta ? QColor(Qt::white) : tinta::filo, vista_.Scala()));
    const double rientro = rientroRiga * vista_.Scala();
    p.drawLine(QPointF(riga.left() + rientro, riga.center().y()),
               QPointF(riga.right() - rientro, riga.center().y()));
}

void Riga::Scrivi(QPainter& p, const QStyleOptionViewItem& o, const QString& testo,
                  bool scelta) const {
    const bool abilitata = o.state.testFlag(QStyle::State_Enabled);
    const QColor penna = InQt(vista_.Stato().penna, tinta::inchiostro);
    p.setPen(scelta ? QColor(Qt::white) : abilitata ? penna : tinta::spento);
    p.setFont(o.font);
    const int rientro = static_cast<int>(rientroRiga * vista_.Scala());
    const int margine = MargineDellaRiga(vista_.Scala());
    const QRect posto = o.rect.adjusted(rientro, 0, rientro - margine, 0);
    p.drawText(posto, Qt::AlignVCenter | Qt::AlignLeft,
               o.fontMetrics.elidedText(testo, Qt::ElideRight, posto.width()));
}

void VestiRighe(QAbstractItemView& elenco, const Vista& vista) {
    elenco.setItemDelegate(new Riga(vista, elenco));
}

void RiscalaRighe(QAbstractItemView& elenco, const Vista& vista) {
    elenco.setFont(Carattere(vista.Stato().stile, vista.Scala()));
    elenco.verticalScrollBar()->updateGeometry();
}

}  // namespace corvana
