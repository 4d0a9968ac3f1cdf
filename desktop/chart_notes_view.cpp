#include "desktop/chart_notes_view.h"

#include "desktop/chart_painter.h"
#include "desktop/chart_signs.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

// Designed pixels.
constexpr int colonneTavola = 7;
constexpr double spazioScala = 11, spazioValori = 12;
constexpr double bassoScala = 71, bassoNote = 110, bassoPause = 198;
constexpr double mezzaLineaDelDo = 16;
constexpr double cimaColonne = 24;
constexpr double altoFrazione = 236, altoParte = 266, altaParte = 12;

double MezzoColonna(int colonna, double larghezza) {
    return (colonna + 0.5) * larghezza / colonneTavola;
}

/// What share of a whole note it lasts, in figures and as a bar.
void DipingiParte(QPainter& p, double x, int quante) {
    constexpr double largaParte = 88;
    const QString frazione = quante == 1 ? QStringLiteral("1") : QStringLiteral("1/%1").arg(quante);
    Scrivi(p, {x - largaParte / 2, altoFrazione, largaParte, 24}, Qt::AlignCenter, frazione);
    const QRectF intero(x - largaParte / 2, altoParte, largaParte, altaParte);
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::accentoTenue);
    p.drawRect(intero);
    p.setBrush(tinta::accento);
    p.drawRect(QRectF(intero.topLeft(), QSizeF(largaParte / quante, altaParte)));
}

void DipingiValore(QPainter& p, int valore, double x) {
    constexpr int secondoSpazio = 3;
    const SegniTavola segni = SegniDellaTavola();
    const QPainterPath nota = segni.nota(valore);
    // Heads stand one beneath the other, whatever flags hang beside them.
    const double mezzaTesta = segni.nota(0).boundingRect().width() / 2 * spazioValori;
    const double y = bassoNote - secondoSpazio * spazioValori / 2;
    DipingiSegnoTavola(p, nota, {x - mezzaTesta, y}, spazioValori);
    DipingiSegnoInMezzo(p, segni.pausa(valore), {x, bassoPause}, spazioValori);
    DipingiParte(p, x, ParteDellIntero(valore));
}

}  // namespace

void VistaScala::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    p.scale(Scala(), Scala());
    const double larghezza = area.width() / Scala();
    const RigoTavola rigo{0, larghezza, bassoScala, spazioScala};
    DipingiRigo(p, rigo);
    DipingiChiaveTavola(p, rigo, ChiaveRigo::Violino);
    DipingiFilo(p, {larghezza, rigo.Passo(8)}, {larghezza, rigo.Passo(0)}, tinta::inchiostro);
    const QPainterPath testa = SegniDellaTavola().nota(0);
    for (int nota = 0; nota < colonneTavola; ++nota) {
        const double x = MezzoColonna(nota, larghezza), y = rigo.Passo(PassoDellaScala(nota));
        if (PassoDellaScala(nota) < -1)
            DipingiFilo(p, {x - mezzaLineaDelDo, y}, {x + mezzaLineaDelDo, y}, tinta::inchiostro);
        DipingiSegnoInMezzo(p, testa, {x, y}, spazioScala);
    }
}

void VistaValori::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    p.scale(Scala(), Scala());
    const QSizeF misura = area.size() / Scala();
    DipingiFilo(p, {0, 0}, {misura.width(), 0}, tinta::filo);
    for (int i = 1; i < colonneTavola; ++i) {
        const double x = i * misura.width() / colonneTavola;
        DipingiFilo(p, {x, cimaColonne}, {x, altoParte + altaParte}, tinta::filo);
    }
    for (const double basso : {bassoNote, bassoPause})
        DipingiRigo(p, {0, misura.width(), basso, spazioValori});
    for (int valore = 0; valore < valoriDelleNote; ++valore)
        DipingiValore(p, valore, MezzoColonna(valore, misura.width()));
}

}  // namespace corvana
