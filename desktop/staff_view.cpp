#include "desktop/staff_view.h"

#include "desktop/face_reader.h"
#include "desktop/staff_painter.h"

namespace corvana {

namespace {

/// From here on everything is in twips; returns one pixel of the screen in them.
double PassaATwips(QPainter& p, double scala) {
    const double pixel = scala / twipsPerPixel;
    p.scale(pixel, pixel);
    return 1 / (pixel * p.device()->devicePixelRatioF());
}

}  // namespace

void VistaPentagramma::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    p.save();
    const double pixel = PassaATwips(p, Scala());
    DipingiFoglio(p, area.size() * twipsPerPixel / Scala(), pixel);
    DipingiPentagrammi(p, pixel);
    p.restore();
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

QString VistaPentagramma::Lettura() const {
    QStringList note;
    for (const Vista* nota : Figlie())
        if (nota->InVista() && !nota->NomeDetto().isEmpty()) note.append(nota->NomeDetto());
    return note.isEmpty() ? NomeDetto() : note.join(QLatin1String("; "));
}

VistaNota::VistaNota(const CopiaControllo& copia, Mittente mittente)
    : VistaDipinta(copia, mittente), posizione_(Stato().nome.mid(1).toInt()) {}

QRect VistaNota::Portata() const {
    const double scala = Scala() / twipsPerPixel;
    const QRectF area = AreaNota(posizione_, Ascissa());
    return QRectF(area.topLeft() * scala, area.size() * scala)
        .translated(Area().topLeft())
        .toAlignedRect()
        .adjusted(-1, -1, 1, 1);
}

bool VistaNota::SiVede() const {
    return Stato().Visible != Stato().Ha("maschera");
}

void VistaNota::Rinfresca(Nome nome) {
    VistaDipinta::Rinfresca(nome);
    if (nome != &Valori::Visible) return;
    Di(QAccessible::NameChanged, static_cast<VistaDipinta&>(*Padre()));
    if (SiVede()) Annuncia(*this);
}

void VistaNota::Dipingi(QPainter& p, const QRectF&, const Tocco&) {
    const double pixel = PassaATwips(p, Scala());
    DipingiNota(p, posizione_, Ascissa(), pixel);
}

double VistaNota::Ascissa() const {
    return Stato().Left + Stato().Width / 2.0;
}

}  // namespace corvana
