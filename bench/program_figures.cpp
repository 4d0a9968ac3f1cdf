// The program as a whole, from outside: start to painted window beside an empty window of the
// toolkit, memory, processor use at rest.
// Usage: bench_program PROGRAM EMPTY_WINDOW, on an X screen on which nothing else shows.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <fstream>

#include "bench/figures.h"
#include "bench/process_figures.h"

namespace {

using namespace corvana;

constexpr int avvii = 21;

/// A window stands on the black screen and its face is painted, which comes in one piece: a strip
/// across it shows that. A picture of the whole screen would take longer than what is measured.
bool Dipinta() {
    constexpr int x = 400, largo = 4;
    QScreen& schermo = *QGuiApplication::primaryScreen();
    const QImage striscia =
        schermo.grabWindow(0, x, 0, largo, schermo.geometry().height()).toImage();
    int chiari = 0;
    for (int y = 0; y < striscia.height(); ++y)
        if (qGray(striscia.pixel(largo / 2, y)) > 40) ++chiari;
    return chiari > 300;
}

class Programma {
public:
    explicit Programma(const QString& percorso) {
        tempo_.start();
        processo_.setProcessChannelMode(QProcess::ForwardedChannels);
        processo_.start(percorso);
    }
    /// Milliseconds until the window is painted.
    double AspettaFinestra() {
        while (!Dipinta())
            QThread::usleep(300);
        return static_cast<double>(tempo_.nsecsElapsed()) / 1e6;
    }
    void Ferma() {
        processo_.terminate();
        processo_.waitForFinished(5000);
        // The servers have their work with it for a moment more.
        QThread::msleep(150);
    }
    std::string Cartella() const { return "/proc/" + std::to_string(processo_.processId()); }

private:
    QElapsedTimer tempo_;
    QProcess processo_;
};

/// Milliseconds of processor that the thread of the windows has used.
double LavoroFinestre(const std::string& cartella) {
    double nanosecondi = 0;
    std::ifstream(cartella + "/schedstat") >> nanosecondi;
    return nanosecondi / 1e6;
}

struct Avvii {
    std::vector<double> tempi;
    std::vector<double> lavori;

    void Aggiungi(const QString& percorso) {
        Programma programma(percorso);
        tempi.push_back(programma.AspettaFinestra());
        lavori.push_back(LavoroFinestre(programma.Cartella()));
        programma.Ferma();
    }
    void Stampa(const std::string& cosa) const {
        misura::Stampa("start to painted, " + cosa, tempi, "ms");
        misura::Stampa("  processor of its window thread until then", lavori, "ms");
    }
};

double Mediana(std::vector<double> valori) {
    std::sort(valori.begin(), valori.end());
    return misura::Quantile(valori, 0.5);
}

/// By turns, so that both meet the same machine.
void MisuraAvvii(const QString& percorso, const QString& vuota) {
    Avvii programma, finestra;
    for (int i = 0; i < avvii; ++i) {
        programma.Aggiungi(percorso);
        finestra.Aggiungi(vuota);
    }
    programma.Stampa("the program");
    finestra.Stampa("an empty window");
    std::printf("%-52s %.2f times\n", "  processor of its window thread beside the empty window's",
                Mediana(programma.lavori) / Mediana(finestra.lavori));
    misura::StampaMeta("start to painted, beside an empty window of the toolkit",
                       Mediana(programma.tempi) / Mediana(finestra.tempi), 1.25, "times");
}

void MisuraRiposo(Programma& programma) {
    constexpr int secondi = 10;
    const auto prima = misura::LeggiFili(programma.Cartella());
    QThread::sleep(secondi);
    misura::StampaRiposo("the program", prima, secondi, programma.Cartella());
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication applicazione(argc, argv);
    const QString percorso = applicazione.arguments().value(1);
    MisuraAvvii(percorso, applicazione.arguments().value(2));
    Programma programma(percorso);
    programma.AspettaFinestra();
    QThread::sleep(5);
    misura::StampaMemoria("synthesiser ready", misura::LeggiMemoria(programma.Cartella()));
    // The stream goes to rest after half a minute of silence.
    QThread::sleep(35);
    MisuraRiposo(programma);
    programma.Ferma();
}
