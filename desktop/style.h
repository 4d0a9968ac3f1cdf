// Paints and measures all that is a widget of the toolkit, in the program's colours and in the
// scale of the window's face. A widget of a control is painted after the control's properties; what
// the toolkit shows of its own accord, message boxes and the like, has the same buttons, menus and
// bars. GUI thread.
#pragma once

#include <QProxyStyle>

namespace corvana {

class Stile final : public QProxyStyle {
public:
    Stile();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    int pixelMetric(PixelMetric quale, const QStyleOption* o, const QWidget* widget) const override;
    int styleHint(StyleHint cosa, const QStyleOption* o, const QWidget* widget,
                  QStyleHintReturn* altro) const override;
    QSize sizeFromContents(ContentsType cosa, const QStyleOption* o, const QSize& dentro,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement parte, const QStyleOption* o,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl cosa, const QStyleOptionComplex* o, SubControl parte,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap quale, const QStyleOption* o,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement cosa, const QStyleOption* o, QPainter* p,
                       const QWidget* widget) const override;
    void drawControl(ControlElement cosa, const QStyleOption* o, QPainter* p,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl cosa, const QStyleOptionComplex* o, QPainter* p,
                            const QWidget* widget) const override;
};

}  // namespace corvana
