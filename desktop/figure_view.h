// The composer's own faces. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

/// A figure or an attribute of step entry: style "figura:" and its name. It is lit when it has a
/// colour of its own that is to be seen.
class VistaFigura final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    std::optional<bool> Spuntata() const override;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

private:
    bool Accesa() const;
};

/// The name of a voice, with a lamp: style "voce". The green one is the voice that is written.
class VistaVoceAttiva final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    std::optional<bool> Spuntata() const override;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

/// The way of the play's cursor: style "corsa". At its end the cursor lies beyond it, and the line
/// goes on beneath.
class VistaCorsa final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    QRect Portata() const override;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
