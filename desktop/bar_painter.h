// Sliders and scroll bars: where their parts lie, and how they are painted. Everything grows with
// the scale. Pure geometry and painting; GUI thread.
#pragma once

#include <QPainter>
#include <QStyleOptionSlider>

namespace corvana {

/// The side of a slider's handle, and the breadth of a scroll bar, in designed pixels.
constexpr double latoPollice = 17;
constexpr double largoScorrimento = 12;

/// The handle, wholly within the slider wherever it stands.
QRect PolliceBarra(const QStyleOptionSlider& o, double scala);
void DipingiBarra(QPainter& p, const QStyleOptionSlider& o, double scala);

/// Where a scroll bar's thumb can go: it ends before the round corners of what it stands in.
QRect CorsaScorrimento(const QStyleOptionSlider& o, double scala);
QRect PolliceScorrimento(const QStyleOptionSlider& o, double scala);
void DipingiScorrimento(QPainter& p, const QStyleOptionSlider& o, double scala);

}  // namespace corvana
