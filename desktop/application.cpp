#include "desktop/application.h"

#include <QApplication>
#include <QSocketNotifier>

#include "desktop/desktop.h"
#include "desktop/look.h"
#include "desktop/signals.h"

namespace corvana {

struct Applicazione::Interno {
    Interno(int& argc, char** argv)
        : qt(qApp ? nullptr : std::make_unique<QApplication>(argc, argv)) {
        if (qt) VestiProgramma(*qt);
    }

    std::unique_ptr<QApplication> qt;
    Scrivania scrivania;
};

Applicazione::Applicazione(int& argc, char** argv)
    : interno_(std::make_unique<Interno>(argc, argv)) {}

Applicazione::~Applicazione() = default;

CodaEventi& Applicazione::Coda() {
    return interno_->scrivania.Coda();
}

Specchio& Applicazione::Schermo() {
    return interno_->scrivania.Schermo();
}

Dialoghi& Applicazione::Riquadri() {
    return interno_->scrivania.Riquadri();
}

Scrivania& Applicazione::LaScrivania() {
    return interno_->scrivania;
}

int Applicazione::Esegui(std::function<void()> logica) {
    const Segnali segnali;
    QSocketNotifier campanello(segnali.Campanello().Presa(), QSocketNotifier::Read);
    QObject::connect(&campanello, &QSocketNotifier::activated, &campanello, [&] {
        segnali.Campanello().Svuota();
        interno_->scrivania.ChiediUscita();
    });
    return interno_->scrivania.Esegui(std::move(logica));
}

}  // namespace corvana
