#include "desktop/figure_painter.h"

#include <algorithm>

#include "desktop/chart_signs.h"
#include "desktop/drawn_once.h"
#include "desktop/sign_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

const QLatin1String prefissoFigura("figura:");

// In spaces of a staff.
constexpr int semiminima = 2;
constexpr double mezzaTestaFigura = 0.62, centroTesta = 0.62;
constexpr double sopraIlGambo = -4.3;

// In designed pixels.
constexpr double spazioFigura = 8;
constexpr double raggioFigura = 7, spessoreAccesa = 2.5, altezzaLampada = 5;
constexpr double postoLampada = 17, raggioLampada = 8;
constexpr double larghezzaLampada = 52;  ///< from which a lamp has room beside the name

QPainterPath Tratteggio(const QPainterPath& linea, double spessore) {
    QPainterPathStroker penna;
    penna.setWidth(spessore);
    penna.setCapStyle(Qt::RoundCap);
    penna.setJoinStyle(Qt::RoundJoin);
    return penna.createStroke(linea);
}

QPainterPath Semiminima() {
    return SegniDellaTavola().nota(semiminima);
}

QPainterPath Tondo(double x, double y, double raggio) {
    QPainterPath punto;
    punto.addEllipse(QPointF(x, y), raggio, raggio);
    return punto;
}

QPainterPath Spezzata(const QPolygonF& punti, double spessore) {
    QPainterPath linea;
    linea.addPolygon(punti);
    return Tratteggio(linea, spessore);
}

QPainterPath SegnoMaggiore(double x, double y) {
    return Spezzata({QPointF(x - 0.75, y - 0.5), QPointF(x + 0.75, y), QPointF(x - 0.75, y + 0.5)},
                    0.22);
}

/// The same note twice, and the bow that makes one of them.
QPainterPath Legatura() {
    constexpr double seconda = 2.6;
    QPainterPath arco(QPointF(centroTesta, 0.95));
    arco.quadTo(centroTesta + seconda / 2, 2.1, centroTesta + seconda, 0.95);
    return Semiminima() | Semiminima().translated(seconda, 0) | Tratteggio(arco, 0.2);
}

QPainterPath Terzina() {
    QPainterPath cifra;
    QFont font(FamiglieDelTesto().front());
    font.setFamilies(FamiglieDelTesto());
    font.setPixelSize(100);
    font.setWeight(QFont::Medium);
    cifra.addText(0, 0, font, QStringLiteral("3"));
    const QRectF sua = cifra.boundingRect();
    // As large as the letters of a text, beside notes that are the smaller for it.
    constexpr double cifraInSpazi = 0.031, passo = 1.35;
    QTransform inSpazi;
    inSpazi.translate(centroTesta + passo, sopraIlGambo - 0.5)
        .scale(cifraInSpazi, cifraInSpazi)
        .translate(-sua.center().x(), 0);
    QPainterPath note;
    for (int i = 0; i < 3; ++i)
        note |= Semiminima().translated(passo * i, 0);
    return note | inSpazi.map(cifra);
}

QPainterPath Attributo(const QString& nome) {
    const double sotto = 1.45;
    if (nome == QLatin1String("punto")) return Semiminima() | Tondo(2.05, -0.2, 0.32);
    if (nome == QLatin1String("staccato")) return Semiminima() | Tondo(centroTesta, sotto, 0.3);
    if (nome == QLatin1String("appoggiato"))
        return Semiminima() | Spezzata({QPointF(centroTesta - mezzaTestaFigura - 0.1, sotto),
                                        QPointF(centroTesta + mezzaTestaFigura + 0.1, sotto)},
                                       0.26);
    if (nome == QLatin1String("accento"))
        return Semiminima() | SegnoMaggiore(centroTesta, sotto + 0.1);
    if (nome == QLatin1String("legatura")) return Legatura();
    if (nome == QLatin1String("terzina")) return Terzina();
    if (nome == QLatin1String("maggiore")) return SegnoMaggiore(0, 0);
    if (nome == QLatin1String("diesis")) return SegniDellaTavola().alterazione(true);
    return {};
}

QString NomeFigura(const QStringList& stile) {
    for (const QString& parola : stile)
        if (parola.startsWith(prefissoFigura)) return parola.mid(prefissoFigura.size());
    return {};
}

QColor SulFondo(const QColor& fondo, const Tocco& tocco) {
    if (!tocco.abilitato) return PiuChiara(fondo, 0.45);
    if (tocco.premuto) return PiuScura(fondo, 0.1);
    return tocco.sopra ? PiuScura(fondo, 0.035) : fondo;
}

void DipingiAccesa(QPainter& p, const QRectF& area, const QColor& luce, double scala,
                   const Tocco& tocco) {
    const double mezzo = spessoreAccesa * scala / 2;
    const QRectF dentro = area.adjusted(mezzo, mezzo, -mezzo, -mezzo);
    p.setPen(QPen(PiuScura(luce, 0.6), 2 * mezzo));
    p.setBrush(SulFondo(PiuChiara(luce, 0.72), tocco));
    p.drawRoundedRect(dentro, raggioFigura * scala, raggioFigura * scala);
    QRectF lampada(0, 0, area.width() * 0.55, altezzaLampada * scala);
    lampada.moveCenter({area.center().x(), area.bottom() - 7 * scala});
    p.setPen(QPen(PiuScura(luce, 0.6), scala));
    p.setBrush(luce);
    p.drawRoundedRect(lampada, lampada.height() / 2, lampada.height() / 2);
}

void DipingiSpenta(QPainter& p, const QRectF& area, double scala, const Tocco& tocco) {
    p.setPen(QPen(tinta::filoForte, std::max(1.0, std::round(scala))));
    p.setBrush(SulFondo(tinta::bottone, tocco));
    p.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), raggioFigura * scala,
                      raggioFigura * scala);
}

/// As large as all of its like, or smaller where the button is too small for it.
void DipingiTraccia(QPainter& p, const QRectF& area, const QString& nome, double scala,
                    bool abilitata) {
    const QPainterPath traccia = TracciaFigura(nome);
    const QRectF sua = traccia.boundingRect();
    if (sua.isEmpty()) return;
    const double spazio =
        std::min({spazioFigura * scala, area.width() / sua.width(), area.height() / sua.height()});
    p.save();
    p.translate(area.center());
    p.scale(spazio, spazio);
    p.translate(-sua.center());
    RiempiUnaVolta(p, prefissoFigura + nome, traccia,
                   abilitata ? tinta::inchiostro : tinta::spento);
    p.restore();
}

/// A lamp beside the name. Returns the place that is left for it.
QRectF DipingiLampada(QPainter& p, const QRectF& area, const QColor& luce, double scala,
                      bool attiva) {
    const QPointF lampada(area.right() - postoLampada * scala, area.center().y());
    const double raggio = raggioLampada * scala;
    p.setPen(QPen(PiuScura(luce, attiva ? 0.6 : 0.25), 2 * scala));
    p.setBrush(attiva ? QBrush(luce) : QBrush(Qt::NoBrush));
    p.drawEllipse(lampada, attiva ? raggio : raggio * 0.62, attiva ? raggio : raggio * 0.62);
    if (attiva) DipingiSegno(p, lampada, true, tinta::inchiostro, 0.85 * scala);
    return area.adjusted(0, 0, -2 * postoLampada * scala + 8 * scala, 0);
}

/// Where there is no room beside the name, a strip beneath it: a broad one, or a mere line.
QRectF DipingiLuceBassa(QPainter& p, const QRectF& area, const QColor& luce, double scala,
                        bool attiva) {
    const double lunga = (attiva ? 0.62 : 0.3) * area.width(), alta = (attiva ? 4 : 2) * scala;
    QRectF striscia(0, 0, lunga, alta);
    striscia.moveCenter({area.center().x(), area.bottom() - 6 * scala});
    p.setPen(Qt::NoPen);
    p.setBrush(PiuScura(luce, attiva ? 0.6 : 0.25));
    p.drawRoundedRect(striscia, alta / 2, alta / 2);
    return area.adjusted(0, 0, 0, -6 * scala);
}

}  // namespace

QPainterPath TracciaFigura(const QString& nome) {
    bool numero = false;
    const int figura = nome.toInt(&numero);
    if (!numero) return Attributo(nome);
    if (figura < 0 || figura >= valoriDelleNote) return {};
    return SegniDellaTavola().nota(figura);
}

void DipingiFigura(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                   const Tocco& tocco, bool accesa) {
    p.setRenderHint(QPainter::Antialiasing);
    const bool nuda = a.Ha("nuda");
    if (accesa && !nuda)
        DipingiAccesa(p, area, InQt(a.BackColor, tinta::accento), scala, tocco);
    else if (!nuda)
        DipingiSpenta(p, area, scala, tocco);
    const double lato = nuda ? 0 : 4 * scala, piede = nuda ? 0 : 12 * scala;
    DipingiTraccia(p, area.adjusted(lato, lato, -lato, -piede), NomeFigura(a.stile), scala,
                   tocco.abilitato);
    if (tocco.fuoco) DipingiAnello(p, area, scala);
}

void DipingiVoceAttiva(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                       const Tocco& tocco, bool attiva) {
    p.setRenderHint(QPainter::Antialiasing);
    const QColor luce = InQt(a.BackColor, tinta::accento);
    const double spessore = (attiva ? spessoreAccesa : 1) * scala, mezzo = spessore / 2;
    p.setPen(QPen(attiva ? PiuScura(luce, 0.6) : tinta::filoForte, spessore));
    p.setBrush(SulFondo(attiva ? PiuChiara(luce, 0.72) : tinta::bottone, tocco));
    p.drawRoundedRect(area.adjusted(mezzo, mezzo, -mezzo, -mezzo), raggioFigura * scala,
                      raggioFigura * scala);
    const bool stretta = area.width() < larghezzaLampada * scala;
    const QRectF posto = stretta ? DipingiLuceBassa(p, area, luce, scala, attiva)
                                 : DipingiLampada(p, area, luce, scala, attiva);
    Aspetto nome = a;
    nome.BackColor = coloreDiSistema;
    nome.stile = {stretta ? QStringLiteral("titolo") : QStringLiteral("nome"),
                  QStringLiteral("centro"), QStringLiteral("mezzo")};
    DipingiTesto(p, posto, nome, scala, tocco.abilitato);
    if (tocco.fuoco) DipingiAnello(p, area, scala);
}

}  // namespace corvana
