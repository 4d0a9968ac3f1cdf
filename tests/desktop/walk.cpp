#include "tests/desktop/walk.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolTip>
#include <QWindow>
#include <stdexcept>

namespace corvana::prova {

namespace {

void GiraEsercizio(Passeggiata& g) {
    g.Scegli("mnuNormale");
    g.Mostra(QStringLiteral("idle"));
    g.MostraMenu(QStringLiteral("menu"));
    g.MostraPremuto("Start", QStringLiteral("idle-pressed"));
    g.MostraConsiglio("ToolButton4", QStringLiteral("tool-tip"));
    g.Premi("lblMn");
    g.Premi("Start");
    g.Attendi([&] { return g.Di("pdo").isEnabled() && !g.Di("Regolo").isVisible(); });
    for (const char* nome : {"pdo", "pre", "pmi", "pfa", "psol", "pla", "psi", "pdo"})
        g.Premi(nome);
    g.Mostra(QStringLiteral("running"));
    g.Premi("Start");
    g.Attendi([&] { return g.Di("frmRisultati").isVisible(); });
    g.Mostra(QStringLiteral("results"));
}

void GiraAutomatico(Passeggiata& g) {
    g.Scegli("mnuAutomatico");
    g.Attendi([&] { return g.Di("Slider1").isVisible(); });
    g.Mostra(QStringLiteral("automatic"));
    g.Premi("Start");
    g.AttendiScritta("Start", "Stop");
    g.Mostra(QStringLiteral("automatic-running"));
    g.Premi("Start");
    g.AttendiScritta("Start", "Start");
    g.Attendi([&] { return g.Di("Start").isEnabled(); });
}

bool LuceAccesa(Passeggiata& g, Colore colore) {
    for (int i = 0; i < 6; ++i)
        if (g.Stato(qPrintable(QStringLiteral("lblPuls%1").arg(i))).BackColor == colore)
            return true;
    return false;
}

/// Ticking, in the meter of six pulses, until each light was lit.
void GiraMetronomo(Passeggiata& g) {
    g.Scegli("mnuMetro");
    g.Attendi([&] { return g.Di("frmMetro").isVisible(); });
    g.Mostra(QStringLiteral("metronome"));
    while (!g.Stato("lblPuls5").Visible)
        g.Premi("lblTs");
    g.Premi("cmdSSmetro");
    for (const auto& [nome, colore] : {std::pair{"ticking", Rgb(0, 0, 255)},
                                       {"ticking-b", Rgb(0, 255, 0)},
                                       {"ticking-a", Rgb(255, 0, 0)}}) {
        g.Attendi([&, c = colore] { return LuceAccesa(g, c); });
        g.Mostra(QString::fromLatin1(nome));
    }
    g.Premi("cmdSSmetro");
    g.Attendi([&] { return g.Di("cmdSetup").isEnabled(); });
}

/// A window that opens over the main one, by the control or the menu entry that opens it.
void GiraSopra(Passeggiata& g, const char* finestra, const std::function<void()>& apri) {
    apri();
    g.Attendi(finestra);
    g.Mostra(QLatin1String(finestra));
    g.Chiudi();
}

void GiraSecondarie(Passeggiata& g) {
    for (const auto& [voce, finestra] : {std::pair{"mnuVersione", "frmAbout"},
                                         {"mnuSs", "frmStrum"},
                                         {"mnuMidiTest", "frmMidiTest"}})
        GiraSopra(g, finestra, [&g, v = voce] { g.Scegli(v); });
    GiraSopra(g, "frmConfMetro", [&g] { g.Premi("cmdSetup"); });
    g.Premi("lblCloseMetro");
}

/// The reference chart's pages; of the second one the keys with most accidentals too, and the
/// degrees.
void GiraPromemoria(Passeggiata& g) {
    g.Scegli("mnuPromemoria");
    g.Attendi("frmOptions");
    g.Mostra(QStringLiteral("frmOptions-1"));
    g.Premi("cmdSel1");
    g.Attendi([&] { return g.Stato("Frame12").Visible; });
    g.Mostra(QStringLiteral("frmOptions-2"));
    for (const auto& [ton, mostrato] :
         {std::pair{"Ton8", "Img8"}, {"Ton15", "Img15"}, {"Ton16", "Gradi"}}) {
        g.Premi(ton);
        g.Attendi([&, m = mostrato] { return g.Stato(m).Visible; });
        g.Mostra(QStringLiteral("frmOptions-2-") + QLatin1String(mostrato));
    }
    g.Premi("cmdSel2");
    g.Attendi([&] { return g.Stato("Frame13").Visible; });
    g.Mostra(QStringLiteral("frmOptions-3"));
    g.Chiudi();
}

}  // namespace

void Passeggiata::Gira(bool inglese) {
    Attendi([&] { return Di("Start").isEnabled(); });
    const char* voce = inglese ? "mnuEn" : "mnuIt";
    Scegli(voce);
    // Its entry says so once the language is in use.
    AttendiScritta(voce, inglese ? "English" : "Italiano");
    GiraEsercizio(*this);
    GiraAutomatico(*this);
    GiraMetronomo(*this);
    GiraSecondarie(*this);
    PasseggiaOrecchio(*this);
    PasseggiaComposer(*this);
    GiraPromemoria(*this);
}

void Passeggiata::MostraMenu(const QString& nome) {
    int numero = 0;
    for (QAction* voce : scrivania_.Davanti()->Finestra().menuBar()->actions()) {
        if (!voce->isVisible() || !voce->menu()) continue;
        voce->menu()->popup(QPoint());
        Respira();
        guarda_(*voce->menu(), nome + QString::number(++numero));
        voce->menu()->close();
        Respira();
    }
}

void Passeggiata::MostraPremuto(const char* bottone, const QString& nome) {
    const Cosa cosa = Di(bottone);
    QWindow* finestra = cosa.window()->windowHandle();
    QTest::mousePress(finestra, Qt::LeftButton, {}, cosa.NellaFinestra(cosa.rect().center()));
    Respira();
    Mostra(nome);
    const QPoint accanto = cosa.NellaFinestra(cosa.rect().center() + QPoint(0, 2 * cosa.height()));
    QTest::mouseMove(finestra, accanto);
    QTest::mouseRelease(finestra, Qt::LeftButton, {}, accanto);
    Respira();
}

void Passeggiata::MostraTendina(const char* lista, const QString& nome) {
    auto& tendina = Di(lista).Come<QComboBox>();
    tendina.showPopup();
    Respira();
    guarda_(*tendina.findChild<QFrame*>(), nome);
    tendina.hidePopup();
    Respira();
}

void Passeggiata::MostraRiquadro(const std::function<void()>& apri, const QString& nome) {
    apri();
    QDialog& riquadro = Riquadro();
    guarda_(riquadro, nome);
    riquadro.reject();
    Respira();
}

void Passeggiata::Rispondi(const QString& testo) {
    auto& riquadro = dynamic_cast<QInputDialog&>(Riquadro());
    riquadro.setTextValue(testo);
    riquadro.accept();
    Respira();
}

QDialog& Passeggiata::Riquadro() {
    Attendi([this] { return scrivania_.Riquadro() && scrivania_.Riquadro()->isVisible(); });
    Respira();
    return *scrivania_.Riquadro();
}

void Passeggiata::MostraConsiglio(const char* controllo, const QString& nome) {
    const Cosa cosa = Di(controllo);
    const QPoint dove = cosa.NellaFinestra(cosa.rect().center());
    QToolTip::showText(cosa.window()->mapToGlobal(dove), InQt(Stato(controllo).ToolTipText),
                       cosa.window());
    Respira();
    for (QWidget* sopra : QApplication::topLevelWidgets())
        if (sopra->inherits("QTipLabel") && sopra->isVisible()) guarda_(*sopra, nome);
    QToolTip::hideText();
    Respira();
}

void Passeggiata::Premi(const char* nome) {
    Clicca(scrivania_, QString::fromUtf8(nome));
    Respira();
}

void Passeggiata::Scegli(const char* voce) {
    TrovaVoce(scrivania_, QString::fromUtf8(voce)).trigger();
    Respira();
}

void Passeggiata::AttendiScritta(const char* nome, const char* scritta) {
    Attendi([&] { return Stato(nome).Caption == scritta; });
}

void Passeggiata::Attendi(const std::function<bool()>& condizione) {
    if (!Aspetta(condizione)) throw std::runtime_error("a state of the windows never came");
}

void Passeggiata::Chiudi() {
    scrivania_.Davanti()->Finestra().close();
    Attendi("CorvanaMainF");
}

void Passeggiata::Respira() {
    int passate = 0;
    Aspetta([&] { return ++passate > 2; });
}

}  // namespace corvana::prova
