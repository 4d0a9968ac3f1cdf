#include "desktop/face_layers.h"

namespace corvana {

namespace {

constexpr int strati = 3;

/// The view, where a face paints it and it has none of its own.
VistaDipinta* Posata(Vista* vista) {
    auto* dipinta = vista->Widget() ? nullptr : dynamic_cast<VistaDipinta*>(vista);
    return dipinta;
}

void DipingiUna(QPainter& p, VistaDipinta& vista, const QRegion& ritaglio, const Tocco& tocco) {
    const QRect area = vista.Area();
    p.save();
    p.setClipRect(ritaglio.boundingRect());
    p.translate(area.topLeft());
    vista.Dipingi(p, QRectF(QPointF(), area.size()), tocco);
    p.restore();
}

}  // namespace

void PerOgniStrato(const VistaDipinta& vista, const std::function<void(VistaDipinta&)>& azione) {
    for (int strato = 0; strato < strati; ++strato)
        for (Vista* figlia : vista.Figlie())
            if (VistaDipinta* posata = Posata(figlia); posata && posata->Strato() == strato)
                azione(*posata);
}

void DipingiStrati(QPainter& p, VistaDipinta& terra, const QRegion& scoperto,
                   const std::function<Tocco(const VistaDipinta&)>& tatto) {
    DipingiUna(p, terra, scoperto, tatto(terra));
    // What lies in it ends where it ends itself.
    const QRegion dentro = scoperto & terra.Area();
    PerOgniStrato(terra, [&](VistaDipinta& vista) {
        const QRegion ritaglio = dentro & vista.Portata();
        if (vista.SiVede() && !ritaglio.isEmpty()) DipingiStrati(p, vista, ritaglio, tatto);
    });
}

VistaDipinta* InCima(VistaDipinta& terra, const QPoint& punto) {
    VistaDipinta* sopra = nullptr;
    PerOgniStrato(terra, [&](VistaDipinta& vista) {
        if (!vista.Colpibile() || !vista.SiVede() || !vista.Area().contains(punto)) return;
        VistaDipinta* dentro = InCima(vista, punto);
        sopra = dentro ? dentro : &vista;
    });
    return sopra;
}

}  // namespace corvana
