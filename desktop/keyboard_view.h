// The five-octave keyboard: a picture of the style "tastiera" and its children, the keys ("tasto"),
// their marks ("barretta") and the mark of middle C ("docentrale"). The mouse hits a key wherever
// it is seen, a black one before the white one beneath it. All keys share one stop of the Tab key:
// the arrows choose one, Page Up and Page Down go by octaves, the space bar holds it down, Control
// and Enter click it twice. Shift and Enter are a double click on the mark of middle C. GUI thread.
#pragma once

#include "desktop/painted_view.h"

namespace corvana {

class VistaTasto final : public VistaDipinta {
public:
    /// The number in its control's name tells which key it is.
    VistaTasto(const CopiaControllo& copia, Mittente mittente);

    QRect Area() const override;
    QRect Portata() const override;
    int Strato() const override;
    bool Fermata() const override { return false; }
    bool Invita() const override { return Cliccabile() || Stato().Ascolta(ascoltaPressione); }
    bool Detta() const override { return true; }
    bool Svelabile() const override { return true; }
    bool Svelata() const override { return Acceso(); }
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;

protected:
    void Rinfresca(Nome nome) override;

private:
    bool Acceso() const { return Stato().BackStyle == fondoOpaco; }
    void Nomina();

    int tasto_;
};

class VistaTastiera final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;

    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
    bool Fermata() const override { return true; }
    bool Invita() const override { return false; }
    bool Detta() const override { return true; }
    bool PremiTasto(const QKeyEvent& tasto) override;
    bool LasciaTasto(const QKeyEvent& tasto) override;
    bool UsaFrecce() const override { return true; }
    void Rinuncia() override;
    const VistaDipinta& DovEIlFuoco() const override;

private:
    std::vector<VistaDipinta*> Tasti() const;
    VistaDipinta* Scelto() const;
    void Scegli(int tasto);
    void Giu();
    void Su(bool clicca);
    /// The second click of two, where somebody listens.
    void Raddoppia() const;

    int scelto_ = 24;              ///< middle C
    VistaDipinta* giu_ = nullptr;  ///< held down with the space bar
};

/// Lies over the keys, and lets the mouse through to them.
class VistaBarretta final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    int Strato() const override { return 2; }
    bool Colpibile() const override { return false; }
    bool Detta() const override { return false; }
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

class VistaDoCentrale final : public VistaDipinta {
public:
    using VistaDipinta::VistaDipinta;
    int Strato() const override { return 2; }
    bool Fermata() const override { return false; }
    void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) override;
};

}  // namespace corvana
