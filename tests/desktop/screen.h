// A user of real windows: waits, clicks, types, looks. For tests on Qt's offscreen platform.
// GUI thread.
#pragma once

#include <QAccessible>
#include <QImage>
#include <QPoint>
#include <QString>
#include <Qt>
#include <functional>

#include "desktop/desktop.h"

class QSlider;

namespace corvana::prova {

/// Runs the Qt loop until the condition holds; false when it doesn't within a generous time.
bool Aspetta(const std::function<bool()>& condizione);

/// A control as the user meets it, whether it is a widget or painted on a face.
class Cosa {
public:
    explicit Cosa(Vista& vista) : vista_(&vista) {}

    Vista& LaVista() const { return *vista_; }
    QString objectName() const { return vista_->Stato().nome; }
    bool isVisible() const;
    bool isEnabled() const;
    bool hasFocus() const { return vista_->HaFuoco(); }
    void setFocus(Qt::FocusReason perche = Qt::OtherFocusReason) const {
        vista_->PrendiFuoco(perche);
    }
    bool Fermata() const { return vista_->Fermata(); }
    QString toolTip() const { return InQt(vista_->Stato().ToolTipText); }
    QString accessibleName() const { return vista_->NomeDetto(); }
    /// What a screen reader is given of it.
    QAccessibleInterface* PerLettore() const;
    QRect rect() const;
    int width() const { return rect().width(); }
    int height() const { return rect().height(); }
    QWidget* window() const { return Suolo().window(); }
    /// A place in it, as one in its window.
    QPoint NellaFinestra(QPoint dove) const;
    /// The widget itself, or else what it is painted on.
    QWidget& Suolo() const;
    /// Of one that is a widget; throws for any other.
    operator QWidget&() const;  // NOLINT(google-explicit-constructor): it is one
    template <class T>
    T& Come() const {
        return dynamic_cast<T&>(static_cast<QWidget&>(*this));
    }

private:
    Vista* vista_;
};

/// The control of that name in the window in front; throws when there is none.
Cosa Trova(Scrivania& scrivania, const QString& nome);
/// The same for a menu entry.
QAction& TrovaVoce(Scrivania& scrivania, const QString& nome);
/// What the face knows of a control of the window in front, one without a widget too.
const Aspetto& StatoDi(Scrivania& scrivania, const QString& nome);
/// Makes the window that many times as large as it was designed.
void Ingrandisci(VistaFinestra& finestra, double volte);
/// Waits for a window of that name in front that has become active; throws when none comes.
VistaFinestra& AspettaFinestra(Scrivania& scrivania, const QString& nome);

/// Clicks the control in its middle, or at a place in it given in pixels.
void Clicca(Scrivania& scrivania, const QString& nome);
void Clicca(QWidget& widget, QPoint dove);
void Clicca(const Cosa& cosa, QPoint dove);

/// The middle of a slider's thumb.
QPoint Pollice(const QSlider& barra);

/// Brings the pointer there, with no button down.
void Muovi(QWidget& widget, QPoint dove);
void Muovi(const Cosa& cosa, QPoint dove);

/// A key of the window in front goes down, up, or both, as the system would tell it.
void Premi(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});
void Lascia(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});
void Batti(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});

/// What the window in front shows, in the screen's pixels.
QImage Fotografa(Scrivania& scrivania);
QImage Fotografa(QWidget& widget);
/// With what lies beneath it.
QImage Fotografa(const Cosa& cosa);

}  // namespace corvana::prova
