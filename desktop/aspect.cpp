#include "desktop/aspect.h"

#include <algorithm>
#include <cmath>

namespace corvana {

namespace {

int Pixel(int twips, double scala) {
    return static_cast<int>(std::lround(twips * scala / twipsPerPixel));
}

}  // namespace

Aspetto AspettoDa(const CopiaControllo& copia) {
    Aspetto aspetto;
    aspetto.nome = InQt(copia.nome);
    aspetto.stile = ParoleDi(copia.stile);
    for (const auto& [nome, valore] : copia.proprieta)
        nome.Poni(aspetto, valore);
    return aspetto;
}

bool EPosto(Nome nome) {
    return nome == &Valori::Left || nome == &Valori::Top || nome == &Valori::Width ||
           nome == &Valori::Height;
}

QStringList ParoleDi(const std::string& stile) {
    return InQt(stile).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString InQt(const std::string& testo) {
    return QString::fromStdString(testo).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QStringList InQt(const Righe& righe) {
    QStringList testi;
    for (const std::string& riga : righe)
        testi.append(InQt(riga));
    return testi;
}

QColor InQt(Colore colore, const QColor& altrimenti) {
    if (colore == coloreDiSistema) return altrimenti;
    return {Rosso(colore), Verde(colore), Blu(colore)};
}

Colore InColore(const QColor& colore) {
    return Rgb(colore.red(), colore.green(), colore.blue());
}

QString SenzaAccesso(const QString& caption) {
    QString nudo;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && ++i == caption.size()) break;
        nudo.append(caption[i]);
    }
    return nudo;
}

QString NomeAccessibile(const Aspetto& aspetto) {
    if (!aspetto.NomeLetto.empty()) return InQt(aspetto.NomeLetto);
    const QString consiglio = InQt(aspetto.ToolTipText).trimmed();
    return consiglio.isEmpty() ? SenzaAccesso(InQt(aspetto.Caption)) : consiglio;
}

QString CioCheIlNomeTace(const Aspetto& aspetto, const QString& nome) {
    QStringList detti;
    for (const QString& testo :
         {InQt(aspetto.ToolTipText), SenzaAccesso(InQt(aspetto.Caption)).simplified()}) {
        const bool parola = std::any_of(testo.begin(), testo.end(),
                                        [](QChar segno) { return segno.isLetterOrNumber(); });
        if (parola && !nome.contains(testo.trimmed())) detti.append(testo.trimmed());
    }
    return detti.join(QLatin1String(", "));
}

bool ENome(Nome nome) {
    return nome == &Valori::Caption || nome == &Valori::ToolTipText || nome == &Valori::NomeLetto;
}

QRect InPixel(const QRect& twips, double scala) {
    const QPoint inizio(Pixel(twips.x(), scala), Pixel(twips.y(), scala));
    const QPoint fine(Pixel(twips.x() + twips.width(), scala),
                      Pixel(twips.y() + twips.height(), scala));
    return {inizio, QSize(std::max(0, fine.x() - inizio.x()), std::max(0, fine.y() - inizio.y()))};
}

}  // namespace corvana
