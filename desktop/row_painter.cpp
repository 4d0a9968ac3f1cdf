#include "desktop/row_painter.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <algorithm>

#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double altezzaRiga = 20;
constexpr double rientroRiga = 8;  ///< before the text
constexpr double raggioRiga = 5;

bool Scelta(const QStyleOptionViewItem& o) {
    return o.state.testFlag(QStyle::State_Selected);
}

void EvidenziaRiga(QPainter& p, const QStyleOptionViewItem& o, double scala) {
    p.setPen(Qt::NoPen);
    p.setBrush(Scelta(o) ? tinta::accento : tinta::accentoTenue);
    p.drawRoundedRect(QRectF(o.rect), raggioRiga * scala, raggioRiga * scala);
}

/// Where the keys are, in a list where that row needn't be a selected one.
void CerchiaRiga(QPainter& p, const QStyleOptionViewItem& o, double scala) {
    const double penna = scala, raggio = raggioRiga * scala;
    p.setPen(QPen(Scelta(o) ? tinta::suAccento : tinta::accento, penna));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(o.rect).adjusted(penna, penna, -penna, -penna), raggio, raggio);
}

void DipingiFiloRiga(QPainter& p, const QStyleOptionViewItem& o, double scala) {
    const QRectF riga(o.rect);
    const double rientro = rientroRiga * scala;
    p.setPen(QPen(Scelta(o) ? tinta::suAccento : tinta::filo, scala));
    p.drawLine(QPointF(riga.left() + rientro, riga.center().y()),
               QPointF(riga.right() - rientro, riga.center().y()));
}

void ScriviRiga(QPainter& p, const QStyleOptionViewItem& o, Colore penna, double scala) {
    const bool abilitata = o.state.testFlag(QStyle::State_Enabled);
    const QColor colore = abilitata ? InQt(penna, tinta::inchiostro) : tinta::spento;
    const int rientro = static_cast<int>(rientroRiga * scala);
    const QRect posto = o.rect.adjusted(rientro, 0, rientro - MargineDellaRiga(scala), 0);
    p.setPen(Scelta(o) ? tinta::suAccento : colore);
    p.setFont(o.font);
    // A name may hold a line break, which the toolkit has made a separator of.
    QString riga = o.text;
    riga.replace(QChar::LineSeparator, QLatin1Char(' '));
    p.drawText(posto, Qt::AlignVCenter | Qt::AlignLeft,
               o.fontMetrics.elidedText(riga, Qt::ElideRight, posto.width()));
}

}  // namespace

int AltezzaDellaRiga(double scala) {
    return std::max(1, static_cast<int>(altezzaRiga * scala));
}

int MargineDellaRiga(double scala) {
    const int rientro = static_cast<int>(rientroRiga * scala);
    return rientro + rientro / 2;
}

void DipingiRiga(QPainter& p, const QStyleOptionViewItem& o, const Aspetto& aspetto, double scala) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    if (Scelta(o) || o.state.testFlag(QStyle::State_MouseOver)) EvidenziaRiga(p, o, scala);
    if (aspetto.MultiSelect && o.state.testFlag(QStyle::State_HasFocus)) CerchiaRiga(p, o, scala);
    if (aspetto.Ha("separata") && o.text.count(QLatin1Char('-')) == o.text.size())
        DipingiFiloRiga(p, o, scala);
    else
        ScriviRiga(p, o, aspetto.ForeColor, scala);
    p.restore();
}

void RiscalaRighe(QAbstractItemView& elenco, const Aspetto& aspetto, double scala) {
    elenco.setFont(Carattere(aspetto.stile, scala));
    elenco.verticalScrollBar()->updateGeometry();
}

}  // namespace corvana
