#include "desktop/sign_painter.h"

#include <QPainterPath>

#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double spessoreSegno = 2.4;
constexpr double postoSegno = 14;  ///< of its middle, from the left
constexpr double ingrandimentoEsito = 1.6;
constexpr double dallAngolo = 7.5, spessoreSvelata = 2, raggioSvelata = 7;
constexpr double riduzioneSvelata = 0.6;
constexpr double raggioPasso = 2.25, traPassi = 9, sottoPassi = 6.5;

QPainterPath TracciaSegno(bool giusto) {
    QPainterPath segno;
    if (giusto) {
        segno.addPolygon(QPolygonF({{-5, 0}, {-1.5, 4}, {5, -4.5}}));
        return segno;
    }
    segno.addPolygon(QPolygonF({QPointF(-4, -4), QPointF(4, 4)}));
    segno.addPolygon(QPolygonF({QPointF(-4, 4), QPointF(4, -4)}));
    return segno;
}

}  // namespace

void DipingiSegno(QPainter& p, const QPointF& centro, bool giusto, const QColor& colore,
                  double scala) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(colore, spessoreSegno, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.translate(centro);
    p.scale(scala, scala);
    p.drawPath(TracciaSegno(giusto));
    p.restore();
}

void DipingiEsito(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala) {
    for (const bool giusto : {true, false}) {
        if (!aspetto.Ha(giusto ? "giuste" : "sbagliate")) continue;
        if (aspetto.Ha("esito"))
            DipingiSegno(p, area.center(), giusto, tinta::inchiostro, ingrandimentoEsito * scala);
        else
            DipingiSegno(p, {area.left() + postoSegno * scala, area.center().y()}, giusto,
                         giusto ? tinta::giusto : tinta::sbagliato, scala);
    }
}

void DipingiPassi(QPainter& p, const QRectF& area, const Aspetto& aspetto, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF mezzo(area.center().x(), area.bottom() - sottoPassi * scala);
    for (int passo = 0; passo < aspetto.Max; ++passo) {
        const bool fatto = passo < aspetto.Value;
        p.setPen(QPen(fatto ? tinta::accento : tinta::filoForte, scala));
        p.setBrush(fatto ? QBrush(tinta::accento) : QBrush(Qt::NoBrush));
        const double via = (passo - (aspetto.Max - 1) / 2.0) * traPassi * scala;
        p.drawEllipse(mezzo + QPointF(via, 0), raggioPasso * scala, raggioPasso * scala);
    }
}

void DipingiSvelata(QPainter& p, const QRectF& area, double scala) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(tinta::giusto, spessoreSvelata * scala));
    const double mezzo = spessoreSvelata * scala / 2, raggio = raggioSvelata * scala;
    p.drawRoundedRect(area.adjusted(mezzo, mezzo, -mezzo, -mezzo), raggio, raggio);
    const double via = dallAngolo * scala;
    DipingiSegno(p, area.topRight() + QPointF(-via, via), true, tinta::giusto,
                 riduzioneSvelata * scala);
}

}  // namespace corvana
