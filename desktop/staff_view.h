// The double staff, and its notes: the controls "n" and a number, each of which paints its note on
// the staff that it lies on when it says that one is to be seen. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaPentagramma final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    /// The places of the notes on it, or its name while there are none.
    QString Lettura() const override;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

/// "testa" and "acuta" show their note while they are visible; "maschera" hides its one.
class VistaNota final : public VistaDipinta {
public:
    VistaNota(const CopiaControllo& copia, Mittente mittente);

    /// The staff, on which it may paint anywhere.
    QRect Area() const override { return Sotto()->Area(); }
    QRect Portata() const override;
    bool SiVede() const override;
    bool Colpibile() const override { return false; }
    /// The staff tells its place. Which note it is, is for the learner to find out.
    bool Detta() const override { return false; }
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

protected:
    void Rinfresca(Nome nome) override;

private:
    /// The middle of its head on the staff, in twips.
    double Ascissa() const;

    int posizione_;
};

}  // namespace corvana
