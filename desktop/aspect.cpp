#include "desktop/aspect.h"

#include <algorithm>
#include <cmath>

namespace corvana {

namespace {

template <class T>
void Prendi(T& campo, const Valore& valore) {
    campo = std::get<T>(valore);
}

void Prendi(QString& campo, const Valore& valore) {
    campo = InQt(std::get<std::string>(valore));
}

void Prendi(QStringList& campo, const Valore& valore) {
    campo.clear();
    for (const std::string& riga : std::get<Righe>(valore))
        campo.append(InQt(riga));
}

int Pixel(int twips, double scala) {
    return static_cast<int>(std::lround(twips * scala / twipsPerPixel));
}

}  // namespace

void Poni(Aspetto& a, Nome nome, const Valore& valore) {
    switch (nome) {
        case Nome::Caption: return Prendi(a.caption, valore);
        case Nome::Text: return Prendi(a.text, valore);
        case Nome::Visible: return Prendi(a.visible, valore);
        case Nome::Enabled: return Prendi(a.enabled, valore);
        case Nome::BackColor: return Prendi(a.fondo, valore);
        case Nome::ForeColor: return Prendi(a.penna, valore);
        case Nome::ToolTipText: return Prendi(a.toolTip, valore);
        case Nome::Value: return Prendi(a.value, valore);
        case Nome::Min: return Prendi(a.min, valore);
        case Nome::Max: return Prendi(a.max, valore);
        case Nome::List: return Prendi(a.righe, valore);
        case Nome::ListIndex: return Prendi(a.listIndex, valore);
        case Nome::Checked: return Prendi(a.checked, valore);
        case Nome::Locked: return Prendi(a.locked, valore);
        case Nome::Top: return Prendi(a.top, valore);
        case Nome::Left: return Prendi(a.left, valore);
        case Nome::Width: return Prendi(a.width, valore);
        case Nome::Height: return Prendi(a.height, valore);
        case Nome::BorderStyle: return Prendi(a.bordo, valore);
        case Nome::Sfondo: return Prendi(a.sfumatura, valore);
        case Nome::HelpContextID: return Prendi(a.helpContext, valore);
        case Nome::BackStyle: return Prendi(a.fondoStile, valore);
        case Nome::MousePointer: return Prendi(a.puntatore, valore);
        case Nome::Ascolti: return Prendi(a.ascolti, valore);
    }
}

Aspetto AspettoDa(const CopiaControllo& copia) {
    Aspetto aspetto;
    aspetto.nome = InQt(copia.nome);
    aspetto.stile = ParoleDi(copia.stile);
    for (const auto& [nome, valore] : copia.proprieta)
        Poni(aspetto, nome, valore);
    return aspetto;
}

QStringList ParoleDi(const std::string& stile) {
    return InQt(stile).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString InQt(const std::string& testo) {
    return QString::fromStdString(testo).replace(QLatin1String("\r\n"), QLatin1String("\n"));
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
    return aspetto.toolTip.isEmpty() ? SenzaAccesso(aspetto.caption) : aspetto.toolTip;
}

QRect InPixel(const QRect& twips, double scala) {
    const QPoint inizio(Pixel(twips.x(), scala), Pixel(twips.y(), scala));
    const QPoint fine(Pixel(twips.x() + twips.width(), scala),
                      Pixel(twips.y() + twips.height(), scala));
    return {inizio, QSize(std::max(0, fine.x() - inizio.x()), std::max(0, fine.y() - inizio.y()))};
}

}  // namespace corvana
