// Paints and measures what Qt's own widgets show, in the program's colours and in the scale of the
// window's face: push buttons, sliders, scroll bars, check boxes, menus, focus. GUI thread.
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
    void drawPrimitive(PrimitiveElement cosa, const QStyleOption* o, QPainter* p,
                       const QWidget* widget) const override;
    void drawControl(ControlElement cosa, const QStyleOption* o, QPainter* p,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl cosa, const QStyleOptionComplex* o, QPainter* p,
                            const QWidget* widget) const override;
};

}  // namespace corvana
