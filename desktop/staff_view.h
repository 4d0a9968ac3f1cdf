// The double staff with its notes. The controls "n" and a number have no widgets of their own: the
// staff paints a note where such a control says that one is to be seen. GUI thread.
#pragma once

#include <QPixmap>
#include <vector>

#include "desktop/painted_view.h"

namespace corvana {

class VistaNota;

class VistaPentagramma final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

    void Iscrivi(const VistaNota& nota) { note_.push_back(&nota); }
    /// The note there is to be painted anew.
    void Sporca(const VistaNota& nota);

private:
    std::vector<const VistaNota*> note_;
};

class VistaNota final : public Vista {
public:
    /// `pentagramma` must outlive it.
    VistaNota(const CopiaControllo& copia, Mittente mittente, VistaPentagramma& pentagramma);

    /// "maschera" hides its note while it is visible; "testa" and "acuta" are their note.
    static bool EStileDiNota(const QStringList& stile);

    bool SiVede() const;
    int Posizione() const { return posizione_; }
    /// The middle of its head on the staff, in twips.
    double Ascissa() const;

protected:
    void Rinfresca(Nome nome) override;

private:
    VistaPentagramma& pentagramma_;
    int posizione_;
};

}  // namespace corvana
