#include "desktop/chart_view.h"

#include "desktop/chart_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

// Designed pixels.
constexpr double margineTitolo = 24, altoTitolo = 12, altezzaTitolo = 30, sottoTitolo = 46;
constexpr double raggioCella = 6;
constexpr int colonneRivolto = 11;  ///< six numbers and five qualities

QPen BordoDiClasse(const Aspetto& aspetto, double scala) {
    if (aspetto.Ha("consonante")) return {tinta::accento, 2 * scala};
    if (!aspetto.Ha("melodico")) return {tinta::filoForte, scala};
    QPen tratti(tinta::inchiostroTenue, 2 * scala);
    tratti.setDashPattern({3, 2});
    return tratti;
}

void DipingiParola(QPainter& p, const QRectF& area, Aspetto aspetto, const QString& parola,
                   double scala) {
    aspetto.Caption = parola.toStdString();
    aspetto.stile << QStringLiteral("centro") << QStringLiteral("mezzo");
    DipingiTesto(p, area, aspetto, scala, true);
}

/// Points up and down.
QPainterPath Freccia(double x, double alto, double basso) {
    constexpr double mezza = 4, punta = 6;
    QPainterPath freccia(QPointF(x, alto));
    for (const QPointF& punto :
         {QPointF(x + mezza, alto + punta), QPointF(x + 0.8, alto + punta),
          QPointF(x + 0.8, basso - punta), QPointF(x + mezza, basso - punta), QPointF(x, basso),
          QPointF(x - mezza, basso - punta), QPointF(x - 0.8, basso - punta),
          QPointF(x - 0.8, alto + punta), QPointF(x - mezza, alto + punta)})
        freccia.lineTo(punto);
    freccia.closeSubpath();
    return freccia;
}

}  // namespace

void VistaPagina::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    DipingiFondo(p, area, Stato(), Scala(), tocco);
    p.setFont(Carattere(Stato().stile, Scala()));
    p.setPen(tinta::inchiostro);
    const double margine = margineTitolo * Scala();
    const QRectF riga(margine, altoTitolo * Scala(), area.width() - 2 * margine,
                      altezzaTitolo * Scala());
    p.drawText(riga, Qt::AlignLeft | Qt::AlignVCenter, InQt(Stato().Caption).trimmed());
    const double y = sottoTitolo * Scala();
    DipingiFilo(p, {margine, y}, {area.width() - margine, y}, tinta::accento, 2 * Scala());
}

void VistaClasse::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    const QPen bordo = BordoDiClasse(Stato(), Scala());
    const double mezzo = bordo.widthF() / 2, raggio = raggioCella * Scala();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(bordo);
    p.setBrush(InQt(Stato().BackColor, tinta::carta));
    p.drawRoundedRect(area.adjusted(mezzo, mezzo, -mezzo, -mezzo), raggio, raggio);
    DipingiTesto(p, area, Stato(), Scala(), tocco.abilitato);
}

void VistaSpaziato::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    const QStringList parole = InQt(Stato().Caption).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const double passo = area.width() / static_cast<double>(std::max<qsizetype>(1, parole.size()));
    const double stacco = 4 * Scala(), raggio = raggioCella * Scala();
    p.setRenderHint(QPainter::Antialiasing);
    for (qsizetype i = 0; i < parole.size(); ++i) {
        const QRectF cella(static_cast<double>(i) * passo + stacco, 0, passo - 2 * stacco,
                           area.height());
        p.setPen(QPen(tinta::filoForte, Scala()));
        p.setBrush(parole[i][0].isDigit() ? tinta::accentoTenue : tinta::pannello);
        p.drawRoundedRect(cella.adjusted(0.5, 0.5, -0.5, -0.5), raggio, raggio);
        DipingiParola(p, cella, Stato(), parole[i], Scala());
    }
}

void VistaFrecce::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    constexpr double aria = 4;
    p.scale(Scala(), Scala());
    const QSizeF misura = area.size() / Scala();
    p.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < colonneRivolto; ++i)
        p.fillPath(
            Freccia((i + 0.5) * misura.width() / colonneRivolto, aria, misura.height() - aria),
            tinta::inchiostroTenue);
}

}  // namespace corvana
