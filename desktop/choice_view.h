// What chooses among a few possibilities at a click, and shows the present one in words or signs
// and not by its colour alone. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

/// A strip that admits something or excludes it: style "ammissione". A tick or a cross stands on
/// its colour.
class VistaAmmissione final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    bool Invita() const override { return Azionabile(); }
    std::optional<bool> Spuntata() const override;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

/// A button with its tool tip beside its caption: style "detto". With "tastierina" three white keys
/// stand in the caption's place, on which black ones lie that are controls of their own.
class VistaDetto final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

protected:
    void Rinfresca(Nome nome) override;
};

/// One of those black keys: style "tastino". A pale one is crossed out. What it does is its
/// button's, too, which the keyboard reaches.
class VistaTastino final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    bool Fermata() const override { return false; }
    bool Detta() const override { return false; }
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
