// How much larger than designed a window's face is, for all that is painted on it. GUI thread.
#pragma once

class QWidget;

namespace corvana {

/// To be said of a window each time that its face grows or shrinks.
void PonScala(QWidget& finestra, double scala);

/// The scale of the face on which the widget stands, or from which it dropped down; 1 on none.
double ScalaDi(const QWidget* widget);

}  // namespace corvana
