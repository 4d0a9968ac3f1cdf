#include "tests/desktop/screen.h"

#include <QAction>
#include <QMenuBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWindow>
#include <stdexcept>

#include "desktop/face.h"
#include "desktop/face_reader.h"
#include "desktop/menu_painter.h"

namespace corvana::prova {

namespace {

constexpr int pazienza = 60'000;  ///< milliseconds; a busy machine never comes near it

VistaFinestra& Davanti(Scrivania& scrivania) {
    VistaFinestra* davanti = scrivania.Davanti();
    if (!davanti) throw std::logic_error("no window stands in front");
    return *davanti;
}

std::logic_error Manca(const QString& nome) {
    return std::logic_error("the window has no " + nome.toStdString());
}

}  // namespace

bool Aspetta(const std::function<bool()>& condizione) {
    return QTest::qWaitFor(condizione, pazienza);
}

bool Cosa::isVisible() const {
    const auto* dipinta = dynamic_cast<const VistaDipinta*>(vista_);
    return dipinta ? dipinta->InVista() && dipinta->FacciaDove().isVisible()
                   : vista_->Widget()->isVisible();
}

bool Cosa::isEnabled() const {
    const auto* dipinta = dynamic_cast<const VistaDipinta*>(vista_);
    return dipinta ? dipinta->Abilitata() : vista_->Widget()->isEnabled();
}

QAccessibleInterface* Cosa::PerLettore() const {
    if (QWidget* widget = vista_->Widget()) return QAccessible::queryAccessibleInterface(widget);
    return &dynamic_cast<VistaDipinta&>(*vista_).PerLettore();
}

QRect Cosa::rect() const {
    if (QWidget* widget = vista_->Widget()) return widget->rect();
    return {QPoint(), dynamic_cast<const VistaDipinta&>(*vista_).Area().size()};
}

QPoint Cosa::NellaFinestra(QPoint dove) const {
    if (!vista_->Widget()) dove += dynamic_cast<const VistaDipinta&>(*vista_).Area().topLeft();
    return Suolo().mapTo(Suolo().window(), dove);
}

QWidget& Cosa::Suolo() const {
    if (QWidget* widget = vista_->Widget()) return *widget;
    return dynamic_cast<const VistaDipinta&>(*vista_).FacciaDove();
}

Cosa::operator QWidget&() const {
    if (QWidget* widget = vista_->Widget()) return *widget;
    throw std::logic_error(objectName().toStdString() + " is no widget");
}

Cosa Trova(Scrivania& scrivania, const QString& nome) {
    VistaFinestra& davanti = Davanti(scrivania);
    for (int numero = 0; Vista* vista = davanti.Controllo(numero); ++numero)
        if (vista->Stato().nome == nome) return Cosa(*vista);
    throw Manca(nome);
}

QAction& TrovaVoce(Scrivania& scrivania, const QString& nome) {
    auto* voce = Davanti(scrivania).Finestra().findChild<QAction*>(nome);
    if (!voce) throw Manca(nome);
    return *voce;
}

const Aspetto& StatoDi(Scrivania& scrivania, const QString& nome) {
    return Trova(scrivania, nome).LaVista().Stato();
}

void Ingrandisci(VistaFinestra& finestra, double volte) {
    const QRect twips = finestra.Controllo(0)->Stato().Twips();
    QMainWindow& vera = finestra.Finestra();
    QSize disegnata = InPixel({0, 0, twips.width(), twips.height()}, 1).size();
    if (!vera.menuBar()->isHidden()) disegnata.rheight() += MisuraVoceSbarra({}, 1).height();
    const QSize voluta = (QSizeF(disegnata) * volte).toSize();
    vera.resize(voluta);
    Aspetta(
        [&] { return vera.size() == voluta && vera.centralWidget()->width() == voluta.width(); });
}

VistaFinestra& AspettaFinestra(Scrivania& scrivania, const QString& nome) {
    const bool venuta = Aspetta([&] {
        VistaFinestra* davanti = scrivania.Davanti();
        return davanti && davanti->Finestra().objectName() == nome &&
               davanti->Finestra().isActiveWindow();
    });
    if (!venuta) throw Manca(nome);
    return Davanti(scrivania);
}

void Clicca(Scrivania& scrivania, const QString& nome) {
    const Cosa cosa = Trova(scrivania, nome);
    Clicca(cosa, cosa.rect().center());
}

void Clicca(const Cosa& cosa, QPoint dove) {
    QTest::mouseClick(cosa.window()->windowHandle(), Qt::LeftButton, {}, cosa.NellaFinestra(dove));
}

void Clicca(QWidget& widget, QPoint dove) {
    QWindow* finestra = widget.window()->windowHandle();
    QTest::mouseClick(finestra, Qt::LeftButton, {}, widget.mapTo(widget.window(), dove));
}

QPoint Pollice(const QSlider& barra) {
    QStyleOptionSlider opzioni;
    opzioni.initFrom(&barra);
    opzioni.orientation = barra.orientation();
    opzioni.minimum = barra.minimum();
    opzioni.maximum = barra.maximum();
    opzioni.sliderPosition = opzioni.sliderValue = barra.value();
    const bool ritta = barra.orientation() == Qt::Vertical;
    opzioni.upsideDown = barra.invertedAppearance() != ritta;
    opzioni.subControls = QStyle::SC_All;
    return barra.style()
        ->subControlRect(QStyle::CC_Slider, &opzioni, QStyle::SC_SliderHandle, &barra)
        .center();
}

void Muovi(QWidget& widget, QPoint dove) {
    QWindow* finestra = widget.window()->windowHandle();
    // The pointer may lie there already, and what doesn't move isn't told.
    QTest::mouseMove(finestra, QPoint(0, 0));
    QTest::mouseMove(finestra, widget.mapTo(widget.window(), dove));
}

void Muovi(const Cosa& cosa, QPoint dove) {
    Muovi(*cosa.window(), cosa.NellaFinestra(dove));
}

void Premi(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori) {
    QTest::keyPress(Davanti(scrivania).Finestra().windowHandle(), tasto, modificatori);
}

void Lascia(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori) {
    QTest::keyRelease(Davanti(scrivania).Finestra().windowHandle(), tasto, modificatori);
}

void Batti(Scrivania& scrivania, Qt::Key tasto, Qt::KeyboardModifiers modificatori) {
    Premi(scrivania, tasto, modificatori);
    Lascia(scrivania, tasto, modificatori);
}

QImage Fotografa(Scrivania& scrivania) {
    return Fotografa(Davanti(scrivania).Finestra());
}

QImage Fotografa(QWidget& widget) {
    return widget.grab().toImage();
}

QImage Fotografa(const Cosa& cosa) {
    return cosa.window()->grab(QRect(cosa.NellaFinestra(QPoint()), cosa.rect().size())).toImage();
}

}  // namespace corvana::prova
