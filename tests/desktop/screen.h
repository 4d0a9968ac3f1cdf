// A user of real windows: waits, clicks, types, looks. For tests on Qt's offscreen platform.
// GUI thread.
#pragma once

#include <QImage>
#include <QPoint>
#include <QString>
#include <Qt>
#include <functional>

#include "desktop/desktop.h"

namespace corvana::prova {

/// Runs the Qt loop until the condition holds; false when it doesn't within a generous time.
bool Aspetta(const std::function<bool()>& condizione);

/// The widget of the control of that name in the window in front; throws when there is none.
QWidget& Trova(Scrivania& scrivania, const QString& nome);
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

/// Brings the pointer there, with no button down.
void Muovi(QWidget& widget, QPoint dove);

/// A key of the window in front goes down, up, or both, as the system would tell it.
void Premi(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});
void Lascia(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});
void Batti(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});

/// What the window in front shows, in the screen's pixels.
QImage Fotografa(Scrivania& scrivania);
QImage Fotografa(QWidget& widget);

}  // namespace corvana::prova
