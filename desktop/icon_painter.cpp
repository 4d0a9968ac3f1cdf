#include "desktop/icon_painter.h"

#include <QSvgRenderer>
#include <algorithm>

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

QRectF Quadrato(const QRectF& area) {
    const double lato = std::min(area.width(), area.height());
    return {area.center().x() - lato / 2, area.center().y() - lato / 2, lato, lato};
}

}  // namespace

bool EIcona(const QStringList& stile) {
    return !NomeIcona(stile).isEmpty();
}

QIcon IconaDelProgramma(const QString& nome) {
    QSvgRenderer disegno(Percorso(nome));
    QIcon icona;
    for (const int lato : {16, 24, 32, 48, 64, 96, 128, 256}) {
        QPixmap immagine(lato, lato);
        immagine.fill(Qt::transparent);
        QPainter p(&immagine);
        disegno.render(&p);
        p.end();
        icona.addPixmap(immagine);
    }
    return icona;
}

void DipingiIcona(QPainter& p, const QRectF& area, const QStringList& stile, const Tocco& tocco) {
    QSvgRenderer disegno(Percorso(NomeIcona(stile)));
    p.setRenderHint(QPainter::Antialiasing);
    if (!tocco.abilitato) p.setOpacity(0.35);
    disegno.render(&p, Quadrato(area));
    p.setOpacity(1);
}

}  // namespace corvana
