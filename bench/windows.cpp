// Every window of the program in turn, with the real outputs: from the menu entry to painted, the
// memory that the process takes meanwhile, what its threads do at rest.
// Usage: bench_windows FOLDER_OF_THE_PROGRAM [SECONDS_AT_REST]
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <array>
#include <cstdio>

#include "bench/figures.h"
#include "bench/painted.h"
#include "bench/process_figures.h"
#include "desktop/application.h"
#include "desktop/desktop.h"
#include "desktop/machine.h"

namespace {

using namespace corvana;

constexpr int volte = 11;

struct Voce {
    const char* menu;      ///< the entry that opens it
    const char* finestra;  ///< the form
};

constexpr std::array voci = {
    Voce{"Intonazione", "frmInto"},     Voce{"mnuPromemoria", "frmOptions"},
    Voce{"mnuComposer", "frmComposer"}, Voce{"mnuSs", "frmStrum"},
    Voce{"mnuMidiTest", "frmMidiTest"}, Voce{"mnuVersione", "frmAbout"},
};

class Giro {
public:
    Giro(Scrivania& scrivania, int riposo) : scrivania_(scrivania), riposo_(riposo) {}

    void Misura() {
        Aspetta([&] { return Davanti("CorvanaMainF"); });
        constexpr int segnale = 5;  // the opening signal and the synthesiser's start
        Passa(segnale);
        std::printf("%-52s %.1f MiB\n", "memory (PSS), main window", misura::LeggiPss());
        for (const Voce& voce : voci)
            if (QAction* menu = Entrata(voce)) Misura(voce, *menu);
        std::printf("%-52s %.1f MiB\n", "memory (PSS), each window opened", misura::LeggiPss());
        Chiudi();
    }

private:
    QMainWindow& Finestra() { return scrivania_.Davanti()->Finestra(); }
    bool Davanti(const char* forma) {
        return scrivania_.Davanti() && Finestra().objectName() == QLatin1String(forma) &&
               Finestra().isActiveWindow();
    }
    QAction* Entrata(const Voce& voce) {
        auto* menu = Finestra().findChild<QAction*>(QLatin1String(voce.menu));
        return menu && menu->isEnabled() ? menu : nullptr;
    }

    void Misura(const Voce& voce, QAction& menu) {
        std::vector<double> tempi;
        for (int i = 0; i < volte; ++i) {
            if (i > 0) Chiudi();
            tempi.push_back(Apri(voce, menu));
        }
        const std::string nome = voce.finestra;
        misura::Stampa("menu entry to painted, " + nome, tempi, "ms");
        std::printf("%-52s %.1f MiB\n", ("memory (PSS), " + nome + " open").c_str(),
                    misura::LeggiPss());
        if (riposo_ > 0) Riposa();
        Chiudi();
    }
    double Apri(const Voce& voce, QAction& menu) {
        const double tempo = pitture_.CronometraTutte([&] { menu.trigger(); },
                                                      [&](const QWidget& dipinto) {
                                                          return dipinto.window()->objectName() ==
                                                                 QLatin1String(voce.finestra);
                                                      });
        Aspetta([&] { return Davanti(voce.finestra); });
        return tempo;
    }
    void Chiudi() {
        QMainWindow& finestra = Finestra();
        const QString nome = finestra.objectName();
        finestra.close();
        if (nome != QLatin1String("CorvanaMainF")) Aspetta([&] { return Davanti("CorvanaMainF"); });
    }
    /// The stream goes to rest after half a minute of silence.
    void Riposa() {
        constexpr int silenzio = 35;
        Passa(silenzio);
        const auto prima = misura::LeggiFili();
        Passa(riposo_);
        misura::StampaRiposo(prima, riposo_);
    }
    static void Aspetta(const std::function<bool()>& condizione) {
        while (!condizione())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    static void Passa(int secondi) {
        bool passato = false;
        QTimer::singleShot(secondi * 1000, [&] { passato = true; });
        Aspetta([&] { return passato; });
    }

    Scrivania& scrivania_;
    int riposo_;
    misura::Pitture pitture_;
};

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const QStringList argomenti = QApplication::arguments();
    const Macchina macchina = QuestaMacchina(applicazione, argomenti.value(1).toStdString());
    Giro giro(applicazione.LaScrivania(), argomenti.value(2).toInt());
    QTimer::singleShot(0, [&] { giro.Misura(); });
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
