// From a key event in the running window to the MIDI message of the next note, through both
// threads.
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <atomic>
#include <filesystem>

#include "bench/figures.h"
#include "bench/timed_output.h"
#include "desktop/application.h"
#include "desktop/logic.h"
#include "forms/real_clock.h"
#include "trainer/corvana_main.h"

namespace {

using namespace corvana;

constexpr int prove = 1000;

/// What the two threads tell each other.
struct Tavolo {
    std::atomic<double> suonata{0};  ///< instant of the last note on
    std::atomic<int> note{0};        ///< notes struck so far
    std::atomic<int> giusta{0};      ///< the right answer, 1 to 7
    CorvanaMainF* finestra = nullptr;

    void Prendi(double quando) {
        const auto& giuste = finestra->esercizio.RispostaGiusta;
        giusta =
            static_cast<int>(std::find(giuste.begin(), giuste.end(), true) - giuste.begin()) + 1;
        suonata = quando;
        ++note;
    }
};

/// The learner: at each turn answers the note that stands and notes how long the next one took.
class Allievo {
public:
    explicit Allievo(Tavolo& tavolo) : tavolo_(tavolo) {
        QObject::connect(&turno_, &QTimer::timeout, [this] { Turno(); });
        turno_.start(5);
    }

private:
    void Turno() {
        QWidget* finestra = QApplication::activeWindow();
        if (!finestra) return;
        if (tavolo_.note == attese_ && attese_ > 0)
            ritardi_.push_back((tavolo_.suonata - premuta_) * 1e3);
        if (ritardi_.size() == prove) return Finisci(*finestra);
        if (attese_ == 0) return Comincia(*finestra);
        if (tavolo_.note != attese_) return;
        ++attese_;
        Lascia(*finestra, tavolo_.giusta);
    }

    void Comincia(QWidget& finestra) {
        if (tavolo_.note == 0) {
            if (auto* avvio = finestra.findChild<QWidget*>("Start"); avvio && avvio->isEnabled())
                QMetaObject::invokeMethod(avvio, "click");
            return;
        }
        attese_ = tavolo_.note + 1;
        Lascia(finestra, tavolo_.giusta);
    }

    void Lascia(QWidget& finestra, int risposta) {
        constexpr std::array<int, 8> tasti = {0,         Qt::Key_D, Qt::Key_1, Qt::Key_F,
                                              Qt::Key_2, Qt::Key_G, Qt::Key_3, Qt::Key_H};
        const int tasto = tasti.at(static_cast<std::size_t>(risposta));
        const auto modo = risposta % 2 ? Qt::NoModifier : Qt::KeypadModifier;
        QKeyEvent premuto(QEvent::KeyPress, tasto, modo);
        QKeyEvent lasciato(QEvent::KeyRelease, tasto, modo);
        QApplication::sendEvent(finestra.windowHandle(), &premuto);
        premuta_ = orologio_.Adesso();
        QApplication::sendEvent(finestra.windowHandle(), &lasciato);
    }

    void Finisci(QWidget& finestra) {
        turno_.stop();
        misura::Stampa("key press to MIDI message, in the running window", ritardi_, "ms",
                       {0.99, 0.5});
        finestra.close();
    }

    Tavolo& tavolo_;
    QTimer turno_;
    OrologioReale orologio_;
    double premuta_ = 0;
    int attese_ = 0;
    std::vector<double> ritardi_;
};

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const auto cartella = std::filesystem::temp_directory_path() / "corvana-bench";
    std::filesystem::create_directories(cartella);
    Tavolo tavolo;
    Macchina macchina;
    macchina.cartellaProgramma = cartella.string();
    macchina.percorsoImpostazioni = (cartella / "settings").string();
    macchina.percorsoBlocco = (cartella / "lock").string();
    macchina.uscite = [&](const auto&) {
        return std::make_unique<misura::UscitaCronometrata>(
            [&](int, double istante) { tavolo.Prendi(istante); });
    };
    macchina.pronta = [&](CorvanaMainF& finestra) { tavolo.finestra = &finestra; };
    const Allievo allievo(tavolo);
    const int esito =
        applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
    std::filesystem::remove_all(cartella);
    return esito;
}
