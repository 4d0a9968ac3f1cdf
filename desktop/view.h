// The face of one control: a widget that shows the control's properties and reports what the user
// does to it. GUI thread. The widget belongs to its parent widget; the view must not be used when
// the window's widgets are gone.
#pragma once

#include <QWidget>
#include <memory>

#include "desktop/aspect.h"
#include "desktop/sender.h"

namespace corvana {

class Vista {
public:
    Vista(const CopiaControllo& copia, Mittente mittente);
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;
    virtual ~Vista() = default;

    /// Null for a control that another one paints.
    QWidget* Widget() const { return widget_; }
    /// Where the controls that lie in this one have their widgets.
    virtual QWidget* Contenitore() { return widget_; }
    const Aspetto& Stato() const { return aspetto_; }
    int Numero() const { return copia_.numero; }

    void Cambia(Nome nome, const Valore& valore);
    void Manda(Fatto fatto, int valore = 0) const { mittente_.Manda(copia_.numero, fatto, valore); }
    void Manda(Evento evento) const;
    /// The pointer moved over the window, where no control listens to it.
    void MuoviFinestra() const;
    const CopiaControllo& Origine() const { return copia_; }
    double Scala() const { return scala_; }

    /// Puts the widget at its place, `scala` times the designed size.
    void Disponi(double scala);

protected:
    /// Takes the widget, gives it what all kinds have in common, and hears its mouse through
    /// `bersaglio`, the part that receives it (the widget itself when null).
    void PonWidget(QWidget& widget, QWidget* bersaglio = nullptr);

    /// The user has made this of a property, and the widget shows it already.
    void PonDaUtente(Nome nome, const Valore& valore) { Poni(aspetto_, nome, valore); }

    /// A property changed; the common ones are dealt with already.
    virtual void Rinfresca(Nome nome);
    /// The scale changed.
    virtual void Riscala() {}

private:
    void RinfrescaComune(Nome nome);

    CopiaControllo copia_;
    Mittente mittente_;
    Aspetto aspetto_;
    QWidget* widget_ = nullptr;
    double scala_ = 1;
};

class VistaPentagramma;

/// The face that the control's kind and style ask for. `pentagramma` is the staff of the window,
/// for the notes that it paints, or null.
std::unique_ptr<Vista> CreaVista(const CopiaControllo& copia, Mittente mittente, QWidget& padre,
                                 VistaPentagramma* pentagramma);

}  // namespace corvana
