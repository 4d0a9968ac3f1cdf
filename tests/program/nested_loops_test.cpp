// Drill and metronome, started and stopped one within the other in every order that the window
// allows, with the modes changed between: what is shown as running runs, and nothing else does.
#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

const std::vector<std::string> comandi = {"Start", "cmdSSmetro", "mnuNormale", "mnuAutomatico"};
using Sequenza = std::vector<std::string>;

/// Clicks at 5, 15, 25 ...: more than a metronome's pulse and a note need to go by.
constexpr double passo = 10;

struct Corsa : BancoProgramma {
    explicit Corsa(const Sequenza& clic) {
        Clicca(3, "mnuMetro");
        double t = 5;
        for (const std::string& comando : clic) {
            Clicca(t, comando);
            Quando(t + passo / 2, [this] { Ricorda(); });
            Quando(t + passo - 1, [this] { Controlla(); });
            t += passo;
        }
        Quando(t - 1, [this] { Chiudibili(); });
        SpegniTutto(t);
        svolta = Vai(t + 40);
    }

    std::vector<std::string> guasti;
    Sequenza possibili;  ///< commands that could be clicked behind the last one
    bool svolta = false;

private:
    int Colpi() const { return static_cast<int>(Pulsi().size()); }
    void Ricorda() {
        mostrate_ = punteggio.Mostrate;
        colpi_ = Colpi();
    }
    void Esigi(bool vero, const char* cosa) {
        if (!vero) guasti.emplace_back(cosa);
    }

    void Controlla() {
        const CorvanaMainF& f = finestra;
        const bool automatica = f.esercizio.InCorso && f.esercizio.punteggio.Mostrate > 0;
        const bool avanza = f.esercizio.punteggio.Mostrate != mostrate_ || Colpi() != colpi_;
        Esigi(riquadri.messaggi.empty(), "a box came");
        Esigi(f.esercizio.Start.Caption() == (f.esercizio.InCorso ? "Stop" : "Start"),
              "the caption of Start");
        Esigi(avanza == (automatica || stato.MetroAttivo), "what is shown doesn't run");
        Esigi(!f.esercizio.InCorso || f.esercizio.punteggio.conta.Text() ==
                                          std::to_string(automatica ? f.esercizio.punteggio.Mostrate
                                                                    : f.esercizio.punteggio.Esatte),
              "the counter");
        Esigi(!f.esercizio.InCorso ||
                  f.esercizio.punteggio.er.Text() == std::to_string(f.esercizio.punteggio.Errate),
              "the wrong answers");
        Esigi(!f.esercizio.InCorso || !f.esercizio.punteggio.frmRisultati.Visible(),
              "the results of an older run");
        if (!f.esercizio.InCorso && !stato.MetroAttivo) Fermo();
    }

    void Fermo() {
        const CorvanaMainF& f = finestra;
        Esigi(f.menu.es.Enabled() && f.menu.Opzioni.Enabled() && f.menu.Risorse.Enabled() &&
                  f.menu.f1.Enabled() && f.menu.Esci.Enabled() && f.cmdEsci.Enabled() &&
                  f.esercizio.Start.Enabled() && f.pentagramma.Regolo.Visible(),
              "the idle window isn't whole");
        Esigi(metronomo.cmdSetup.Enabled() && metronomo.lblCloseMetro.Enabled(),
              "the idle panel isn't whole");
        Esigi(uscita.NoteAccese().empty(), "a note sounds on");
    }

    void Chiudibili() {
        for (const std::string& comando : comandi)
            if (finestra.Trova(comando)->Utilizzabile()) possibili.push_back(comando);
    }

    void SpegniTutto(double t) {
        Quando(t, [this] {
            if (finestra.esercizio.InCorso) coda.Aggiungi(Fatta({}, "Start"));
        });
        Quando(t + passo, [this] {
            if (stato.MetroAttivo) coda.Aggiungi(Fatta({}, "cmdSSmetro"));
        });
        Quando(t + 1.5 * passo, [this] { Ricorda(); });
        Quando(t + 2 * passo, [this] { Controlla(); });
        Chiudi(t + 2.5 * passo);
    }

    int mostrate_ = 0;
    int colpi_ = 0;
};

std::string Nomi(const Sequenza& clic) {
    std::string nomi;
    for (const std::string& comando : clic)
        nomi.append(comando).append(" ");
    return nomi;
}

/// All sequences that begin with `clic`, up to a length.
int Prova(Sequenza& clic, std::size_t lunghezza) {
    const Corsa corsa(clic);
    EXPECT_EQ(corsa.guasti, std::vector<std::string>{}) << Nomi(clic);
    EXPECT_FALSE(corsa.svolta) << "not closed: " << Nomi(clic);
    if (clic.size() == lunghezza || testing::Test::HasFailure()) return 1;
    int provate = 1;
    for (const std::string& comando : corsa.possibili) {
        clic.push_back(comando);
        provate += Prova(clic, lunghezza);
        clic.pop_back();
    }
    return provate;
}

}  // namespace

TEST(CicliAnnidati, InEveryOrderOfSevenCommandsWhatIsShownRuns) {
    Sequenza clic;
    EXPECT_GT(Prova(clic, 7), 2000);
}

TEST(CicliAnnidati, LikewiseWhenAnAutomaticRunAndItsStopUnderTheMetronomeHaveGoneBefore) {
    Sequenza clic = {"mnuAutomatico", "Start", "cmdSSmetro", "Start"};
    EXPECT_GT(Prova(clic, 10), 500);
}

TEST(CicliAnnidati, LikewiseWhenTheMetronomeStartedAndStoppedInAnAutomaticRun) {
    Sequenza clic = {"mnuAutomatico", "Start", "cmdSSmetro", "cmdSSmetro"};
    EXPECT_GT(Prova(clic, 10), 500);
}

}  // namespace corvana::prova
