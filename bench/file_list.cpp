// The list of melodies in the running program: a folder of ten thousand, from the click that enters
// it to painted, and from a turn of the wheel or a pull at its bar to painted; from a double click
// on a melody to its first note. The same folder's rows without a window.
#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include "bench/figures.h"
#include "bench/listener.h"
#include "bench/long_voices.h"
#include "bench/painted.h"
#include "bench/stopwatch.h"
#include "composer/folder_steps.h"
#include "core/real_files.h"
#include "core/settings.h"
#include "melody/mel_writer.h"
#include "realtime/punctuality.h"
#include "tests/desktop/program_stage.h"
#include "tests/support/scripted_boxes.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

constexpr int melodie = 10'000;
constexpr int prove = 21;
constexpr int scorrimenti = 200;
constexpr double quadro = 1000.0 / 60;  ///< milliseconds for which a screen shows one picture
constexpr long note = 1000;             ///< of each of the melody's four voices

/// A folder that holds a melody and a folder of ten thousand, which the settings name as the last.
class Disco {
public:
    explicit Disco(const Macchina& macchina) {
        RiquadriDaCopione riquadri;
        Impostazioni impostazioni(file_, riquadri, macchina.percorsoImpostazioni);
        impostazioni.Prepara();
        impostazioni.ScriviValore("LastDir", Di(""));
        file_.CreaCartella(Di("many"));
        // One of them is as good as any: they are only listed.
        for (int i = 0; i < melodie; ++i)
            QFile(InQt(Di("many/A melody of many " + std::to_string(i * 7919 % melodie) + ".mel")))
                .open(QIODevice::WriteOnly);
        Melodia melodia;
        misura::Riempi(melodia, note, misura::stileMisto, 0);
        file_.ScriviAtomico(Di("tune.mel"), ScriviMel({melodia.voci, 120, {}, {}}));
    }
    std::string Di(const std::string& nome) const {
        return cartella_.filePath(QString::fromStdString(nome)).toStdString();
    }
    void ElencaSenzaFinestra() {
        std::vector<double> tempi;
        for (int i = 0; i < prove; ++i) {
            const misura::Cronometro cronometro;
            RigheCartella(Di("many/"), file_.Elenca(Di("many/")));
            tempi.push_back(cronometro.Millisecondi());
        }
        misura::Stampa("  its rows alone, without a window", tempi, "ms");
    }

private:
    QTemporaryDir cartella_;
    FileReali file_;
};

class Sfogliatore {
public:
    Sfogliatore(Scrivania& scrivania, misura::Ascolto& ascolto, Disco& disco)
        : scrivania_(scrivania), ascolto_(ascolto), disco_(disco) {}

    void Sfoglia() {
        AspettaFinestra(scrivania_, QStringLiteral("CorvanaMainF"));
        Aspetta([this] { return Trova(scrivania_, QStringLiteral("Start")).isEnabled(); });
        TrovaVoce(scrivania_, QStringLiteral("mnuComposer")).trigger();
        AspettaFinestra(scrivania_, QStringLiteral("frmComposer"));
        TrovaVoce(scrivania_, QStringLiteral("mnuApri")).trigger();
        Aspetta([this] { return Elenco().count() == 3; });
        EntraFraMolte();
        ScorriMolte();
        disco_.ElencaSenzaFinestra();
        Suona();
        scrivania_.Davanti()->Finestra().close();
        AspettaFinestra(scrivania_, QStringLiteral("CorvanaMainF")).Finestra().close();
    }

private:
    void EntraFraMolte() {
        std::vector<double> tempi;
        while (tempi.size() < prove) {
            tempi.push_back(Entra());
            Esci();
        }
        misura::Stampa("a folder of 10,000 melodies listed and painted", tempi, "ms", {1, 100});
    }
    double Entra() {
        Clicca(*Elenco().viewport(), PostoDi(1));
        return Dipinto([this] { Clicca(scrivania_, QStringLiteral("cmdEseguiFile")); },
                       [this] { return Elenco().count() == melodie + 1; });
    }
    void Esci() {
        Elenco().scrollToTop();
        Clicca(*Elenco().viewport(), PostoDi(0));
        Clicca(scrivania_, QStringLiteral("cmdEseguiFile"));
        Aspetta([this] { return Elenco().count() == 3; });
    }
    void ScorriMolte() {
        Entra();
        QScrollBar& barra = *Elenco().verticalScrollBar();
        std::vector<double> giri;
        std::vector<double> tirate;
        for (int i = 1; i <= scorrimenti; ++i)
            giri.push_back(Scorri(barra, [this] { GiraRotella(); }));
        for (int i = scorrimenti; i-- > 0;)
            tirate.push_back(
                Scorri(barra, [&] { barra.setSliderPosition(barra.maximum() * i / scorrimenti); }));
        misura::Stampa("a turn of the wheel among 10,000, painted", giri, "ms", {0.99, quadro});
        misura::Stampa("a pull at their bar, painted", tirate, "ms", {0.99, quadro});
        Esci();
    }
    double Scorri(const QScrollBar& barra, const std::function<void()>& come) {
        return Dipinto(come, [&barra, prima = barra.value()] { return barra.value() != prima; });
    }
    /// Milliseconds until the list has been painted so.
    double Dipinto(const std::function<void()>& comincia, const std::function<bool()>& cosi) {
        return pitture_.Cronometra(comincia, [this, &cosi](const QWidget& dipinto) {
            return &dipinto == Elenco().viewport() && cosi();
        });
    }
    void GiraRotella() {
        constexpr int scatto = -120;  // downwards
        QWidget& vista = *Elenco().viewport();
        const QPoint dove = vista.rect().center();
        QWheelEvent giro(dove, vista.mapToGlobal(dove), {}, {0, scatto}, {}, {}, Qt::NoScrollPhase,
                         false);
        QApplication::sendEvent(&vista, &giro);
    }
    void Suona() {
        std::vector<double> tempi;
        while (tempi.size() < prove) {
            ascolto_.Accesa() = 0;
            QWidget& vista = *Elenco().viewport();
            const QPoint dove = vista.mapTo(vista.window(), PostoDi(2));
            const double inizio = orologio_.Adesso();
            QTest::mouseDClick(vista.window()->windowHandle(), Qt::LeftButton, {}, dove);
            Aspetta([this] { return ascolto_.Accesa() > 0; });
            tempi.push_back((ascolto_.Accesa() - inizio) * 1e3);
            Clicca(scrivania_, QStringLiteral("cmdPlay"));
            Aspetta([this] {
                return StatoDi(scrivania_, QStringLiteral("cmdPlay")).Caption == "Play";
            });
        }
        misura::Stampa("double click on 4 x 1,000 notes to the first note", tempi, "ms", {1, 100});
    }
    QListWidget& Elenco() { return Trova(scrivania_, QStringLiteral("List1")).Come<QListWidget>(); }
    QPoint PostoDi(int riga) { return Elenco().visualItemRect(Elenco().item(riga)).center(); }

    Scrivania& scrivania_;
    misura::Ascolto& ascolto_;
    Disco& disco_;
    misura::Pitture pitture_;
    OrologioReale orologio_;
};

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const QTemporaryDir stato;
    misura::Ascolto ascolto;
    Macchina macchina = MacchinaMuta(QStringLiteral(CORVANA_DATA), stato);
    macchina.puntuale = PreferisciPuntualita;
    macchina.uscite = [&](const auto& istante) { return misura::Spiata(istante, ascolto); };
    Disco disco(macchina);
    Sfogliatore sfogliatore(applicazione.LaScrivania(), ascolto, disco);
    QTimer::singleShot(0, [&] { sfogliatore.Sfoglia(); });
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
