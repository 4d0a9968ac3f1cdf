#include "desktop/chart_signs.h"

#include <algorithm>

#include "desktop/music_font.h"

namespace corvana {

namespace {

constexpr double mezzoSpazio = 0.54;  ///< of the font, from a head's foot to its middle
constexpr double altezzaGambo = 3.5;
constexpr double spessoreGambo = 0.14;
constexpr double traCode = 0.75;
constexpr int primaConGambo = 1, primaPiena = 2, primaConCoda = 3;

QPainterPath LetteraMusicale(char32_t codice) {
    return TracciaDelFont(codice).value_or(QPainterPath());
}

QPainterPath AlterazioneDelFont(bool diesis) {
    return LetteraMusicale(diesis ? U'\u266F' : U'\u266D').translated(0, mezzoSpazio);
}

QPainterPath NotaDelFont(int valore) {
    constexpr char32_t semibreve = U'\U0001D15D';
    return LetteraMusicale(semibreve + static_cast<char32_t>(valore)).translated(0, mezzoSpazio);
}

QPainterPath Stilo(const QPainterPath& linea, double spessore) {
    QPainterPathStroker penna;
    penna.setWidth(spessore);
    penna.setCapStyle(Qt::FlatCap);
    penna.setJoinStyle(Qt::MiterJoin);
    return penna.createStroke(linea);
}

QPainterPath Riga(const QPointF& da, const QPointF& a, double spessore) {
    QPainterPath linea(da);
    linea.lineTo(a);
    return Stilo(linea, spessore);
}

QPainterPath AlterazioneAMano(bool diesis) {
    QPainterPath segno;
    if (diesis) {
        for (const double x : {0.32, 0.68})
            segno |= Riga({x, 1.4 - x / 2}, {x, -1.1 - x / 2}, 0.12);
        for (const double y : {-0.35, 0.45})
            segno |= Riga({0, y + 0.12}, {1, y - 0.18}, 0.26);
        return segno;
    }
    QPainterPath pancia(QPointF(0.07, -0.3));
    pancia.cubicTo(0.6, -0.75, 1.25, -0.1, 0.07, 0.6);
    return Riga({0.07, -1.9}, {0.07, 0.65}, 0.13) | Stilo(pancia, 0.2);
}

QPainterPath TestaAMano(int valore) {
    const bool semibreve = valore < primaConGambo;
    const double mezza = semibreve ? 0.85 : 0.68;
    QPainterPath testa, vuoto;
    testa.addEllipse(QPointF(), mezza, 0.5);
    if (valore < primaPiena) vuoto.addEllipse(QPointF(), mezza * 0.62, 0.27);
    QTransform gira = QTransform::fromTranslate(mezza, 0);
    if (!semibreve) gira.rotate(-22);
    return gira.map(testa - vuoto);
}

QPainterPath CodaAMano(double x, double y) {
    QPainterPath coda(QPointF(x, y));
    coda.cubicTo(x + 0.1, y + 0.9, x + 1.2, y + 1.1, x + 0.75, y + 2.2);
    coda.cubicTo(x + 0.95, y + 1.4, x + 0.2, y + 1, x, y + 0.8);
    coda.closeSubpath();
    return coda;
}

QPainterPath NotaAMano(int valore) {
    QPainterPath nota = TestaAMano(valore);
    if (valore < primaConGambo) return nota;
    const int code = std::max(0, valore - primaConCoda + 1);
    const double x = nota.boundingRect().right() - spessoreGambo / 2;
    const double cima = -altezzaGambo - traCode * std::max(0, code - 2);
    nota |= Riga({x, -0.15}, {x, cima}, spessoreGambo);
    for (int coda = 0; coda < code; ++coda)
        nota |= CodaAMano(x, cima + coda * traCode);
    return nota;
}

QPainterPath PausaDiSemiminima() {
    QPainterPath segno(QPointF(0.35, -3.5));
    segno.lineTo(0.9, -2.7);
    segno.cubicTo(0.3, -2.3, 0.5, -2.1, 1, -1.5);
    segno.cubicTo(0.2, -1.7, 0.1, -1.1, 0.65, -0.6);
    return Stilo(segno, 0.26);
}

QPainterPath PausaAMano(int valore) {
    QPainterPath segno;
    if (valore == 0) segno.addRect(0, -3, 1.2, 0.5);
    if (valore == 1) segno.addRect(0, -2.5, 1.2, 0.5);
    if (valore == 2) return PausaDiSemiminima();
    const int palline = valore - primaConCoda + 1;
    if (palline <= 0) return segno;
    // The balls stand in the spaces, from the second uppermost one downwards, more above it.
    const double cima = palline > 1 ? -3.6 - (palline > 3 ? 1 : 0) : -2.6;
    const double fondo = cima + 0.9 + palline;
    const auto inclina = [=](double y) { return 0.45 + (fondo - y) * 0.3; };
    segno = Riga({inclina(cima - 0.2), cima - 0.2}, {inclina(fondo), fondo}, 0.14);
    for (int i = 0; i < palline; ++i) {
        const double y = cima + i, x = inclina(y) - 0.75;
        QPainterPath pallina, braccio(QPointF(x, y + 0.2));
        pallina.addEllipse(QPointF(x, y), 0.26, 0.26);
        braccio.quadTo(x + 0.45, y + 0.4, inclina(y - 0.2), y - 0.2);
        segno = segno | pallina | Stilo(braccio, 0.12);
    }
    return segno.translated(-segno.boundingRect().left(), 0);
}

QPainterPath PausaDelFont(int valore) {
    constexpr char32_t semibreve = U'\U0001D13B';
    // The font's two longest ones bring a piece of a line along, which the staff has already.
    if (valore < primaPiena) return PausaAMano(valore);
    return LetteraMusicale(semibreve + static_cast<char32_t>(valore));
}

}  // namespace

SegniTavola SegniDellaTavola() {
    constexpr char32_t diesis = U'\u266F';
    static const bool conFont = TracciaDelFont(diesis).has_value();
    if (!conFont) return SegniTavolaAMano();
    return {AlterazioneDelFont, NotaDelFont, PausaDelFont};
}

SegniTavola SegniTavolaAMano() {
    return {AlterazioneAMano, NotaAMano, PausaAMano};
}

}  // namespace corvana
