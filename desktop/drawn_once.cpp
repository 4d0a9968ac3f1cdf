#include "desktop/drawn_once.h"

#include <QPainterPath>
#include <QPixmapCache>

namespace corvana {

namespace {

/// Where the path lies between the points of the screen is a part of the picture, as its size is.
QString NomeTraccia(const QString& nome, const QColor& colore, const QTransform& dove) {
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(nome, colore.name(QColor::HexArgb))
        .arg(dove.m11())
        .arg(dove.m22())
        .arg(dove.dx(), 0, 'f', 3)
        .arg(dove.dy(), 0, 'f', 3);
}

}  // namespace

QPixmap DisegnatoUnaVolta(const QString& nome, const QSize& misura, double densita,
                          const std::function<void(QPainter&)>& disegna) {
    const QString chiave = QStringLiteral("%1 %2x%3 %4")
                               .arg(nome)
                               .arg(misura.width())
                               .arg(misura.height())
                               .arg(densita);
    QPixmap immagine;
    if (misura.isEmpty() || QPixmapCache::find(chiave, &immagine)) return immagine;
    immagine = QPixmap(misura);
    immagine.fill(Qt::transparent);
    QPainter p(&immagine);
    disegna(p);
    p.end();
    immagine.setDevicePixelRatio(densita);
    QPixmapCache::insert(chiave, immagine);
    return immagine;
}

void RiempiUnaVolta(QPainter& p, const QString& nome, const QPainterPath& traccia,
                    const QColor& colore) {
    const QTransform inPunti = p.deviceTransform();
    const QRect posto = inPunti.mapRect(traccia.boundingRect()).toAlignedRect();
    const QTransform dentro = inPunti * QTransform::fromTranslate(-posto.x(), -posto.y());
    const auto disegna = [&](QPainter& q) {
        q.setRenderHint(QPainter::Antialiasing);
        q.setTransform(dentro);
        q.fillPath(traccia, colore);
    };
    const QPixmap immagine =
        DisegnatoUnaVolta(NomeTraccia(nome, colore, dentro), posto.size(), 1, disegna);
    const QTransform mondo = p.worldTransform();
    p.setTransform(QTransform::fromTranslate(posto.x(), posto.y()) * inPunti.inverted(), true);
    p.drawPixmap(0, 0, immagine);
    p.setTransform(mondo);
}

}  // namespace corvana
