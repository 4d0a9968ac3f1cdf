// The face of one control: shows the control's properties and reports what the user does to it. It
// is a widget, or is painted by the face on which it lies. GUI thread. A widget belongs to its
// parent widget; the view must not be used when the window's widgets are gone.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/aspect.h"
#include "desktop/sender.h"

namespace corvana {

class Vista {
public:
    Vista(const CopiaControllo& copia, Mittente mittente);
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;
    virtual ~Vista() = default;

    /// Takes the view of a control that lies in this one. To be called once, in the order in which
    /// they lie one over the other.
    void Adotta(Vista& figlia);
    Vista* Padre() const { return padre_; }
    const std::vector<Vista*>& Figlie() const { return figlie_; }

    /// Null for a control that a face paints.
    QWidget* Widget() const { return widget_; }
    const Aspetto& Stato() const { return aspetto_; }
    int Numero() const { return copia_.numero; }
    const CopiaControllo& Origine() const { return copia_; }
    double Scala() const { return scala_; }

    void Cambia(Nome nome, const Valore& valore);
    void Manda(Fatto fatto, int valore = 0) const { mittente_.Manda(copia_.numero, fatto, valore); }
    void Manda(Evento evento) const;
    /// The left button went down or came up in its middle, though it was a key.
    void MandaBottone(Fatto fatto) const;
    /// The pointer moved over the window, where no control listens to it.
    void MuoviFinestra() const;

    /// Puts it at its place, `scala` times the designed size.
    void Disponi(double scala);

    /// For a control on which widgets stand: makes the widget that they stand on.
    virtual void DaiFaccia(QWidget&) {}
    /// To be called each time that something drops down from it; from then on that has the
    /// keyboard.
    virtual void PonApertura(const std::function<void()>&) {}

    /// The Tab key stops here, as long as it can be used.
    virtual bool Fermata() const;
    /// They share a stop of the Tab key.
    virtual bool Insieme(const Vista&) const { return false; }
    /// Of those that share a stop with it, the one where the Tab key arrives.
    virtual Vista& Ingresso() { return *this; }
    /// The user sees it and can use it.
    virtual bool Usabile() const;
    virtual bool HaFuoco() const;
    virtual void PrendiFuoco(Qt::FocusReason perche);

    /// What a screen reader calls it.
    const QString& NomeDetto() const { return nomeDetto_; }
    void PonNomeDetto(const QString& nome);
    /// The same, with what it shows at the moment.
    virtual QString Lettura() const { return nomeDetto_; }
    /// What else is to be said of it: its tool tip, or the words that it bears, where its name says
    /// neither.
    virtual QString Dettaglio() const { return CioCheIlNomeTace(aspetto_, nomeDetto_); }
    /// With all that it lies in.
    virtual bool InVista() const { return widget_ && widget_->isVisible(); }

protected:
    /// Takes the widget, gives it what all kinds have in common, and hears its mouse through
    /// `bersaglio`, the part that receives it (the widget itself when null).
    void PonWidget(QWidget& widget, QWidget* bersaglio = nullptr);
    /// The same for one that hears its mouse itself.
    void PonWidgetMuto(QWidget& widget);

    /// The user has made this of a property, and the widget shows it already.
    void PonDaUtente(Nome nome, const Valore& valore) { nome.Poni(aspetto_, valore); }

    /// A property is about to change.
    virtual void Prepara(Nome) {}
    /// A property changed; the common ones are dealt with already.
    virtual void Rinfresca(Nome nome);
    /// The scale changed.
    virtual void Riscala() {}
    virtual void NomeCambiato();
    /// What it says has changed: it is told at once, where somebody listens.
    static void Annuncia(const Vista& vista);

private:
    void PonDettaglio();
    void RinfrescaComune(Nome nome);

    CopiaControllo copia_;
    Mittente mittente_;
    Aspetto aspetto_;
    Vista* padre_ = nullptr;
    std::vector<Vista*> figlie_;
    QWidget* widget_ = nullptr;
    QString nomeDetto_;
    double scala_ = 1;
};

}  // namespace corvana
