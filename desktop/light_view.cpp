#include "desktop/light_view.h"

#include <QPaintEvent>
#include <QPainter>

#include "desktop/light_painter.h"

namespace corvana {

Luci& Luci::In(QWidget& contenitore) {
    for (QObject* figlio : contenitore.children())
        if (auto* luci = dynamic_cast<Luci*>(figlio)) return *luci;
    return *new Luci(contenitore);
}

Luci::Luci(QWidget& contenitore) : QWidget(&contenitore) {
    setObjectName(QStringLiteral("luci"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QRectF Luci::Area(const VistaLuce& luce) const {
    return QRectF(InPixel(luce.Stato().Twips(), luce.Scala())).translated(-pos());
}

void Luci::Sporca(const VistaLuce& luce) {
    update(Bagliore(Area(luce), luce.Scala()).toAlignedRect());
}

void Luci::Adatta() {
    QRectF tutte;
    for (const VistaLuce* luce : luci_)
        tutte |= Bagliore(Area(*luce).translated(pos()), luce->Scala());
    setGeometry(tutte.toAlignedRect() & parentWidget()->rect());
    update();
}

void Luci::paintEvent(QPaintEvent* evento) {
    QPainter p(this);
    p.setClipRegion(evento->region());
    const auto dipingi = [&](bool accese) {
        for (const VistaLuce* luce : luci_)
            if (luce->Stato().visible && Accesa(luce->Stato().fondo) == accese)
                DipingiLuce(p, Area(*luce), luce->Stato().fondo, luce->Scala());
    };
    // What shines lies over its neighbours.
    dipingi(false);
    dipingi(true);
}

VistaLuce::VistaLuce(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), luci_(Luci::In(padre)) {
    luci_.Iscrivi(*this);
}

void VistaLuce::Rinfresca(Nome nome) {
    if (nome == Nome::Visible || nome == Nome::BackColor) return luci_.Sporca(*this);
    luci_.Adatta();
}

void VistaLuce::Riscala() {
    luci_.Adatta();
}

}  // namespace corvana
