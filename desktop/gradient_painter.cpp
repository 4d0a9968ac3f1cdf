#include "desktop/gradient_painter.h"

#include <QImage>
#include <QTransform>

namespace corvana {

namespace {

QRgb RigaSfumata(const Sfumatura& s, int passo, int passi) {
    const auto canale = [=](int da, int a) { return da + (a - da) * passo / passi; };
    return qRgb(canale(Rosso(s.inizio), Rosso(s.fine)), canale(Verde(s.inizio), Verde(s.fine)),
                canale(Blu(s.inizio), Blu(s.fine)));
}

}  // namespace

std::array<QRgb, righeSfumatura> RigheSfumatura(const Sfumatura& sfumatura) {
    std::array<QRgb, righeSfumatura> righe{};
    const int passi = sfumatura.doppia ? righeSfumatura / 2 : righeSfumatura;
    for (int i = 0; i < righeSfumatura; ++i) {
        // On its way back it takes each colour again, and so ends with the one that it began with.
        const int passo = i < passi ? i : righeSfumatura - 1 - i;
        righe[static_cast<std::size_t>(i)] = RigaSfumata(sfumatura, passo, passi);
    }
    return righe;
}

QBrush PennelloSfumatura(const Sfumatura& sfumatura, const QRectF& area) {
    const auto righe = RigheSfumatura(sfumatura);
    const bool attraverso = sfumatura.orizzontale;
    QImage banda(attraverso ? righeSfumatura : 1, attraverso ? 1 : righeSfumatura,
                 QImage::Format_RGB32);
    for (int i = 0; i < righeSfumatura; ++i)
        banda.setPixel(attraverso ? i : 0, attraverso ? 0 : i, righe[static_cast<std::size_t>(i)]);
    QBrush pennello(banda);
    pennello.setTransform(QTransform::fromTranslate(area.x(), area.y())
                              .scale(area.width() / banda.width(), area.height() / banda.height()));
    return pennello;
}

}  // namespace corvana
