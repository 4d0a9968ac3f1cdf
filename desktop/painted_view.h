// A face that is painted: it has no widget, the face on which its control lies paints it, with all
// that lies on it, beneath the widgets that stand there. It is told of the mouse and, where the Tab
// key stops on it, of the keys. GUI thread.
//
// A control on which widgets stand gets a face of its own, and so does the ground of a window.
#pragma once

#include <QKeyEvent>
#include <QPainter>
#include <optional>

#include "desktop/face_painter.h"
#include "desktop/grid_steps.h"
#include "desktop/view.h"

namespace corvana {

class Accessibile;
class Faccia;

class VistaDipinta : public Vista {
public:
    VistaDipinta(const CopiaControllo& copia, Mittente mittente);
    ~VistaDipinta() override;

    void DaiFaccia(QWidget& dove) override;
    /// Its own face, or null.
    Faccia* FacciaSua() const { return faccia_; }
    /// The face that paints it; to be asked when it has been adopted.
    Faccia& FacciaDove() const;
    /// Its parent, where that is painted too.
    const VistaDipinta* Sotto() const;

    /// Where the control lies, in pixels of its face.
    QRect Posto() const;
    /// What of the face it is: there the mouse hits it.
    virtual QRect Area() const { return Posto(); }
    /// All that it can paint on.
    virtual QRect Portata() const { return Area(); }
    /// What it lies in ends it there.
    QRect Ritaglio() const;
    /// Of those that lie in one control, the larger lie over the smaller, and else the later over
    /// the earlier.
    virtual int Strato() const { return 0; }
    /// By itself, whatever it lies in.
    virtual bool SiVede() const { return Stato().Visible; }
    virtual bool Colpibile() const { return true; }
    bool InVista() const override;
    bool Abilitata() const;

    /// `area` is its own, from 0, 0.
    virtual void Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) = 0;

    /// It does something when it is clicked. One that lies behind another has what is clicked
    /// before it.
    virtual bool Cliccabile() const;
    /// The same, or something happens when a button goes down on it, or at a double click on what
    /// looks like a button; any other double click is a gesture for who knows it.
    virtual bool Azionabile() const;
    /// The pointer's shape tells that there is something to do.
    virtual bool Invita() const { return Cliccabile() || Stato().Ascolta(ascoltaPressione); }
    /// It looks different under the pointer.
    virtual bool SenteIlPuntatore() const { return Azionabile(); }
    /// The pointer is there, from the upper left corner of its area.
    virtual void Sorvola(const QPointF&) {}
    virtual void Lasciata() {}
    /// A key went down while it has the focus; false when it has no use for it. The space bar and
    /// Enter click it. One that hears the button go down hears it as long as they are held. One
    /// that knows only double clicks gets one, and any that knows them gets one by Shift and Enter.
    /// In a grid (style word "griglia:" and its name) the arrows go from one to the next.
    virtual bool PremiTasto(const QKeyEvent& tasto);
    virtual bool LasciaTasto(const QKeyEvent& tasto);
    virtual bool UsaFrecce() const { return !GrigliaDi(Stato()).isEmpty(); }
    /// What was held down with the keyboard is let go without having been pressed.
    virtual void Rinuncia();
    bool PremutaDaTasto() const { return tastoGiu_ != 0; }

    /// What is only read is one for those alone who don't see it.
    bool Fermata() const override;
    /// In one grid.
    bool Insieme(const Vista& altra) const override;
    Vista& Ingresso() override;
    bool Usabile() const override;
    bool HaFuoco() const override;
    void PrendiFuoco(Qt::FocusReason perche) override;
    /// From now on the Tab key comes to it, of those in its grid.
    void Segnala();
    /// Presses it and lets it go.
    void Aziona() const;

    /// Its part of the face is to be painted anew.
    void Sporca() const;

    /// It is something to a screen reader.
    virtual bool Detta() const { return Azionabile() || !NomeDetto().isEmpty(); }
    /// Of a switch whether it is on; nothing of all else.
    virtual std::optional<bool> Spuntata() const;
    /// One of those of which some stand out.
    virtual bool Svelabile() const { return Stato().Ha("risposta"); }
    /// It stands out among its like, as the answer that is shown.
    virtual bool Svelata() const;
    /// The one that has the focus, of those that share a stop of the Tab key.
    virtual const VistaDipinta& DovEIlFuoco() const { return *this; }
    /// What a screen reader knows of it; made when first asked for.
    Accessibile& PerLettore();

protected:
    void Prepara(Nome nome) override;
    void Rinfresca(Nome nome) override;
    void Riscala() override;
    void NomeCambiato() override;

private:
    /// Tells screen readers what has become of it.
    void DiCambiato(Nome nome);
    /// What a press comes to: a click, or a double click where it hears no other.
    void Compi() const;

    Faccia* faccia_ = nullptr;
    std::optional<bool> spuntataDetta_;
    bool svelataDetta_ = false;
    unsigned lettore_ = 0;  ///< what the toolkit calls it towards screen readers, 0 for not yet
    bool segnalata_ = false;
    int tastoGiu_ = 0;  ///< holds it down, 0 for none
};

}  // namespace corvana
