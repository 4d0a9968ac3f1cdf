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

constexpr int avvii = 11;

/// A window stands on the black screen and its face is painted.
bool Dipinta() {
    const QImage schermo = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    int chiari = 0;
    for (int y = 0; y < schermo.height(); y += 16)
        for (int x = 0; x < schermo.width(); x += 16)
            if (qGray(schermo.pixel(x, y)) > 40) ++chiari;
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
            QThread::msleep(1);
        return static_cast<double>(tempo_.nsecsElapsed()) / 1e6;
    }
    void Ferma() {
        processo_.terminate();
        processo_.waitForFinished(5000);
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
    std::printf("%-52s %.2f times, processor %.2f times\n", "the program beside the empty window",
                Mediana(programma.tempi) / Mediana(finestra.tempi),
                Mediana(programma.lavori) / Mediana(finestra.lavori));
    std::fflush(stdout);
}

void MisuraRiposo(Programma& programma) {
    constexpr int secondi = 10;
    const auto prima = misura::LeggiFili(programma.Cartella());
    QThread::sleep(secondi);
    misura::StampaRiposo(prima, secondi, programma.Cartella());
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication applicazione(argc, argv);
    const QString percorso = applicazione.arguments().value(1);
    MisuraAvvii(percorso, applicazione.arguments().value(2));
    Programma programma(percorso);
    programma.AspettaFinestra();
    QThread::sleep(5);
    std::printf("%-52s %.1f MiB\n", "memory (PSS), synthesiser ready",
                misura::LeggiPss(programma.Cartella()));
    // The stream goes to rest after half a minute of silence.
    QThread::sleep(35);
    MisuraRiposo(programma);
    programma.Ferma();
}
