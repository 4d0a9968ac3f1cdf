#include "desktop/application.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "desktop/desktop.h"
#include "desktop/look.h"
#include "desktop/signals.h"
#include "desktop/sudden_end.h"

namespace corvana {

namespace {

/// How long a logic that is told of the end may take to take note of it.
constexpr std::chrono::milliseconds pazienza(800);

/// Hears that the system wants the program to quit. Qt would first ask each window to close, and
/// take a refusal for an answer.
class Congedo final : public QObject {
public:
    explicit Congedo(std::function<void()> finisci) : finisci_(std::move(finisci)) {
        qApp->installEventFilter(this);
        connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { finisci_(); });
    }
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() != QEvent::Quit) return false;
        finisci_();
        return true;
    }

private:
    std::function<void()> finisci_;
};

}  // namespace

struct Applicazione::Interno {
    Interno(int& argc, char** argv)
        : qt(qApp ? nullptr : std::make_unique<QApplication>(argc, argv)) {
        if (!qt) return;
        caratteri.Aspetta();
        VestiProgramma(*qt);
        scrivania.Dipinta().PonPoi(PonIconaProgramma);
    }

    /// Tells the logic that the program ends, and gives it up when it doesn't listen.
    void Finisci();
    /// The same when there is no screen any more.
    [[noreturn]] void FinisciAlBuio();

    const CaratteriDelSistema caratteri;
    std::unique_ptr<QApplication> qt;
    Scrivania scrivania;
    QObject attesa;  ///< what still waits goes with it
};

void Applicazione::Interno::Finisci() {
    scrivania.ChiediFine();
    QTimer::singleShot(pazienza, &attesa, [this] {
        if (scrivania.Coda().FineVista() || scrivania.Finita()) return;
        std::fputs("corvana: the program was busy and was ended as it stood\n", stderr);
        std::_Exit(EXIT_FAILURE);
    });
}

void Applicazione::Interno::FinisciAlBuio() {
    std::_Exit(scrivania.TerminaAlBuio(pazienza) ? EXIT_SUCCESS : EXIT_FAILURE);
}

Applicazione::Applicazione(int& argc, char** argv)
    : interno_(std::make_unique<Interno>(argc, argv)) {}

Applicazione::~Applicazione() = default;

CodaEventi& Applicazione::Coda() {
    return interno_->scrivania.Coda();
}

Specchio& Applicazione::Schermo() {
    return interno_->scrivania.Schermo();
}

corvana::Riquadri& Applicazione::Riquadri() {
    return interno_->scrivania.Riquadri();
}

void Applicazione::AspettaDipinta(std::chrono::milliseconds pazienza) const {
    interno_->scrivania.Dipinta().Aspetta(pazienza);
}

Scrivania& Applicazione::LaScrivania() {
    return interno_->scrivania;
}

int Applicazione::OspitaLogica(std::function<void()> logica) {
    const Segnali segnali;
    QSocketNotifier campanello(segnali.Campanello().Presa(), QSocketNotifier::Read);
    QObject::connect(&campanello, &QSocketNotifier::activated, &campanello, [&] {
        segnali.Campanello().Svuota();
        interno_->Finisci();
    });
    const Congedo congedo([this] { interno_->Finisci(); });
    const FineImprovvisa fine([this] { interno_->FinisciAlBuio(); });
    return interno_->scrivania.OspitaLogica(std::move(logica));
}

}  // namespace corvana
