// The composer in the running program, with the machine's outputs: from a key of the computer's
// piano to its message, from an insertion to painted, and a play that lights its keys beside the
// same play without a window. Usage: bench_composer [SECONDS], the length of a play.
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include "bench/figures.h"
#include "bench/listener.h"
#include "bench/long_voices.h"
#include "bench/painted.h"
#include "bench/process_figures.h"
#include "composer/play_panel.h"
#include "core/real_files.h"
#include "core/settings.h"
#include "forms/real_clock.h"
#include "melody/mel_writer.h"
#include "tests/desktop/program_stage.h"
#include "tests/hearing/melody_stage.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

constexpr int proveTasto = 500;
constexpr int proveInserimento = 200;
constexpr std::array voci = {100L, 2000L};

/// A play as it is measured: its voices and its tempo.
struct Brano {
    const char* nome;
    const misura::StileVoce& stile;
    int tempo;
};

const std::array brani = {Brano{"mixed durations at 120", misura::stileMisto, 120},
                          Brano{"short durations at 250", misura::stileFitto, tempoMassimo}};

/// The melodies that are loaded, in a folder that the settings name as the last one used.
class Archivio {
public:
    explicit Archivio(const Macchina& macchina) {
        RiquadriDaCopione riquadri;
        Impostazioni impostazioni(file_, riquadri, macchina.percorsoImpostazioni);
        impostazioni.Prepara();
        impostazioni.ScriviValore("LastDir", cartella_.path().toStdString());
        for (const long note : voci) {
            misura::Riempi(melodia_.voci[soprano], note, misura::stileMisto, 0);
            Scrivi(std::to_string(note), tempoMassimo);
        }
        for (const Brano& brano : brani) {
            misura::Riempi(melodia_, noteDelBrano, brano.stile, 0);
            Scrivi(brano.nome, brano.tempo);
        }
    }

private:
    static constexpr long noteDelBrano = 10'000;  ///< longer than any play is measured

    void Scrivi(const std::string& nome, int tempo) {
        const QString percorso = cartella_.filePath(QString::fromStdString(nome + ".mel"));
        file_.ScriviAtomico(percorso.toStdString(), ScriviMel({melodia_.voci, tempo, {}, {}}));
    }

    QTemporaryDir cartella_;
    FileReali file_;
    Melodia melodia_;
};

class Compositore {
public:
    Compositore(Scrivania& scrivania, misura::Ascolto& ascolto, int secondi)
        : scrivania_(scrivania), ascolto_(ascolto), secondi_(secondi) {}

    void Componi() {
        AspettaFinestra(scrivania_, QStringLiteral("CorvanaMainF"));
        // The opening signal is over.
        Aspetta([this] { return Trova(scrivania_, QStringLiteral("Start")).isEnabled(); });
        TrovaVoce(scrivania_, QStringLiteral("mnuComposer")).trigger();
        AspettaFinestra(scrivania_, QStringLiteral("frmComposer"));
        PremiTasti();
        for (const long note : voci)
            Inserisci(note);
        for (const Brano& brano : brani)
            Suona(brano);
        scrivania_.Davanti()->Finestra().close();
        AspettaFinestra(scrivania_, QStringLiteral("CorvanaMainF")).Finestra().close();
    }

private:
    void PremiTasti() {
        constexpr std::chrono::milliseconds riposo{5};  // the logic sleeps again
        std::vector<double> ritardi;
        while (ritardi.size() < proveTasto) {
            ascolto_.Accesa() = 0;
            const double premuto = orologio_.Adesso();
            Premi(scrivania_, Qt::Key_Z);
            Aspetta([this] { return ascolto_.Accesa() > 0; });
            ritardi.push_back((ascolto_.Accesa() - premuto) * 1e3);
            Aspetta([this] { return Acceso(12); });
            Lascia(scrivania_, Qt::Key_Z);
            Aspetta([this] { return !Acceso(12); });
            Passa(riposo);
        }
        misura::Stampa("key of the computer's piano to its message", ritardi, "ms", {0.99, 0.3});
    }

    /// The number of notes is painted while the new one sounds, which isn't waited for. What was
    /// inserted is dropped again, so that the voice stays as long as it is.
    void Inserisci(long note) {
        Apri(QString::number(note));
        Ferma();
        Clicca(scrivania_, QStringLiteral("cmdSimbNote6"));
        Clicca(scrivania_, QStringLiteral("lb24"));
        std::vector<double> tempi;
        while (tempi.size() < proveInserimento) {
            Aspetta([&] { return Note() == note && !Acceso(24); });
            const QWidget& conto = Trova(scrivania_, QStringLiteral("lblNfine")).Suolo();
            tempi.push_back(pitture_.Cronometra(
                [this] { Clicca(scrivania_, QStringLiteral("cmdInsNota")); },
                [&](const QWidget& dipinto) { return &dipinto == &conto && Note() == note + 1; }));
            Clicca(scrivania_, QStringLiteral("cmdCanc"));
        }
        Aspetta([&] { return Note() == note; });
        misura::Stampa("insertion behind " + std::to_string(note) + " notes to its number painted",
                       tempi, "ms", {0.99, 20});
    }

    void Suona(const Brano& brano) {
        Apri(QString::fromLatin1(brano.nome));
        Passa(std::chrono::seconds(1));
        ascolto_.Ritardi();
        const double prima = SecondiGui();
        Passa(std::chrono::seconds(secondi_));
        const double quota = (SecondiGui() - prima) / secondi_ * 100;
        const std::string titolo = std::string("play, ") + brano.nome + ", in the window, ";
        misura::Stampa(titolo + "notes late", ascolto_.Ritardi(), "ms");
        misura::StampaMeta(titolo + "GUI thread", quota, 15, "%");
        Ferma();
    }

    /// A melody plays as soon as it has been loaded.
    void Apri(const QString& nome) {
        TrovaVoce(scrivania_, QStringLiteral("mnuApri")).trigger();
        Aspetta([&] { return Riga(nome); });
        auto& lista = Trova(scrivania_, QStringLiteral("List1")).Come<QListWidget>();
        Clicca(*lista.viewport(), lista.visualItemRect(Riga(nome)).center());
        Clicca(scrivania_, QStringLiteral("cmdEseguiFile"));
        Aspetta([this] { return InPlay(); });
        Clicca(scrivania_, QStringLiteral("cmdChiudi"));
    }
    QListWidgetItem* Riga(const QString& nome) {
        const Cosa lista = Trova(scrivania_, QStringLiteral("List1"));
        return lista.isVisible()
                   ? lista.Come<QListWidget>().findItems(nome, Qt::MatchExactly).value(0)
                   : nullptr;
    }
    void Ferma() {
        Clicca(scrivania_, QStringLiteral("cmdPlay"));
        Aspetta([this] { return !InPlay(); });
    }
    bool InPlay() { return StatoDi(scrivania_, QStringLiteral("cmdPlay")).Caption == "Stop"; }
    bool Acceso(int tasto) {
        return StatoDi(scrivania_, QStringLiteral("lb%1").arg(tasto)).BackStyle == fondoOpaco;
    }
    long Note() { return std::atol(StatoDi(scrivania_, QStringLiteral("lblNfine")).Text.c_str()); }
    /// What this thread has run so far: the process bears its number.
    static double SecondiGui() {
        return misura::LeggiFili().lower_bound(std::to_string(getpid()) + " ")->second.secondi;
    }
    static void Passa(std::chrono::milliseconds tempo) {
        bool passato = false;
        QTimer::singleShot(tempo, [&] { passato = true; });
        while (!passato)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    Scrivania& scrivania_;
    misura::Ascolto& ascolto_;
    int secondi_;
    misura::Pitture pitture_;
    OrologioReale orologio_;
};

void SuonaSenzaFinestra(const Brano& brano, int secondi) {
    misura::Ascolto ascolto;
    OrologioReale orologio;
    FileInMemoria file;
    PalcoMelodia palco(orologio, file,
                       [&](auto istante) { return misura::Spiata(istante, ascolto); });
    double quarti = 0;
    for (const std::string_view durata : brano.stile.durate)
        quarti += std::atof(std::string(durata).c_str());
    const double note =
        secondi * brano.tempo / 60.0 / quarti * static_cast<double>(brano.stile.durate.size());
    misura::Riempi(palco.melodia, static_cast<long>(note), brano.stile, 0);
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        palco.Aggiorna(voce);
    palco.finestra.play.Slider1.PonValore(brano.tempo);
    palco.finestra.play.cmdPlay_Click();
    misura::Stampa(std::string("play, ") + brano.nome + ", no window, notes late",
                   ascolto.Ritardi(), "ms");
}

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const int secondi = argc > 1 ? std::atoi(argv[1]) : 20;
    std::thread([&] {
        PreferisciPuntualita();
        for (const Brano& brano : brani)
            SuonaSenzaFinestra(brano, secondi);
    }).join();
    const QTemporaryDir stato;
    misura::Ascolto ascolto;
    Macchina macchina = MacchinaMuta(QStringLiteral(CORVANA_DATA), stato);
    macchina.puntuale = PreferisciPuntualita;
    macchina.uscite = [&](const auto& istante) { return misura::Spiata(istante, ascolto); };
    const Archivio archivio(macchina);
    Compositore compositore(applicazione.LaScrivania(), ascolto, secondi);
    QTimer::singleShot(0, [&] { compositore.Componi(); });
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
