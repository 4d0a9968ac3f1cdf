// The whole program in one life, one thing after the other as a guide would show it; a second copy
// beside it; and what is left of it at the next start.
#include <gtest/gtest.h>

#include <QMainWindow>
#include <QMessageBox>
#include <QSlider>

#include "tests/desktop/tour.h"

namespace corvana::prova {
namespace {

void Guida(Giro& giro, const std::vector<Tappa>& tappe) {
    for (const Tappa& tappa : tappe) {
        SCOPED_TRACE(tappa.nome);
        ASSERT_NO_THROW(tappa.fai(giro));
    }
}

/// While the first one runs, and leaves it alone.
void SecondaCopia(const std::string& blocco) {
    const QTemporaryDir stato;
    Macchina macchina = MacchinaMuta(QStringLiteral(CORVANA_DATA), stato);
    macchina.percorsoBlocco = blocco;
    int argc = 0;
    Applicazione altra(argc, nullptr);
    Scrivania& scrivania = altra.LaScrivania();
    scrivania.Avvia([&] { LogicaDelProgramma(altra, macchina); });
    ASSERT_TRUE(Aspetta([&] { return scrivania.Riquadro() && scrivania.Riquadro()->isVisible(); }));
    auto& riquadro = dynamic_cast<QMessageBox&>(*scrivania.Riquadro());
    EXPECT_EQ(riquadro.text(), "The program is already running !!!");
    EXPECT_EQ(scrivania.Davanti(), nullptr);
    riquadro.accept();
    EXPECT_TRUE(Aspetta([&] { return scrivania.Finita(); }));
}

void ScegliPerDomani(Giro& g) {
    g.Scegli("mnuEn");
    g.Scegli("mnuAutomatico");
    g.AllEstremo("Slider1", true);
    g.scrivania.Davanti()->Finestra().close();
    EXPECT_TRUE(Aspetta([&] { return g.scrivania.Finita(); }));
}

/// Language, mode, speed, range and instrument are as they were; chance begins anew.
void IlGiornoDopo(Giro& g, const Interi& primeNote) {
    EXPECT_TRUE(g.Titolo().starts_with("Corvana - Note reading")) << g.Titolo();
    EXPECT_TRUE(g.Vede("Slider1"));
    EXPECT_EQ(g.Dice("Velocità"), "Notes per minute: 140");
    EXPECT_EQ(g.SulPentagramma(), (Interi{44, 50}));
    EXPECT_EQ(g.Strumenti(),
              (std::vector<std::pair<int, int>>{{1, 24}, {2, 24}, {3, 24}, {4, 24}}));
    g.Scegli("mnuNormale");
    Interi note;
    for (int volta = 0; volta < 2; ++volta) {
        g.Tocca("Start");
        note.push_back(g.SulPentagramma().front());
        g.Tocca("Start");
    }
    EXPECT_EQ(note, primeNote);
}

TEST(UnGiroDelProgramma, EverythingWorksOneAfterTheOtherAndWhatWasChosenComesBack) {
    CasaDiMemoria casa;
    Interi primeNote;
    {
        Giro giro(casa);
        Guida(giro, TappeDellaLettura());
        Guida(giro, TappeDellaMelodia());
        Guida(giro, TappeDellOrecchio());
        Guida(giro, TappeDegliAttrezzi());
        SecondaCopia(casa.Blocco());
        ScegliPerDomani(giro);
        primeNote = giro.primeNote;
    }
    Giro domani(casa);
    IlGiornoDopo(domani, primeNote);
}

}  // namespace
}  // namespace corvana::prova
