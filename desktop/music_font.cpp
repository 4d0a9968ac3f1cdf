#include "desktop/music_font.h"

#include <QFont>
#include <QFontDatabase>
#include <QTransform>

namespace corvana {

namespace {

char32_t Codice(Segno segno) {
    return segno == Segno::ChiaveViolino ? U'\U0001D11E' : U'\U0001D122';
}

/// How each font's signs lie: how many staff spaces its letter square is high, and how far its
/// baseline lies above the lowest line, for each sign, in spaces.
struct FontMusicale {
    const char* famiglia;
    double spazi;
    double alzaViolino, alzaBasso;
};

constexpr FontMusicale fontMusicali[] = {
    {"Euterpe", 5.0, 0.0, 0.0},
    {"FreeSerif", 5.9, 1.0, 0.0},
    {"Noto Music", 4.05, 0.0, 0.0},
};

QPainterPath DaFont(const FontMusicale& f, char32_t codice, double alza) {
    constexpr int grande = 1000;
    QFont font(QString::fromLatin1(f.famiglia));
    font.setStyleStrategy(QFont::NoFontMerging);
    font.setPixelSize(grande);
    QPainterPath grezza;
    grezza.addText(0, 0, font, QString::fromUcs4(&codice, 1));
    const double scala = f.spazi / grande;
    return QTransform::fromTranslate(-grezza.boundingRect().left() * scala, -alza)
        .scale(scala, scala)
        .map(grezza);
}

bool CeIlFont(const FontMusicale& f) {
    return QFontDatabase::hasFamily(QLatin1String(f.famiglia));
}

/// From the first font that the machine has, else by hand.
QPainterPath Cerca(Segno segno) {
    for (const FontMusicale& f : fontMusicali)
        if (CeIlFont(f))
            return DaFont(f, Codice(segno),
                          segno == Segno::ChiaveViolino ? f.alzaViolino : f.alzaBasso);
    return TracciaSegnoAMano(segno);
}

/// One stroke of a pen as wide as `spessore`.
QPainterPath Tratto(const QPainterPath& linea, double spessore) {
    QPainterPathStroker penna;
    penna.setWidth(spessore);
    penna.setCapStyle(Qt::RoundCap);
    penna.setJoinStyle(Qt::RoundJoin);
    return penna.createStroke(linea);
}

QPainterPath ViolinoAMano() {
    QPainterPath linea(QPointF(1.25, -1.0));
    linea.cubicTo(1.25, -1.55, 1.95, -1.55, 1.95, -0.95);
    linea.cubicTo(1.95, -0.2, 0.35, -0.1, 0.3, -1.25);
    linea.cubicTo(0.25, -2.6, 2.0, -3.0, 1.75, -4.4);
    linea.cubicTo(1.6, -5.2, 0.95, -4.6, 1.05, -3.7);
    linea.lineTo(1.6, 0.7);
    linea.cubicTo(1.7, 1.6, 0.7, 1.6, 0.75, 1.05);
    return Tratto(linea, 0.2);
}

QPainterPath BassoAMano() {
    QPainterPath linea(QPointF(0.35, -3.0));
    linea.cubicTo(0.1, -4.3, 2.0, -4.3, 2.0, -2.9);
    linea.cubicTo(2.0, -1.9, 1.2, -1.3, 0.2, -0.8);
    QPainterPath segno = Tratto(linea, 0.25);
    for (const QPointF& punto : {QPointF(0.45, -2.95), QPointF(2.6, -3.5), QPointF(2.6, -2.5)}) {
        const double raggio = punto.x() < 1 ? 0.32 : 0.2;
        segno.addEllipse(punto, raggio, raggio);
    }
    segno.setFillRule(Qt::WindingFill);
    return segno;
}

}  // namespace

const QPainterPath& TracciaSegno(Segno segno) {
    static const QPainterPath violino = Cerca(Segno::ChiaveViolino);
    static const QPainterPath basso = Cerca(Segno::ChiaveBasso);
    return segno == Segno::ChiaveViolino ? violino : basso;
}

std::optional<QPainterPath> TracciaDelFont(char32_t codice) {
    const FontMusicale& f = fontMusicali[0];
    if (!CeIlFont(f)) return std::nullopt;
    return DaFont(f, codice, 0);
}

QPainterPath TracciaSegnoAMano(Segno segno) {
    return segno == Segno::ChiaveViolino ? ViolinoAMano() : BassoAMano();
}

QPainterPath TracciaGraffa(double altezza, double larghezza) {
    const double h = altezza, l = larghezza, mezzo = h / 2;
    QPainterPath graffa(QPointF(0, 0));
    graffa.cubicTo(-1.75 * l, 0.13 * h, 0.45 * l, 0.38 * h, -l, mezzo);
    graffa.cubicTo(0.45 * l, 0.62 * h, -1.75 * l, 0.87 * h, 0, h);
    const QPointF dentro(-0.7 * l, mezzo);
    graffa.cubicTo({-0.85 * l, 0.85 * h}, {1.1 * l, 0.64 * h}, dentro);
    graffa.cubicTo({1.1 * l, 0.36 * h}, {-0.85 * l, 0.15 * h}, {0, 0});
    return graffa;
}

}  // namespace corvana
