#include "desktop/face_painter.h"

#include <algorithm>

#include "desktop/gradient_painter.h"
#include "desktop/icon_painter.h"
#include "desktop/style_words.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double raggioPulsante = 7;
constexpr double ariaIcona = 5;        ///< designed pixels around the picture on a button
constexpr double quotaIcona = 7;       ///< a small button has less: this part of its side
constexpr double rientroRiquadro = 8;  ///< beside the text, in designed pixels

QColor Sotto(QColor colore, const Tocco& tocco) {
    if (!tocco.abilitato) return PiuChiara(colore, 0.45);
    if (tocco.premuto) return PiuScura(colore, 0.10);
    return tocco.sopra ? PiuScura(colore, 0.035) : colore;
}

QBrush Pennello(const Aspetto& a, const FormaFondo& forma, const QRectF& area, const Tocco& tocco) {
    if (a.BackStyle == fondoTrasparente) return Qt::NoBrush;
    if (a.Sfondo.Presente()) return PennelloSfumatura(a.Sfondo, area);
    const QColor colore = InQt(a.BackColor, forma.fondo ? *forma.fondo : QColor(Qt::transparent));
    return forma.premibile ? Sotto(colore, tocco) : colore;
}

/// A hairline of the screen, whatever the scale, so that it stays thin and sharp.
void Contorna(QPainter& p, const QRectF& area, double raggio, const QColor& colore, double scala) {
    const double filo = std::max(1.0, std::round(scala));
    p.setPen(QPen(colore, filo));
    p.setBrush(Qt::NoBrush);
    const double mezzo = filo / 2;
    p.drawRoundedRect(area.adjusted(mezzo, mezzo, -mezzo, -mezzo), raggio, raggio);
}

void Ombra(QPainter& p, const QRectF& area, double raggio, double scala) {
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::ombra);
    p.drawRoundedRect(area.translated(0, scala), raggio, raggio);
}

/// The tab whose page is in front is marked by more than its colour.
void DipingiSceltaScheda(QPainter& p, const QRectF& area, double scala) {
    constexpr double rientro = 14, altezza = 3, daSotto = 4;
    const QRectF riga(area.left() + rientro * scala, area.bottom() - (daSotto + altezza) * scala,
                      area.width() - 2 * rientro * scala, altezza * scala);
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::accento);
    p.drawRoundedRect(riga, riga.height() / 2, riga.height() / 2);
}

/// What there is room for of a path: its end tells where one is.
QString InFondo(const QString& percorso, const QPainter& p, double larghezza) {
    return QFontMetricsF(p.font(), p.device()).elidedText(percorso, Qt::ElideLeft, larghezza);
}

}  // namespace

void DipingiFondo(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                  const Tocco& tocco) {
    const FormaFondo forma = FormaDi(a.stile);
    const double raggio = forma.raggio * scala;
    p.setRenderHint(QPainter::Antialiasing, raggio > 0);
    p.setPen(Qt::NoPen);
    p.setBrush(Pennello(a, forma, area, tocco));
    p.drawRoundedRect(area, raggio, raggio);
    p.setRenderHint(QPainter::Antialiasing);
    if (forma.bordata || a.BorderStyle != 0) Contorna(p, area, raggio, tinta::filo, scala);
}

void DipingiBottone(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                    const Tocco& tocco) {
    p.setRenderHint(QPainter::Antialiasing);
    const double raggio = raggioPulsante * scala;
    const QColor fondo = InQt(a.BackColor, tinta::bottone);
    // One line of room below for the shadow; a pressed button sinks into it.
    QRectF faccia = area.adjusted(0, 0, 0, -scala);
    if (tocco.abilitato && !tocco.premuto) Ombra(p, faccia, raggio, scala);
    if (tocco.premuto) faccia.translate(0, scala);
    p.setPen(Qt::NoPen);
    p.setBrush(a.BackStyle == fondoTrasparente ? QBrush(Qt::NoBrush) : Sotto(fondo, tocco));
    p.drawRoundedRect(faccia, raggio, raggio);
    Contorna(p, faccia, raggio, tocco.abilitato ? tinta::filoForte : tinta::filo, scala);
    if (a.Ha("scheda") && a.Checked) DipingiSceltaScheda(p, faccia, scala);
    if (tocco.fuoco) DipingiAnello(p, faccia, scala);
    const double aria =
        std::min(ariaIcona * scala, std::min(area.width(), area.height()) / quotaIcona);
    // Under a picture the caption is what a reader says.
    if (EIcona(a.stile))
        return DipingiIcona(p, faccia.adjusted(aria, aria, -aria, -aria), a.stile, tocco);
    Aspetto centrato = a;
    centrato.stile << QStringLiteral("centro") << QStringLiteral("mezzo");
    DipingiTesto(p, faccia, centrato, scala, tocco.abilitato);
}

void DipingiTesto(QPainter& p, const QRectF& area, const Aspetto& a, double scala, bool abilitato) {
    if (a.Caption.empty()) return;
    p.setFont(Carattere(a.stile, scala));
    const QColor proprio =
        InQt(a.ForeColor, a.Ha("piccolo") ? tinta::inchiostroTenue : tinta::inchiostro);
    p.setPen(abilitato ? proprio : tinta::spento);
    const double rientro = a.Ha("riquadro") ? rientroRiquadro * scala : 0;
    const QRectF posto = area.adjusted(rientro, 0, -rientro, 0);
    const int dove = static_cast<int>(Allineamento(a.stile));
    if (a.Ha("percorso"))
        p.drawText(posto, dove | Qt::TextSingleLine, InFondo(InQt(a.Caption), p, posto.width()));
    else
        p.drawText(posto, dove | Qt::TextWordWrap | Qt::TextHideMnemonic, InQt(a.Caption));
}

void DipingiTasto(QPainter& p, const QRectF& area, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const QSizeF misura(26 * scala, area.height());
    QRectF tasto(QPointF(), misura);
    tasto.moveCenter(area.center());
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::filoForte);
    p.drawRoundedRect(tasto, 4 * scala, 4 * scala);
    p.setBrush(tinta::carta);
    p.drawRoundedRect(tasto.adjusted(scala, scala, -scala, -2.5 * scala), 3.5 * scala, 3.5 * scala);
}

void DipingiAnello(QPainter& p, const QRectF& area, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const double spessore = 2 * scala;
    p.setPen(QPen(tinta::accento, spessore));
    p.setBrush(Qt::NoBrush);
    const double mezzo = spessore / 2;
    const double raggio = (raggioPulsante - 1) * scala;
    p.drawRoundedRect(area.adjusted(mezzo, mezzo, -mezzo, -mezzo), raggio, raggio);
}

}  // namespace corvana
