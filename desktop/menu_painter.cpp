#include "desktop/menu_painter.h"

#include <QIconEngine>
#include <QPixmap>
#include <QStyle>
#include <algorithm>

#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double altezzaVoce = 25, altezzaFilo = 9, altezzaSbarra = 27;
constexpr double bordo = 12, colonnaSegni = 28, colonnaFreccia = 24;
constexpr double ariaSbarra = 10;  ///< to each side of a text of the bar
constexpr double spessoreSegno = 2;

bool Filo(const QStyleOptionMenuItem& o) {
    return o.menuItemType == QStyleOptionMenuItem::Separator;
}

bool Viva(const QStyleOptionMenuItem& o) {
    return o.state.testFlag(QStyle::State_Enabled);
}

double Inizio(const QStyleOptionMenuItem& o) {
    return o.menuHasCheckableItems ? colonnaSegni : bordo;
}

int Intero(double pixel) {
    return static_cast<int>(std::lround(pixel));
}

QPen PennaSegno(const QColor& colore, double scala) {
    return {colore, spessoreSegno * scala, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void Evidenzia(QPainter& p, const QRectF& area, double scala) {
    p.setPen(Qt::NoPen);
    p.setBrush(tinta::accentoTenue);
    p.drawRoundedRect(area, 5 * scala, 5 * scala);
}

void Scrivi(QPainter& p, const QStyleOptionMenuItem& o, const QRectF& area, int dove,
            const QString& testo) {
    p.setFont(o.font);
    p.setPen(Viva(o) ? tinta::inchiostro : tinta::spento);
    p.drawText(area, dove | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, testo);
}

void Freccia(QPainter& p, const QRectF& area, const QColor& colore, double scala) {
    p.setBrush(Qt::NoBrush);
    p.setPen(PennaSegno(colore, scala));
    const QPointF c = area.center();
    const QPointF punti[] = {c + QPointF(-2, -4) * scala, c + QPointF(2, 0) * scala,
                             c + QPointF(-2, 4) * scala};
    p.drawPolyline(punti, std::size(punti));
}

class Seguito final : public QIconEngine {
public:
    void paint(QPainter* p, const QRect& area, QIcon::Mode modo, QIcon::State) override {
        const QColor colore = modo == QIcon::Disabled ? tinta::spento : tinta::inchiostro;
        const double lato = std::min(area.width(), area.height());
        p->setRenderHint(QPainter::Antialiasing);
        for (const double dove : {-0.2, 0.15})
            Freccia(*p, QRectF(area).translated(dove * lato, 0), colore, lato / 12);
    }
    QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap immagine(misura);
        immagine.fill(Qt::transparent);
        QPainter p(&immagine);
        paint(&p, QRect(QPoint(), misura), modo, stato);
        return immagine;
    }
    QIconEngine* clone() const override { return new Seguito(*this); }
};

void DipingiFilo(QPainter& p, const QStyleOptionMenuItem& o, double scala) {
    p.setPen(QPen(tinta::filo, std::max(1.0, scala)));
    const double y = QRectF(o.rect).center().y();
    p.drawLine(QPointF(o.rect.left() + bordo * scala, y),
               QPointF(o.rect.right() - bordo * scala, y));
}

}  // namespace

QSize MisuraVoce(const QStyleOptionMenuItem& o, const QSize& testo, double scala) {
    if (Filo(o)) return {testo.width(), Intero(altezzaFilo * scala)};
    const int lati = Intero((Inizio(o) + colonnaFreccia) * scala);
    return {testo.width() + lati, std::max(testo.height(), Intero(altezzaVoce * scala))};
}

QSize MisuraVoceSbarra(const QSize& testo, double scala) {
    return {testo.width() + Intero(2 * ariaSbarra * scala), Intero(altezzaSbarra * scala)};
}

void DipingiVoce(QPainter& p, const QStyleOptionMenuItem& o, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    if (Filo(o)) return DipingiFilo(p, o, scala);
    const QRectF area(o.rect);
    if (o.state.testFlag(QStyle::State_Selected) && Viva(o)) Evidenzia(p, area, scala);
    const QColor colore = Viva(o) ? tinta::accento : tinta::spento;
    QRectF segno = area;
    segno.setWidth(colonnaSegni * scala);
    if (o.checked) DipingiSegnata(p, segno, colore, scala);
    QRectF freccia = area;
    freccia.setLeft(area.right() - colonnaFreccia * scala);
    if (o.menuItemType == QStyleOptionMenuItem::SubMenu) Freccia(p, freccia, colore, scala);
    const QRectF posto = area.adjusted(Inizio(o) * scala, 0, -bordo * scala, 0);
    const QStringList parti = o.text.split(QLatin1Char('\t'));
    Scrivi(p, o, posto, Qt::AlignLeft, parti.front());
    if (parti.size() > 1) Scrivi(p, o, posto, Qt::AlignRight, parti.back());
}

void DipingiVoceSbarra(QPainter& p, const QStyleOptionMenuItem& o, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(o.rect, tinta::finestra);
    const QRectF area(o.rect);
    if (o.state.testFlag(QStyle::State_Selected) && Viva(o))
        Evidenzia(p, area.adjusted(scala, scala, -scala, -scala), scala);
    Scrivi(p, o, area, Qt::AlignHCenter, o.text);
}

void DipingiSegnata(QPainter& p, const QRectF& area, const QColor& colore, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(PennaSegno(colore, scala));
    const QPointF c = area.center();
    const QPointF punti[] = {c + QPointF(-4.5, 0) * scala, c + QPointF(-1.3, 3.5) * scala,
                             c + QPointF(4.7, -4) * scala};
    p.drawPolyline(punti, std::size(punti));
}

QIcon IconaDelSeguito() {
    return QIcon(new Seguito);
}

}  // namespace corvana
