#include "desktop/theme.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace corvana {

namespace {

struct StileTesto {
    const char* parola;
    double pixel;
    QFont::Weight peso;
};

constexpr StileTesto stili[] = {
    {"titolo", 15, QFont::DemiBold},   {"cifra", 21, QFont::DemiBold},
    {"piccolo", 11, QFont::Normal},    {"nome", 22, QFont::Bold},
    {"risposta", 15, QFont::DemiBold}, {"principale", 15, QFont::DemiBold},
    {"insegna", 24, QFont::Bold},      {"lettera", 20, QFont::Bold},
    {"aiuto", 15, QFont::DemiBold},    {"chiudi", 15, QFont::DemiBold},
    {"percento", 15, QFont::DemiBold},
};
constexpr StileTesto semplice{"", 13, QFont::Normal};

StileTesto Scegli(const QStringList& stile) {
    for (const StileTesto& s : stili)
        if (stile.contains(QLatin1String(s.parola))) return s;
    return semplice;
}

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
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::ToolTipBase, tinta::carta);
    p.setColor(QPalette::ToolTipText, tinta::inchiostro);
    p.setColor(QPalette::PlaceholderText, tinta::spento);
    p.setColor(QPalette::Link, tinta::accento);
}

}  // namespace

QPalette TavolozzaDelProgramma() {
    QPalette p;
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

QFont Carattere(const QStringList& stile, double scala) {
    const StileTesto scelto = Scegli(stile);
    QFont font;
    font.setFamilies(FamiglieDelTesto());
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(scelto.pixel * scala))));
    font.setWeight(stile.contains(QLatin1String("forte")) ? QFont::DemiBold : scelto.peso);
    return font;
}

Qt::Alignment Allineamento(const QStringList& stile) {
    const auto ha = [&](const char* parola) { return stile.contains(QLatin1String(parola)); };
    for (const char* centrato : {"pulsante", "scelta", "aiuto", "chiudi", "lettera", "insegna"})
        if (ha(centrato)) return Qt::AlignCenter;
    Qt::Alignment riga = Qt::AlignLeft;
    if (ha("centro")) riga = Qt::AlignHCenter;
    if (ha("destra")) riga = Qt::AlignRight;
    return riga | (ha("mezzo") ? Qt::AlignVCenter : Qt::AlignTop);
}

QColor PiuScura(const QColor& colore, double quanto) {
    return Verso(colore, Qt::black, quanto);
}

QColor PiuChiara(const QColor& colore, double quanto) {
    return Verso(colore, Qt::white, quanto);
}

}  // namespace corvana
