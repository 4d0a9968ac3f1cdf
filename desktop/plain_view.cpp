#include "desktop/plain_view.h"

#include "desktop/icon_painter.h"
#include "desktop/letter_painter.h"
#include "desktop/ornament_painter.h"
#include "desktop/sign_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

/// The question mark stays on its button when it is taken away to show that the help is on.
Aspetto Acceso(Aspetto aspetto) {
    if (!aspetto.Ha("aiuto") || !aspetto.Caption.empty()) return aspetto;
    aspetto.Caption = "?";
    aspetto.BackColor = InColore(tinta::accento);
    aspetto.ForeColor = InColore(tinta::suAccento);
    return aspetto;
}

/// A button with its steps beneath its words.
void DipingiAPassi(QPainter& p, const QRectF& area, const Aspetto& a, double scala,
                   const Tocco& tocco) {
    constexpr double postoLampade = 8;  // designed pixels, at the bottom
    Aspetto vuoto = a, scritta = a;
    vuoto.Caption.clear();
    scritta.stile << QStringLiteral("centro") << QStringLiteral("mezzo");
    DipingiBottone(p, area, vuoto, scala, tocco);
    DipingiTesto(p, area.adjusted(0, 0, 0, -postoLampade * scala), scritta, scala, tocco.abilitato);
    DipingiPassi(p, area, a, scala);
}

}  // namespace

bool VistaSemplice::Colpibile() const {
    const bool inerte = Stato().Ascolti == 0 && Stato().ToolTipText.empty();
    return Origine().tipo != Genere::Figura || !inerte;
}

void VistaSemplice::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    if (Stato().Ha("lettera")) return DipingiLettera(p, area, Stato(), Scala(), tocco);
    if (Stato().Ha("passi")) return DipingiAPassi(p, area, Stato(), Scala(), tocco);
    if (Stato().Ha("pulsante")) {
        DipingiBottone(p, area, Stato(), Scala(), tocco);
        if (Svelata()) DipingiSvelata(p, area.adjusted(0, 0, 0, -Scala()), Scala());
        return;
    }
    const Aspetto aspetto = Acceso(Stato());
    DipingiFondo(p, area, aspetto, Scala(), tocco);
    if (Stato().Ha("ornamento")) DipingiOrnamento(p, area, Scala());
    const bool finestra = Origine().tipo == Genere::Finestra;
    if (!finestra) DipingiTesto(p, area, aspetto, Scala(), tocco.abilitato);
    DipingiEsito(p, area, aspetto, Scala());
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

VistaSpiegazione::VistaSpiegazione(const CopiaControllo& copia, Mittente mittente)
    : VistaDipinta(copia, mittente) {
    PonNomeDetto(InQt(Stato().Text));
}

void VistaSpiegazione::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    Aspetto aspetto = Stato();
    aspetto.Caption =
        InQt(aspetto.Text).replace(QLatin1Char('&'), QLatin1String("&&")).toStdString();
    DipingiFondo(p, area, aspetto, Scala(), tocco);
    DipingiTesto(p, area, aspetto, Scala(), tocco.abilitato);
}

void VistaSpiegazione::Rinfresca(Nome nome) {
    if (nome == &Valori::Text) PonNomeDetto(InQt(Stato().Text));
    VistaDipinta::Rinfresca(nome);
}

void VistaColonne::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    const QStringList parole = SenzaAccesso(InQt(Stato().Caption)).split(QLatin1Char('-'));
    const double passo = area.width() / static_cast<double>(parole.size());
    for (qsizetype i = 0; i < parole.size(); ++i) {
        Aspetto una = Stato();
        una.Caption = parole[i].trimmed().toStdString();
        una.stile << QStringLiteral("centro") << QStringLiteral("mezzo");
        const QRectF colonna(area.x() + static_cast<double>(i) * passo, area.y(), passo,
                             area.height());
        if (Stato().Ha("tasti")) DipingiTasto(p, colonna, Scala());
        DipingiTesto(p, colonna, una, Scala(), tocco.abilitato);
    }
}

void VistaIcona::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    if (Stato().Ha("pulsante")) return DipingiBottone(p, area, Stato(), Scala(), tocco);
    DipingiFondo(p, area, Stato(), Scala(), tocco);
    DipingiIcona(p, area, Stato().stile, tocco);
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

}  // namespace corvana
