#include "tests/desktop/careless_hand.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <array>

#include "desktop/painted_view.h"
#include "forms/fault.h"
#include "tests/desktop/memory_home.h"

namespace corvana::prova {

namespace {

constexpr qint64 pazienza = 60'000;  ///< milliseconds, to end a hang
constexpr double lungaAttesa = 60;   ///< seconds of the program's

constexpr std::array tasti = {
    Qt::Key_A,     Qt::Key_D,      Qt::Key_P,     Qt::Key_Q,      Qt::Key_Z,     Qt::Key_2,
    Qt::Key_5,     Qt::Key_Space,  Qt::Key_Tab,   Qt::Key_Return, Qt::Key_Up,    Qt::Key_Down,
    Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Home,  Qt::Key_End,    Qt::Key_F1,    Qt::Key_F2,
    Qt::Key_F4,    Qt::Key_F5,     Qt::Key_F9,    Qt::Key_F12,    Qt::Key_Menu,  Qt::Key_Escape,
    Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Shift, Qt::Key_Comma,  Qt::Key_Period};

bool Principale(VistaFinestra& finestra) {
    return finestra.Finestra().objectName() == QLatin1String("CorvanaMainF");
}

}  // namespace

struct ManoDistratta::Sera {
    Sera()
        : palco(QStringLiteral(CORVANA_DATA), [this](Macchina& macchina) {
              macchina.orologio = &orologio;
              DaiCasa(file, macchina, QStringLiteral(CORVANA_DATA));
          }) {}

    OrologioADosi orologio;
    FileInMemoria file;
    PalcoProgramma palco;
};

void ManoDistratta::Vivi() {
    while (rimasti_ > 0 && guasto.empty())
        Avvia();
}

void ManoDistratta::Avvia() {
    sera_ = std::make_unique<Sera>();
    while (rimasti_ > 0 && guasto.empty() && !sera_->palco.scrivania.Finita()) {
        --rimasti_;
        Gesto();
        Aspetta();
    }
    sera_.reset();
}

void ManoDistratta::Gesto() {
    Scrivania& scrivania = sera_->palco.scrivania;
    if (QDialog* riquadro = scrivania.Riquadro(); riquadro && riquadro->isVisible())
        return NelRiquadro(*riquadro);
    if (QWidget* menu = QApplication::activePopupWidget()) return NelMenu(*menu);
    if (VistaFinestra* davanti = scrivania.Davanti()) NellaFinestra(*davanti);
}

void ManoDistratta::NelRiquadro(QDialog& riquadro) {
    if (const auto* messaggio = qobject_cast<QMessageBox*>(&riquadro)) {
        const QString testo = messaggio->text();
        if (testo.startsWith(QString::number(guastoInterno) + QLatin1Char('\n')))
            guasto = testo.toStdString();
    }
    if (auto* riga = riquadro.findChild<QLineEdit*>(); riga && Capita(700))
        riga->setText(QString(Tra(0, 5), QChar(Tra('a', 'e'))) + (Capita(100) ? "÷;" : ""));
    const auto bottoni = riquadro.findChildren<QAbstractButton*>();
    if (bottoni.isEmpty() || Capita(200)) return riquadro.reject();
    bottoni.at(static_cast<int>(Quale(bottoni.size())))->click();
}

void ManoDistratta::NelMenu(QWidget& menu) {
    QWindow& finestra = *menu.windowHandle();
    if (Capita(300)) return QTest::keyClick(&finestra, Qt::Key_Escape);
    if (Capita(400)) return QTest::keyClick(&finestra, Capita(700) ? Qt::Key_Down : Qt::Key_Return);
    const QPoint dove(Tra(0, menu.width()), Tra(0, menu.height()));
    const QPointer<QWindow> ancora = &finestra;
    QTest::mousePress(&finestra, Qt::LeftButton, {}, dove);
    if (ancora) QTest::mouseRelease(ancora, Qt::LeftButton, {}, dove);
}

void ManoDistratta::NellaFinestra(VistaFinestra& finestra) {
    ++gesti[finestra.Finestra().objectName()];
    const int sorte = Tra(0, 999);
    // From the main window's menus all others open.
    if (sorte < (Principale(finestra) ? 300 : 620)) return Mouse(finestra);
    if (sorte < 720) return Voce(finestra);
    if (sorte < 900) return Tasto(*finestra.Finestra().windowHandle());
    if (sorte < 930) return Parole(*finestra.Finestra().windowHandle());
    Finestra(finestra);
}

/// As a rule one in a control that is to be seen.
QPoint ManoDistratta::Punto(VistaFinestra& finestra) {
    std::vector<Cosa> visibili;
    for (int numero = 1; Vista* vista = finestra.Controllo(numero); ++numero)
        if (vista->Widget() || dynamic_cast<VistaDipinta*>(vista))
            if (const Cosa cosa(*vista); cosa.isVisible()) visibili.push_back(cosa);
    const QSize tutta = finestra.Finestra().size();
    if (visibili.empty() || Capita(50)) return {Tra(0, tutta.width()), Tra(0, tutta.height())};
    const Cosa& cosa = visibili.at(Quale(visibili.size()));
    return cosa.NellaFinestra({Tra(0, cosa.width() - 1), Tra(0, cosa.height() - 1)});
}

/// A click, a drag, or a press that is let go over something else; each step may close the window.
void ManoDistratta::Mouse(VistaFinestra& finestra) {
    const QPointer<QWindow> vera = finestra.Finestra().windowHandle();
    const QPoint giu = Punto(finestra);
    const QPoint su = Capita(150) ? Punto(finestra) : giu;
    const Qt::MouseButton bottone = Capita(80) ? Qt::RightButton : Qt::LeftButton;
    const int volte = Capita(150) ? 2 : 1;
    for (int volta = 0; volta < volte; ++volta) {
        if (vera) QTest::mousePress(vera, bottone, {}, giu);
        if (vera && su != giu) QTest::mouseMove(vera, su);
        if (Capita(100)) Aspetta();
        if (vera) QTest::mouseRelease(vera, bottone, {}, su);
    }
}

void ManoDistratta::Tasto(QWindow& finestra) {
    const QPointer<QWindow> vera = &finestra;
    const Qt::Key tasto = tasti.at(Quale(tasti.size()));
    QTest::keyPress(vera, tasto);
    if (Capita(200)) Aspetta();
    if (vera) QTest::keyRelease(vera, tasto);
}

void ManoDistratta::Voce(VistaFinestra& finestra) {
    const auto voci = finestra.Finestra().findChildren<QAction*>();
    if (voci.isEmpty()) return Finestra(finestra);
    QAction& voce = *voci.at(static_cast<int>(Quale(voci.size())));
    if (voce.isEnabled() && !voce.menu()) voce.trigger();
}

void ManoDistratta::Parole(QWindow& finestra) {
    const QPointer<QWindow> vera = &finestra;
    for (int lettere = Tra(1, 4); lettere > 0 && vera; --lettere)
        QTest::keyClick(vera, static_cast<char>(Tra('0', '9')));
}

/// The main window, which ends the program, is closed less often than the others.
void ManoDistratta::Finestra(VistaFinestra& finestra) {
    QMainWindow& vera = finestra.Finestra();
    if (Capita(Principale(finestra) ? 30 : 700)) {
        vera.close();
    } else if (Capita(500)) {
        vera.resize(vera.size() + QSize(Tra(-90, 90), Tra(-60, 60)));
    } else if (FinestraAiuto* aiuto = sera_->palco.scrivania.Aiuto(); aiuto && aiuto->isVisible()) {
        aiuto->close();
    }
}

bool ManoDistratta::HaFinito() const {
    Scrivania& scrivania = sera_->palco.scrivania;
    const OrologioADosi& orologio = sera_->orologio;
    return scrivania.Finita() || scrivania.Riquadro() || orologio.Fermo() ||
           (scrivania.Coda().Vuota() && orologio.InAttesa());
}

void ManoDistratta::Aspetta() {
    QElapsedTimer limite;
    limite.start();
    // A note that is heard holds the program up: what he does meanwhile waits, and not much of it.
    const bool pieno = sera_->orologio.Fermo() && !sera_->palco.scrivania.Coda().Vuota();
    if (pieno && Capita(300))
        sera_->orologio.Concedi(lungaAttesa);
    else
        sera_->orologio.Concedi(Capita(100) ? Tra(0, 4000) / 1000.0 : Tra(0, 50) / 1000.0);
    const bool frettolosa = Capita(200);
    do {
        QCoreApplication::processEvents();
        if (limite.elapsed() > pazienza) guasto = "the program takes nothing any more";
    } while (!frettolosa && guasto.empty() && !HaFinito());
}

}  // namespace corvana::prova
