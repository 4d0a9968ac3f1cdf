#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QTemporaryDir>
#include <csignal>

#include "desktop/application.h"
#include "desktop/program.h"
#include "forms/real_clock.h"
#include "sound/recorder.h"
#include "tests/desktop/screen.h"
#include "tests/desktop/test_form.h"

namespace corvana::prova {
namespace {

/// The whole program in real windows, with a recorder for its sound and a fresh user's settings.
class Programma {
public:
    Programma() {
        scrivania.Avvia([this] { EseguiProgramma(applicazione_, Macchina_()); });
        AspettaFinestra(scrivania, "CorvanaMainF");
        Aspetta([this] { return Trova(scrivania, "Start").isEnabled(); });
    }
    ~Programma() { scrivania.Termina(); }

    QString Testo(const char* casella) {
        return dynamic_cast<QLineEdit&>(Trova(scrivania, casella)).text();
    }
    QString Start() { return dynamic_cast<QAbstractButton&>(Trova(scrivania, "Start")).text(); }

private:
    Macchina Macchina_() const {
        Macchina macchina;
        macchina.cartellaProgramma = stato_.path().toStdString();
        macchina.percorsoImpostazioni = stato_.filePath("settings").toStdString();
        macchina.percorsoBlocco = stato_.filePath("lock").toStdString();
        macchina.uscite = [](std::function<double()> istante) {
            return std::make_unique<Registratore>(std::move(istante));
        };
        return macchina;
    }

    QTemporaryDir stato_;
    int argc_ = 0;
    Applicazione applicazione_{argc_, nullptr};

public:
    Scrivania& scrivania = applicazione_.LaScrivania();
};

TEST(Programma, ADrillIsAnsweredFromTheKeyboardAndEndsWithItsResults) {
    Programma programma;
    Scrivania& s = programma.scrivania;
    EXPECT_TRUE(Trova(s, "Start").hasFocus());
    Batti(s, Qt::Key_Space);
    ASSERT_TRUE(Aspetta([&] { return programma.Start() == "Stop"; }));
    EXPECT_FALSE(Trova(s, "Regolo").isVisible());
    for (const Qt::Key lettera : {Qt::Key_D, Qt::Key_F, Qt::Key_G, Qt::Key_H})
        Batti(s, lettera);
    for (const Qt::Key cifra : {Qt::Key_1, Qt::Key_2, Qt::Key_3})
        Batti(s, cifra, Qt::KeypadModifier);
    ASSERT_TRUE(Aspetta(
        [&] { return programma.Testo("conta").toInt() + programma.Testo("er").toInt() == 7; }));
    // Of all seven names at least one was right, whatever the notes were.
    EXPECT_GE(programma.Testo("conta").toInt(), 1);
    Clicca(s, "Start");
    EXPECT_TRUE(Aspetta([&] { return Trova(s, "frmRisultati").isVisible(); }));
    EXPECT_EQ(programma.Start(), "Start");
}

TEST(Programma, TheAutomaticModeShowsItsSpeedAndItsKeys) {
    Programma programma;
    EXPECT_FALSE(Trova(programma.scrivania, "Slider1").isVisible());
    TrovaVoce(programma.scrivania, "mnuAutomatico").trigger();
    EXPECT_TRUE(Aspetta([&] { return Trova(programma.scrivania, "Slider1").isVisible(); }));
    EXPECT_TRUE(TrovaVoce(programma.scrivania, "mnuAutomatico").isChecked());
    EXPECT_FALSE(TrovaVoce(programma.scrivania, "mnuNormale").isChecked());
}

TEST(Programma, ClosingTheMainWindowEndsIt) {
    Programma programma;
    programma.scrivania.Davanti()->Finestra().close();
    EXPECT_TRUE(Aspetta([&] { return programma.scrivania.Finita(); }));
}

TEST(Applicazione, ASignalToTerminateClosesTheWindows) {
    int argc = 0;
    Applicazione applicazione(argc, nullptr);
    std::vector<std::string> diario;
    const int esito = applicazione.Esegui([&] {
        OrologioReale orologio;
        Pompa pompa(orologio, applicazione.Coda());
        Finestre finestre(pompa, applicazione.Riquadri(), &applicazione.Schermo());
        FormDiProva form(finestre, applicazione.Riquadri(),
                         [&](std::string riga) { diario.push_back(std::move(riga)); });
        finestre.Mostra(form);
        std::raise(SIGTERM);
        finestre.Esegui();
    });
    EXPECT_EQ(esito, 0);
    EXPECT_NE(std::find(diario.begin(), diario.end(), "unload"), diario.end());
}

}  // namespace
}  // namespace corvana::prova
