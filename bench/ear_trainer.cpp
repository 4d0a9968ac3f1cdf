// The ear trainer in the running program: from the click on the right key to the next question's
// message, from a key of the computer's piano to the lit key on the screen.
#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <atomic>

#include "bench/figures.h"
#include "bench/painted.h"
#include "bench/timed_output.h"
#include "tests/desktop/program_stage.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

constexpr int prove = 500;

/// What the logic's thread tells of the last question.
struct Domanda {
    std::atomic<double> istante{0};
    std::atomic<int> nota{0};  ///< MIDI number
    std::atomic<int> quante{0};

    void Prendi(int suonata, double quando) {
        nota = suonata;
        istante = quando;
        ++quante;
    }
};

class Allievo {
public:
    Allievo(Scrivania& scrivania, Domanda& domanda) : scrivania_(scrivania), domanda_(domanda) {}

    void Esercita() {
        AspettaFinestra(scrivania_, QStringLiteral("CorvanaMainF"));
        // The opening signal is over.
        Aspetta([this] { return Trova(scrivania_, QStringLiteral("Start")).isEnabled(); });
        TrovaVoce(scrivania_, QStringLiteral("Intonazione")).trigger();
        AspettaFinestra(scrivania_, QStringLiteral("frmInto"));
        Aspetta([this] { return Trova(scrivania_, QStringLiteral("IntoStart")).isVisible(); });
        AccendiTasti();
        Rispondi();
        Clicca(scrivania_, QStringLiteral("IntoStart"));
        Aspetta([this] { return StatoDi(scrivania_, "IntoStart").Caption == "Start"; });
        scrivania_.Davanti()->Finestra().close();
        AspettaFinestra(scrivania_, QStringLiteral("CorvanaMainF")).Finestra().close();
    }

private:
    /// Without the reference, which would sound first.
    void Rispondi() {
        Clicca(scrivania_, QStringLiteral("lblMod"));
        Clicca(scrivania_, QStringLiteral("IntoStart"));
        Aspetta([this] { return domanda_.quante > 0; });
        std::vector<double> ritardi;
        while (ritardi.size() < prove) {
            const int domande = domanda_.quante;
            const Cosa tasto = Trova(scrivania_, QStringLiteral("lb%1").arg(domanda_.nota - 36));
            const double cliccata = orologio_.Adesso();
            Clicca(tasto, tasto.rect().center());
            Aspetta([&] { return domanda_.quante > domande; });
            ritardi.push_back((domanda_.istante - cliccata) * 1e3);
        }
        misura::Stampa("click on the right key to the next question", ritardi, "ms");
    }

    void AccendiTasti() {
        std::vector<double> accensioni;
        while (accensioni.size() < prove) {
            accensioni.push_back(pitture_.Cronometra([this] { Premi(scrivania_, Qt::Key_Z); },
                                                     [this](const QWidget&) { return Acceso(); }));
            Lascia(scrivania_, Qt::Key_Z);
            Aspetta([this] { return !Acceso(); });
        }
        misura::Stampa("key of the computer's piano to lit key painted", accensioni, "ms",
                       {0.99, 20});
    }
    bool Acceso() { return StatoDi(scrivania_, QStringLiteral("lb12")).BackStyle == fondoOpaco; }

    Scrivania& scrivania_;
    Domanda& domanda_;
    misura::Pitture pitture_;
    OrologioReale orologio_;
};

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const QTemporaryDir stato;
    Domanda domanda;
    Macchina macchina = MacchinaMuta(QStringLiteral(CORVANA_DATA), stato);
    macchina.uscite = [&](const auto&) {
        return std::make_unique<misura::UscitaCronometrata>(
            [&](int nota, double istante) { domanda.Prendi(nota, istante); });
    };
    Allievo allievo(applicazione.LaScrivania(), domanda);
    QTimer::singleShot(0, [&] { allievo.Esercita(); });
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
