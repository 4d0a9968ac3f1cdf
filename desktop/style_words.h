// The words of which a control's style is made, all in one table: what each makes of its letters,
// its ground and its text's place. Words that choose a face stand in the table of faces. Pure; any
// thread.
#pragma once

#include <QColor>
#include <QFont>
#include <QStringList>

namespace corvana {

/// What a word makes of a control's ground.
struct FormaFondo {
    double raggio = 0;  ///< of the corners, in designed pixels
    bool bordata = false;
    bool premibile = false;         ///< it answers to the pointer
    const QColor* fondo = nullptr;  ///< where the control has no colour of its own
};

struct Lettere {
    double pixel = 13;  ///< designed
    QFont::Weight peso = QFont::Normal;
};

/// Of the words that say something of it the first of the table; the plain ones without any.
Lettere LettereDi(const QStringList& stile);
FormaFondo FormaDi(const QStringList& stile);
/// The text stands in the middle of the control.
bool Centrato(const QStringList& stile);

/// Some face or painter knows the word.
bool ParolaNota(const QString& parola);

}  // namespace corvana
