#include "desktop/field_painter.h"

#include "desktop/sign_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double postoFreccia = 26;  ///< at the right end
constexpr double rientroScelta = 8;  ///< before the text
constexpr double mezzaFreccia = 4.5, spessoreFreccia = 2;

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
    const auto taglio = aspetto.Ha("percorso") ? Qt::ElideLeft : Qt::ElideRight;
    p.drawText(posto, Qt::AlignVCenter | Qt::AlignLeft,
               o.fontMetrics.elidedText(o.currentText, taglio, spazio));
}

void DipingiCasella(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala,
                    bool fuoco) {
    const Colore fondo = aspetto.Locked ? coloreDiSistema : InColore(tinta::carta);
    Aspetto vestito = Vestito(aspetto, "tondo", fondo);
    vestito.BorderStyle = 1;
    p.save();
    DipingiFondo(p, area, vestito, scala, {});
    DipingiEsito(p, area, aspetto, scala);
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
