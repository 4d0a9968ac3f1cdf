#include "desktop/icon_painter.h"

#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "desktop/drawn_once.h"

namespace corvana {

namespace {

const QLatin1String prefisso("icona:");

QString NomeIcona(const QStringList& stile) {
    const auto e = std::find_if(stile.begin(), stile.end(),
                                [](const QString& parola) { return parola.startsWith(prefisso); });
    return e == stile.end() ? QString() : e->mid(prefisso.size());
}

QString Percorso(const QString& nome) {
    return QStringLiteral(":/icons/%1.svg").arg(nome);
}

QRect Quadrato(const QRectF& area) {
    const int lato = static_cast<int>(std::min(area.width(), area.height()));
    const QSizeF resto = area.size() - QSizeF(lato, lato);
    return {(area.topLeft() + QPointF(resto.width(), resto.height()) / 2).toPoint(),
            QSize(lato, lato)};
}

QPixmap Immagine(const QString& nome, int lato, double densita) {
    const int punti = static_cast<int>(std::lround(lato * densita));
    return DisegnatoUnaVolta(QStringLiteral("icona ") + nome, {punti, punti}, densita,
                             [&](QPainter& p) { QSvgRenderer(Percorso(nome)).render(&p); });
}

}  // namespace

bool EIcona(const QStringList& stile) {
    return !NomeIcona(stile).isEmpty();
}

QIcon IconaDelProgramma(const QString& nome) {
    QIcon icona;
    for (const int lato : {16, 24, 32, 48, 64, 96})
        icona.addPixmap(Immagine(nome, lato, 1));
    return icona;
}

void DipingiIcona(QPainter& p, const QRectF& area, const QStringList& stile, const Tocco& tocco) {
    const QRect posto = Quadrato(area);
    if (posto.isEmpty()) return;
    if (!tocco.abilitato) p.setOpacity(0.35);
    p.drawPixmap(posto.topLeft(),
                 Immagine(NomeIcona(stile), posto.width(), p.device()->devicePixelRatioF()));
    p.setOpacity(1);
}

}  // namespace corvana
