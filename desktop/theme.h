// The program's colours and letters, in one place. GUI thread.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QStringList>

namespace corvana {

namespace tinta {
inline const QColor carta{0xFF, 0xFE, 0xFB};     ///< staves, boxes, lists
inline const QColor finestra{0xF6, 0xF1, 0xE7};  ///< a window's ground
inline const QColor pannello{0xFC, 0xF9, 0xF3};  ///< a frame on it
inline const QColor filo{0xDC, 0xD2, 0xC0};      ///< thin lines around things
inline const QColor filoForte{0xB9, 0xAC, 0x96};
inline const QColor inchiostro{0x2B, 0x28, 0x24};
inline const QColor inchiostroTenue{0x5E, 0x57, 0x4C};
inline const QColor spento{0x73, 0x6B, 0x5F};   ///< what can't be used now, and can be read
inline const QColor accento{0x1F, 0x6F, 0x78};  ///< focus, selection, thumbs
inline const QColor accentoTenue{0xD6, 0xE8, 0xE6};
inline const QColor suAccento{0xFF, 0xFF, 0xFF};  ///< what is written or marked on it
inline const QColor giusto{0x2A, 0x7D, 0x3F};
inline const QColor sbagliato{0xBF, 0x36, 0x2C};
inline const QColor bottone{0xFF, 0xFD, 0xF8};
inline const QColor ombra{90, 70, 40, 26};  ///< that a button throws
inline const QColor sede{60, 40, 20, 70};   ///< of a light that is out
inline const QColor luceSpenta{0xA8, 0x9F, 0x91};
inline const QColor bagliore{0xFF, 0xFF, 0xFF};       ///< the middle of a light that is lit
inline const QColor striscia{0xFB, 0xF3, 0xDD, 235};  ///< the slips of the ruler
inline const QColor buio{0, 0, 0}, chiarore{0xFF, 0xFF, 0xFF};  ///< the ends of dark and light

// Of the keyboard on the screen.
inline const QColor avorio{0xFF, 0xFE, 0xFB};
inline const QColor frontaleTasti{0xCF, 0xC7, 0xB8};  ///< the fronts of white keys
inline const QColor solcoTasti{0x57, 0x4F, 0x45};     ///< between them
inline const QColor ebano{0x1C, 0x1A, 0x18};
inline const QColor ebanoLucido{0x4A, 0x46, 0x41};
inline const QColor ombraTasti{0, 0, 0, 0x50};
inline const QColor stacco{0xFF, 0xFF, 0xFF};  ///< parts a mark from the key beneath
}  // namespace tinta

/// All its colours, whichever those of the desktop are.
QPalette TavolozzaDelProgramma();

/// The height of the smallest letters that can be read, where a pixel may be several of the
/// screen's points.
int PixelMinimi();

/// The typeface of everything but music: the first of these that the machine has.
QStringList FamiglieDelTesto();

/// The letters for the style words, `scala` times the designed size but never too small to be read;
/// "forte" makes them heavier, "sottolineato" puts a line under them.
QFont Carattere(const QStringList& stile, double scala);

/// Where a text stands for the style words: "centro", "destra", "mezzo" (of the height); the words
/// that name a button-like face put it in the middle.
Qt::Alignment Allineamento(const QStringList& stile);

/// One step towards dark or light, for what is pressed or lies under the pointer.
QColor PiuScura(const QColor& colore, double quanto);
QColor PiuChiara(const QColor& colore, double quanto);

}  // namespace corvana
