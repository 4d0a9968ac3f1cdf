#include "desktop/field_painter.h"

#include <QPainterPath>

#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double postoFreccia = 26;  ///< at the right end
constexpr double rientroScelta = 8;  ///< before the text
constexpr double mezzaFreccia = 4.5, spessoreFreccia = 2;
constexpr double postoEsito = 14, spessoreEsito = 2.4;

QPen PennaTonda(const QColor& colore, double spessore) {
    return {colore, spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

Aspetto Vestito(Aspetto aspetto, const char* parola, Colore fondo) {
    if (aspetto.BackColor == coloreDiSistema) aspetto.BackColor = fondo;
    aspetto.stile << QLatin1String(parola);
    return aspetto;
}

void DipingiFreccia(QPainter& p, const QRectF& area, bool abilitata, double scala) {
    const QPointF c(area.right() - postoFreccia * scala / 2, area.center().y());
    const QPointF punti[] = {c + QPointF(-mezzaFreccia, -mezzaFreccia / 2) * scala,
                             c + QPointF(0, mezzaFreccia / 2) * scala,
                             c + QPointF(mezzaFreccia, -mezzaFreccia / 2) * scala};
    p.setBrush(Qt::NoBrush);
    p.setPen(PennaTonda(abilitata ? tinta::accento : tinta::spento, spessoreFreccia * scala));
    p.drawPolyline(punti, std::size(punti));
}

QPainterPath TracciaEsito(bool giusto) {
    QPainterPath segno;
    if (giusto) {
        segno.addPolygon(QPolygonF({{-5, 0}, {-1.5, 4}, {5, -4.5}}));
        return segno;
    }
    segno.addPolygon(QPolygonF({QPointF(-4, -4), QPointF(4, 4)}));
    segno.addPolygon(QPolygonF({QPointF(-4, 4), QPointF(4, -4)}));
    return segno;
}

/// What the number tells, for those who don't know its place or its colour.
void DipingiEsito(QPainter& p, const QRectF& area, bool giusto, double scala) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(PennaTonda(giusto ? tinta::giusto : tinta::sbagliato, spessoreEsito));
    p.translate(area.left() + postoEsito * scala, area.center().y());
    p.scale(scala, scala);
    p.drawPath(TracciaEsito(giusto));
    p.restore();
}

}  // namespace

void DipingiScelta(QPainter& p, const QStyleOptionComboBox& o, const Aspetto& aspetto, double scala,
                   const Tocco& tocco) {
    const QRectF area(o.rect);
    DipingiFondo(p, area, Vestito(aspetto, "scelta", coloreDiSistema), scala, tocco);
    DipingiFreccia(p, area, tocco.abilitato, scala);
    if (tocco.fuoco) DipingiAnello(p, area, scala);
}

void DipingiTestoScelto(QPainter& p, const QStyleOptionComboBox& o, const Aspetto& aspetto,
                        double scala) {
    const QRectF posto =
        QRectF(o.rect).adjusted(rientroScelta * scala, 0, -postoFreccia * scala, 0);
    const bool abilitata = o.state.testFlag(QStyle::State_Enabled);
    p.setPen(abilitata ? InQt(aspetto.ForeColor, tinta::inchiostro) : tinta::spento);
    const int spazio = static_cast<int>(posto.width());
    p.drawText(posto, Qt::AlignVCenter | Qt::AlignLeft,
               o.fontMetrics.elidedText(o.currentText, Qt::ElideRight, spazio));
}

void DipingiCasella(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                    bool fuoco) {
    const Colore fondo = aspetto.Locked ? coloreDiSistema : InColore(tinta::carta);
    Aspetto vestito = Vestito(aspetto, "tondo", fondo);
    vestito.BorderStyle = 1;
    p.save();
    DipingiFondo(p, area, vestito, scala, {});
    for (const bool giusto : {true, false})
        if (aspetto.Ha(giusto ? "giuste" : "sbagliate")) DipingiEsito(p, area, giusto, scala);
    if (fuoco) DipingiAnello(p, area, scala);
    // The toolkit's own cursor is to be as sharp as it was.
    p.restore();
}

void DipingiElenco(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                   bool fuoco) {
    DipingiFondo(p, area, Vestito(aspetto, "carta", InColore(tinta::carta)), scala, {});
    if (fuoco) DipingiAnello(p, area, scala);
}

}  // namespace corvana
