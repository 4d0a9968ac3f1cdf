// What the face knows of a control: the GUI thread's copy of its properties. GUI thread.
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <QStringList>

#include "desktop/command.h"

namespace corvana {

struct Aspetto : Valori {
    QString nome;
    QStringList stile;  ///< the painter's key and the words that refine it

    QRect Twips() const { return {Left, Top, Width, Height}; }
    /// `quale` is one of the bits `ascolta...`.
    bool Ascolta(int quale) const { return (Ascolti & quale) != 0; }
    bool Ha(const char* parola) const { return stile.contains(QLatin1String(parola)); }
};

Aspetto AspettoDa(const CopiaControllo& copia);

/// One of the four properties that say where the control stands.
bool EPosto(Nome nome);

/// The words of a control's style.
QStringList ParoleDi(const std::string& stile);

/// The text as Qt wants it: line ends are one character.
QString InQt(const std::string& testo);
QStringList InQt(const Righe& righe);
/// The colour, or `altrimenti` when the control leaves it to the face.
QColor InQt(Colore colore, const QColor& altrimenti);

Colore InColore(const QColor& colore);

/// A caption without the marks of its access key.
QString SenzaAccesso(const QString& caption);
/// What a screen reader says for the control: what is meant for it alone, else its tool tip, else
/// its caption.
QString NomeAccessibile(const Aspetto& aspetto);
/// It makes the name.
bool ENome(Nome nome);
/// Of the tool tip and the caption what a control so named doesn't say; signs aren't words.
QString CioCheIlNomeTace(const Aspetto& aspetto, const QString& nome);

/// Twips to a pixel at the designed size.
constexpr int twipsPerPixel = 15;
/// A rectangle of twips in pixels, at `scala` times the designed size. Edges that meet in twips
/// meet in pixels.
QRect InPixel(const QRect& twips, double scala);

}  // namespace corvana
