#include "desktop/face_painter.h"

#include "desktop/gradient_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr double raggioPulsante = 7;
constexpr double raggioCarta = 10;
constexpr double raggioTondo = 5;

double Raggio(const Aspetto& a, double scala) {
    if (a.Ha("pulsante")) return raggioPulsante * scala;
    if (a.Ha("carta")) return raggioCarta * scala;
    return a.Ha("tondo") ? raggioTondo * scala : 0;
}

QColor FondoProprio(const Aspetto& a) {
    if (a.Ha("pulsante")) return InQt(a.fondo, tinta::bottone);
    if (a.Ha("carta")) return InQt(a.fondo, tinta::pannello);
    return InQt(a.fondo, Qt::transparent);
}

QColor Sotto(QColor colore, const Tocco& tocco) {
    if (!tocco.abilitato) return PiuChiara(colore, 0.45);
    if (tocco.premuto) return PiuScura(colore, 0.10);
    return tocco.sopra ? PiuScura(colore, 0.035) : colore;
}

QBrush Pennello(const Aspetto& a, const QRectF& area, const Tocco& tocco) {
    if (a.sfumatura.Presente()) return PennelloSfumatura(a.sfumatura, area);
    const QColor colore = FondoProprio(a);
    return a.Ha("pulsante") ? QBrush(Sotto(colore, tocco)) : QBrush(colore);
}

bool Bordato(const Aspetto& a) {
    return a.bordo != 0 || a.Ha("carta") || a.Ha("pulsante");
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
    p.setBrush(QColor(90, 70, 40, 26));
    p.drawRoundedRect(area.translated(0, scala), raggio, raggio);
}

}  // namespace

void DipingiFondo(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                  const Tocco& tocco) {
    const double raggio = Raggio(a, scala);
    p.setRenderHint(QPainter::Antialiasing, raggio > 0);
    p.setPen(Qt::NoPen);
    p.setBrush(Pennello(a, area, tocco));
    p.drawRoundedRect(area, raggio, raggio);
    p.setRenderHint(QPainter::Antialiasing);
    if (Bordato(a)) Contorna(p, area, raggio, tinta::filo, scala);
}

void DipingiBottone(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                    const Tocco& tocco) {
    p.setRenderHint(QPainter::Antialiasing);
    const double raggio = raggioPulsante * scala;
    const QColor fondo = InQt(a.fondo, tinta::bottone);
    // One line of room below for the shadow; a pressed button sinks into it.
    QRectF faccia = area.adjusted(0, 0, 0, -scala);
    if (tocco.abilitato && !tocco.premuto) Ombra(p, faccia, raggio, scala);
    if (tocco.premuto) faccia.translate(0, scala);
    p.setPen(Qt::NoPen);
    p.setBrush(Sotto(fondo, tocco));
    p.drawRoundedRect(faccia, raggio, raggio);
    Contorna(p, faccia, raggio, tocco.abilitato ? tinta::filoForte : tinta::filo, scala);
    if (tocco.fuoco) DipingiAnello(p, faccia, scala);
    Aspetto centrato = a;
    centrato.stile << QStringLiteral("centro") << QStringLiteral("mezzo");
    DipingiTesto(p, faccia, centrato, scala, tocco.abilitato);
}

void DipingiTesto(QPainter& p, const QRectF& area, const Aspetto& a, double scala, bool abilitato) {
    if (a.caption.isEmpty()) return;
    p.setFont(Carattere(a.stile, scala));
    const QColor proprio =
        InQt(a.penna, a.Ha("piccolo") ? tinta::inchiostroTenue : tinta::inchiostro);
    p.setPen(abilitato ? proprio : tinta::spento);
    p.drawText(area,
               static_cast<int>(Allineamento(a.stile)) | Qt::TextWordWrap | Qt::TextHideMnemonic,
               a.caption);
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
