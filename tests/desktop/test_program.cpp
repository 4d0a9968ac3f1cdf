#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <algorithm>
#include <csignal>

#include "forms/real_clock.h"
#include "tests/desktop/program_stage.h"
#include "tests/desktop/test_form.h"

namespace corvana::prova {
namespace {

TEST(Programma, ADrillIsAnsweredFromTheKeyboardAndEndsWithItsResults) {
    PalcoProgramma programma;
    Scrivania& s = programma.scrivania;
    EXPECT_TRUE(Trova(s, "Start").hasFocus());
    Batti(s, Qt::Key_Space);
    ASSERT_TRUE(Aspetta([&] { return programma.Scritta("Start") == "Stop"; }));
    EXPECT_TRUE(Aspetta([&] { return !Trova(s, "Regolo").isVisible(); }));
    for (const Qt::Key lettera : {Qt::Key_D, Qt::Key_F, Qt::Key_G, Qt::Key_H})
        Batti(s, lettera);
    for (const Qt::Key cifra : {Qt::Key_1, Qt::Key_2, Qt::Key_3})
        Batti(s, cifra, Qt::KeypadModifier);
    ASSERT_TRUE(Aspetta([&] { return programma.Risposte() == 7; }));
    // Of all seven names at least one was right, whatever the notes were.
    EXPECT_GE(programma.Testo("conta").toInt(), 1);
    Clicca(s, "Start");
    EXPECT_TRUE(Aspetta([&] { return Trova(s, "frmRisultati").isVisible(); }));
    EXPECT_EQ(programma.Scritta("Start"), "Start");
}

TEST(Programma, TheAutomaticModeShowsItsSpeedAndItsKeys) {
    PalcoProgramma programma;
    EXPECT_FALSE(Trova(programma.scrivania, "Slider1").isVisible());
    TrovaVoce(programma.scrivania, "mnuAutomatico").trigger();
    EXPECT_TRUE(Aspetta([&] { return Trova(programma.scrivania, "Slider1").isVisible(); }));
    EXPECT_TRUE(TrovaVoce(programma.scrivania, "mnuAutomatico").isChecked());
    EXPECT_FALSE(TrovaVoce(programma.scrivania, "mnuNormale").isChecked());
}

TEST(Programma, ClosingTheMainWindowEndsIt) {
    PalcoProgramma programma;
    programma.scrivania.Davanti()->Finestra().close();
    EXPECT_TRUE(Aspetta([&] { return programma.scrivania.Finita(); }));
}

TEST(Applicazione, ASystemThatWantsItToQuitIsObeyedWhateverTheWindowsAnswer) {
    int argc = 0;
    Applicazione applicazione(argc, nullptr);
    const int esito = applicazione.OspitaLogica([&] {
        OrologioReale orologio;
        Pompa pompa(orologio, applicazione.Coda());
        Finestre finestre(pompa, applicazione.Riquadri(), &applicazione.Schermo());
        FormDiProva form(finestre, applicazione.Riquadri(), [](std::string) {});
        form.chiudibile = false;
        finestre.Mostra(form);
        // Qt forgets what was asked of it before its loop ran.
        QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
        finestre.FinoAllUltima();
    });
    EXPECT_EQ(esito, 0);
}

TEST(Applicazione, ASignalToTerminateClosesTheWindows) {
    int argc = 0;
    Applicazione applicazione(argc, nullptr);
    std::vector<std::string> diario;
    const int esito = applicazione.OspitaLogica([&] {
        OrologioReale orologio;
        Pompa pompa(orologio, applicazione.Coda());
        Finestre finestre(pompa, applicazione.Riquadri(), &applicazione.Schermo());
        FormDiProva form(finestre, applicazione.Riquadri(),
                         [&](std::string riga) { diario.push_back(std::move(riga)); });
        finestre.Mostra(form);
        std::raise(SIGTERM);
        finestre.FinoAllUltima();
    });
    EXPECT_EQ(esito, 0);
    EXPECT_NE(std::find(diario.begin(), diario.end(), "unload"), diario.end());
}

}  // namespace
}  // namespace corvana::prova
