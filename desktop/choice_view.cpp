#include "desktop/choice_view.h"

#include "desktop/keys_painter.h"
#include "desktop/sign_painter.h"
#include "desktop/theme.h"
#include "eartrainer/answer_colours.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double postoSimbolo = 64, rientroDetto = 12;
constexpr double rientroTasti = 10, sopraTasti = 6;
constexpr int tastiDisegnati = 3;

void DipingiTastierina(QPainter& p, const QRectF& area, double scala) {
    const double larga = (postoSimbolo - 2 * rientroTasti) / tastiDisegnati * scala;
    QRectF tasto(area.left() + rientroTasti * scala, area.top() + sopraTasti * scala, larga,
                 area.height() - 2 * sopraTasti * scala);
    DipingiLetto(p, QRectF(tasto.topLeft(), QSizeF(larga * tastiDisegnati, tasto.height())), scala);
    for (int i = 0; i < tastiDisegnati; ++i, tasto.translate(larga, 0))
        DipingiTastoBianco(p, tasto, {}, scala);
}

}  // namespace

std::optional<bool> VistaAmmissione::Spuntata() const {
    return Stato().BackColor == coloreAmmesso;
}

void VistaAmmissione::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    DipingiFondo(p, area, Stato(), Scala(), tocco);
    const bool ammesso = *Spuntata();
    DipingiSegno(p, area.center(), ammesso, ammesso ? tinta::inchiostro : tinta::suAccento,
                 0.9 * Scala());
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

void VistaDetto::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    Aspetto bottone = Stato();
    bottone.Caption.clear();
    DipingiBottone(p, area, bottone, Scala(), tocco);
    const double posto = postoSimbolo * Scala();
    Aspetto simbolo = Stato();
    simbolo.stile << QStringLiteral("centro") << QStringLiteral("mezzo")
                  << QStringLiteral("titolo");
    if (Stato().Ha("tastierina"))
        DipingiTastierina(p, area, Scala());
    else
        DipingiTesto(p, QRectF(area.topLeft(), QSizeF(posto, area.height())), simbolo, Scala(),
                     tocco.abilitato);
    p.setPen(QPen(tinta::filo, Scala()));
    const double rientro = sopraTasti * Scala();
    p.drawLine(QPointF(posto, rientro), QPointF(posto, area.height() - rientro));
    Aspetto detto = Stato();
    detto.stile = {QStringLiteral("mezzo")};
    detto.Caption = InQt(Stato().ToolTipText).trimmed().toStdString();
    DipingiTesto(p, area.adjusted(posto + rientroDetto * Scala(), 0, 0, 0), detto, Scala(),
                 tocco.abilitato);
}

void VistaDetto::Rinfresca(Nome nome) {
    if (nome == &Valori::ToolTipText) Sporca();
    VistaDipinta::Rinfresca(nome);
}

void VistaTastino::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    const QColor pallido = InQt(Stato().BackColor, tinta::ebano);
    const bool nero = pallido == tinta::buio;
    DipingiTastoNero(p, area, {!nero, pallido, false}, Scala());
    if (!nero) DipingiSegno(p, area.center(), false, tinta::sbagliato, 0.7 * Scala());
}

}  // namespace corvana
