#include "desktop/theme.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "desktop/style_words.h"

namespace corvana {

namespace {

QColor Verso(const QColor& da, const QColor& a, double quanto) {
    const auto canale = [=](int x, int y) {
        return static_cast<int>(std::lround(x + (y - x) * quanto));
    };
    return {canale(da.red(), a.red()), canale(da.green(), a.green()), canale(da.blue(), a.blue())};
}

void Attiva(QPalette& p) {
    p.setColor(QPalette::Window, tinta::finestra);
    p.setColor(QPalette::Base, tinta::carta);
    p.setColor(QPalette::AlternateBase, tinta::pannello);
    p.setColor(QPalette::Button, tinta::pannello);
    p.setColor(QPalette::Highlight, tinta::accento);
    p.setColor(QPalette::HighlightedText, tinta::suAccento);
    p.setColor(QPalette::ToolTipBase, tinta::carta);
    p.setColor(QPalette::ToolTipText, tinta::inchiostro);
    p.setColor(QPalette::PlaceholderText, tinta::spento);
    p.setColor(QPalette::Link, tinta::accento);
    p.setColor(QPalette::LinkVisited, tinta::accento);
}

}  // namespace

QPalette TavolozzaDelProgramma() {
    // From these two the toolkit reckons those that are named nowhere below.
    QPalette p(tinta::pannello, tinta::finestra);
    Attiva(p);
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(ruolo, tinta::inchiostro);
        p.setColor(QPalette::Disabled, ruolo, tinta::spento);
    }
    return p;
}

QStringList FamiglieDelTesto() {
    return {QStringLiteral("Inter"), QStringLiteral("Open Sans"), QStringLiteral("Lato"),
            QStringLiteral("DejaVu Sans")};
}

int PixelMinimi() {
    constexpr double puntiMinimi = 11;
    return static_cast<int>(std::ceil(puntiMinimi / (qApp ? qApp->devicePixelRatio() : 1)));
}

QFont Carattere(const QStringList& stile, double scala) {
    const Lettere lettere = LettereDi(stile);
    QFont font;
    font.setFamilies(FamiglieDelTesto());
    font.setPixelSize(
        std::max(PixelMinimi(), static_cast<int>(std::lround(lettere.pixel * scala))));
    font.setWeight(stile.contains(QLatin1String("forte")) ? QFont::DemiBold : lettere.peso);
    font.setUnderline(stile.contains(QLatin1String("sottolineato")));
    return font;
}

Qt::Alignment Allineamento(const QStringList& stile) {
    const auto ha = [&](const char* parola) { return stile.contains(QLatin1String(parola)); };
    if (Centrato(stile)) return Qt::AlignCenter;
    Qt::Alignment riga = Qt::AlignLeft;
    if (ha("centro")) riga = Qt::AlignHCenter;
    if (ha("destra")) riga = Qt::AlignRight;
    return riga | (ha("mezzo") ? Qt::AlignVCenter : Qt::AlignTop);
}

QColor PiuScura(const QColor& colore, double quanto) {
    return Verso(colore, tinta::buio, quanto);
}

QColor PiuChiara(const QColor& colore, double quanto) {
    return Verso(colore, tinta::chiarore, quanto);
}

}  // namespace corvana
