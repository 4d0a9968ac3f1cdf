// Every window of the program in turn, with the real outputs: from what opens it to painted, the
// memory that the process takes meanwhile, what its threads do at rest. The user's files and
// settings are private ones.
// Usage: bench_windows FOLDER_OF_THE_PROGRAM [SECONDS_AT_REST]
#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <array>

#include "bench/figures.h"
#include "bench/painted.h"
#include "bench/process_figures.h"
#include "desktop/application.h"
#include "desktop/machine.h"
#include "tests/desktop/screen.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

constexpr int volte = 11;
/// Seconds of silence after which the device is let go: the program's own half a minute would have
/// to pass for each window.
constexpr double quiete = 2;

struct Voce {
    const char* finestra;    ///< the form
    const char* menu = {};   ///< the entry that opens it
    const char* tasto = {};  ///< or the control that does
    double meta = {};        ///< milliseconds until it is painted; 0 where there is no goal
};

constexpr std::array voci = {
    Voce{"frmInto", "Intonazione", {}, 60},     Voce{"frmOptions", "mnuPromemoria"},
    Voce{"frmComposer", "mnuComposer", {}, 80}, Voce{"frmStrum", "mnuSs"},
    Voce{"frmMidiTest", "mnuMidiTest"},         Voce{"frmAbout", "mnuVersione"},
    Voce{"frmConfMetro", {}, "cmdSetup"},
};

class Giro {
public:
    Giro(Scrivania& scrivania, int riposo) : scrivania_(scrivania), riposo_(riposo) {}

    void Misura() {
        AspettaFinestra(scrivania_, "CorvanaMainF");
        constexpr int segnale = 5;  // the opening signal and the synthesiser's start
        Passa(segnale);
        const auto prima = misura::LeggiMemoria();
        misura::StampaMemoria("main window", prima);
        Riposa("main window");
        // The metronome's panel stays: its window is opened from there.
        TrovaVoce(scrivania_, "mnuMetro").trigger();
        for (const Voce& voce : voci)
            Misura(voce);
        MisuraAiuto();
        misura::StampaMeta("memory (PSS), each window opened once", massima_, 60, "MiB");
        misura::StampaMemoria("all closed again", misura::LeggiMemoria());
        Davanti().close();
    }

private:
    QWidget& Davanti() { return scrivania_.Davanti()->Finestra(); }

    void Misura(const Voce& voce) {
        std::vector<double> tempi;
        for (int i = 0; i < volte; ++i) {
            if (i > 0) Chiudi();
            tempi.push_back(Apri(voce));
        }
        const std::string titolo = std::string("opened to painted, ") + voce.finestra;
        if (voce.meta > 0)
            misura::Stampa(titolo, tempi, "ms", {1, voce.meta});
        else
            misura::Stampa(titolo, tempi, "ms");
        Aperta(voce.finestra);
        Chiudi();
    }
    double Apri(const Voce& voce) {
        const QString nome = voce.finestra;
        const double tempo = pitture_.CronometraTutte(
            [&] {
                if (voce.menu)
                    TrovaVoce(scrivania_, voce.menu).trigger();
                else
                    Clicca(scrivania_, voce.tasto);
            },
            [&](const QWidget& dipinto) { return dipinto.window()->objectName() == nome; });
        AspettaFinestra(scrivania_, nome);
        return tempo;
    }
    void Chiudi() {
        Davanti().close();
        AspettaFinestra(scrivania_, "CorvanaMainF");
    }
    /// The help is no form: it stands beside the window in front.
    void MisuraAiuto() {
        TrovaVoce(scrivania_, "mnuAiuto").trigger();
        Aspetta([&] { return scrivania_.Aiuto() && scrivania_.Aiuto()->isActiveWindow(); });
        Aperta("help");
        scrivania_.Aiuto()->close();
    }

    void Aperta(const std::string& nome) {
        const auto memoria = misura::LeggiMemoria();
        massima_ = std::max(massima_, memoria.pss);
        misura::StampaMemoria(nome + " open", memoria);
        Riposa(nome);
    }
    void Riposa(const std::string& nome) {
        if (riposo_ <= 0) return;
        Passa(static_cast<int>(quiete) + 3);
        const auto prima = misura::LeggiFili();
        Passa(riposo_);
        misura::StampaRiposo(nome, prima, riposo_);
    }
    static void Passa(int secondi) {
        bool passato = false;
        QTimer::singleShot(secondi * 1000, [&] { passato = true; });
        while (!passato)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    Scrivania& scrivania_;
    int riposo_;
    double massima_ = 0;
    misura::Pitture pitture_;
};

/// Nothing of the caller's is read or written, nor counted for its size.
void StaiInCasa(const QTemporaryDir& casa) {
    for (const char* dove : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
        qputenv(dove, casa.path().toUtf8());
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir casa;
    StaiInCasa(casa);
    Applicazione applicazione(argc, argv);
    const QStringList argomenti = QApplication::arguments();
    const Macchina macchina =
        QuestaMacchina(applicazione, argomenti.value(1).toStdString(), {.quiete = quiete});
    Giro giro(applicazione.LaScrivania(), argomenti.value(2).toInt());
    QTimer::singleShot(0, [&] { giro.Misura(); });
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
