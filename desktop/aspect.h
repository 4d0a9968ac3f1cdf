// What the face knows of a control: the GUI thread's copy of its properties. GUI thread.
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <QStringList>

#include "desktop/command.h"

namespace corvana {

struct Aspetto {
    QString nome;
    QStringList stile;  ///< the painter's key and the words that refine it
    QString caption, text, toolTip;
    QStringList righe;
    bool visible = true, enabled = true, checked = false, locked = false;
    Colore fondo = coloreDiSistema;
    Colore penna = coloreDiSistema;
    Sfumatura sfumatura;
    int bordo = 0;
    int fondoStile = fondoOpaco;
    int left = 0, top = 0, width = 0, height = 0;  ///< twips
    int value = 0, min = 0, max = 100, listIndex = -1;
    int helpContext = 0;
    int puntatore = puntatoreNormale;
    int ascolti = 0;

    QRect Twips() const { return {left, top, width, height}; }
    /// `quale` is one of the bits `ascolta...`.
    bool Ascolta(int quale) const { return (ascolti & quale) != 0; }
    bool Ha(const char* parola) const { return stile.contains(QLatin1String(parola)); }
};

void Poni(Aspetto& aspetto, Nome nome, const Valore& valore);
Aspetto AspettoDa(const CopiaControllo& copia);

/// The words of a control's style.
QStringList ParoleDi(const std::string& stile);

/// The text as Qt wants it: line ends are one character.
QString InQt(const std::string& testo);
/// The colour, or `altrimenti` when the control leaves it to the face.
QColor InQt(Colore colore, const QColor& altrimenti);

Colore InColore(const QColor& colore);

/// A caption without the marks of its access key.
QString SenzaAccesso(const QString& caption);
/// What a screen reader says for the control: its tool tip, else its caption.
QString NomeAccessibile(const Aspetto& aspetto);

/// Twips to a pixel at the designed size.
constexpr int twipsPerPixel = 15;
/// A rectangle of twips in pixels, at `scala` times the designed size. Edges that meet in twips
/// meet in pixels.
QRect InPixel(const QRect& twips, double scala);

}  // namespace corvana
