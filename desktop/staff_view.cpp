#include "desktop/staff_view.h"

#include "desktop/staff_painter.h"

namespace corvana {

void VistaPentagramma::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    const double scala = Scala() / twipsPerPixel;
    const double pixel = 1 / (scala * p.device()->devicePixelRatioF());
    p.scale(scala, scala);
    DipingiFoglio(p, area.size() / scala, pixel);
    DipingiPentagrammi(p, pixel);
    for (const VistaNota* nota : note_)
        if (nota->SiVede()) DipingiNota(p, nota->Posizione(), nota->Ascissa(), pixel);
}

void VistaPentagramma::Sporca(const VistaNota& nota) {
    const double scala = Scala() / twipsPerPixel;
    const QRectF area = AreaNota(nota.Posizione(), nota.Ascissa());
    Widget()->update(
        QRectF(area.topLeft() * scala, area.size() * scala).toAlignedRect().adjusted(-1, -1, 1, 1));
}

VistaNota::VistaNota(const CopiaControllo& copia, Mittente mittente, VistaPentagramma& pentagramma)
    : Vista(copia, mittente), pentagramma_(pentagramma), posizione_(Stato().nome.mid(1).toInt()) {
    pentagramma_.Iscrivi(*this);
}

bool VistaNota::EStileDiNota(const QStringList& stile) {
    for (const char* parola : {"maschera", "testa", "acuta"})
        if (stile.contains(QLatin1String(parola))) return true;
    return false;
}

bool VistaNota::SiVede() const {
    return Stato().visible != Stato().Ha("maschera");
}

double VistaNota::Ascissa() const {
    return Stato().left + Stato().width / 2.0;
}

void VistaNota::Rinfresca(Nome nome) {
    if (nome == Nome::Visible) pentagramma_.Sporca(*this);
}

}  // namespace corvana
