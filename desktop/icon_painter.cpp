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

QRectF Quadrato(const QRectF& area) {
    const double lato = std::min(area.width(), area.height());
    return {area.center().x() - lato / 2, area.center().y() - lato / 2, lato, lato};
}

}  // namespace

bool EIcona(const QStringList& stile) {
    return !NomeIcona(stile).isEmpty();
}

void DipingiIcona(QPainter& p, const QRectF& area, const QStringList& stile, const Tocco& tocco) {
    QSvgRenderer disegno(QStringLiteral(":/icons/%1.svg").arg(NomeIcona(stile)));
    p.setRenderHint(QPainter::Antialiasing);
    if (!tocco.abilitato) p.setOpacity(0.35);
    disegno.render(&p, Quadrato(area));
    p.setOpacity(1);
}

}  // namespace corvana
