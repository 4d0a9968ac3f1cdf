#include "desktop/desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QWindow>
#include <algorithm>
#include <cstdio>

#include "desktop/box.h"

namespace corvana {

namespace {

int Esito(const std::exception_ptr& errore) {
    if (!errore) return 0;
    try {
        std::rethrow_exception(errore);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "corvana: %s\n", e.what());
    } catch (...) {
        std::fputs("corvana: unknown error\n", stderr);
    }
    return 1;
}

}  // namespace

Scrivania::Scrivania() : notifica_(cassetta_.Presa(), QSocketNotifier::Read) {
    QObject::connect(&notifica_, &QSocketNotifier::activated, &notifica_, [this] { Ritira(); });
}

Scrivania::~Scrivania() {
    Termina();
}

void Scrivania::Avvia(std::function<void()> logica) {
    logica_ = std::thread([this, logica = std::move(logica)] {
        try {
            logica();
        } catch (...) {
            errore_ = std::current_exception();
        }
        fineLogica_.set_value();
        cassetta_.Metti(FineLogica{});
    });
}

int Scrivania::OspitaLogica(std::function<void()> logica) {
    Avvia(std::move(logica));
    Attendi();
    finestre_.clear();
    return Esito(errore_);
}

void Scrivania::Attendi() {
    // Anybody may end Qt's loop; the logic alone decides when the program ends.
    while (!finita_)
        QApplication::exec();
    logica_.join();
}

void Scrivania::Termina() {
    if (!logica_.joinable()) return;
    ChiediFine();
    QEventLoop giro;
    while (!finita_)
        giro.processEvents(QEventLoop::WaitForMoreEvents);
    logica_.join();
}

void Scrivania::ChiediFine() {
    dipinta_.Rinuncia();
    coda_.ChiediFine();
    specchio_.Rilascia();
    if (riquadro_) riquadro_->reject();
}

bool Scrivania::TerminaAlBuio(std::chrono::milliseconds pazienza) {
    dipinta_.Rinuncia();
    coda_.ChiediFine();
    specchio_.Rilascia();
    const auto fine = fineLogica_.get_future();
    const bool finita = fine.wait_for(pazienza) == std::future_status::ready;
    if (!finita && !coda_.FineVista()) return false;
    fine.wait();
    return true;
}

VistaFinestra* Scrivania::Davanti() {
    return finestre_.empty() ? nullptr : finestre_.back().get();
}

VistaFinestra* Scrivania::Cerca(std::uint32_t identita) {
    for (const auto& finestra : finestre_)
        if (finestra->Identita() == identita) return finestra.get();
    return nullptr;
}

void Scrivania::Ritira() {
    for (Comando& comando : cassetta_.Prendi())
        Smista(comando);
}

void Scrivania::Smista(Comando& comando) {
    std::visit([this](const auto& scelto) { Fai(scelto); }, comando);
}

void Scrivania::Fai(const MostraFinestra& comando) {
    finestre_.push_back(std::make_unique<VistaFinestra>(comando, coda_, tastiera_, Davanti()));
    dipinta_.Segui(*Davanti()->Finestra().windowHandle());
}

void Scrivania::Fai(const CambiaProprieta& comando) {
    if (VistaFinestra* finestra = Cerca(comando.finestra))
        finestra->Cambia(comando.controllo, comando.nome, comando.valore);
}

void Scrivania::Fai(const DaiFuoco& comando) {
    if (VistaFinestra* finestra = Cerca(comando.finestra)) finestra->DaiFuoco(comando.controllo);
}

void Scrivania::Fai(const ChiudiFinestra& comando) {
    std::erase_if(finestre_, [&](const auto& f) { return f->Identita() == comando.finestra; });
    if (VistaFinestra* davanti = Davanti()) davanti->Finestra().activateWindow();
}

void Scrivania::Fai(const TrascinaFinestra& comando) {
    if (VistaFinestra* finestra = Cerca(comando.finestra))
        finestra->Finestra().windowHandle()->startSystemMove();
}

void Scrivania::Fai(const ApriMenu& comando) {
    if (VistaFinestra* finestra = Cerca(comando.finestra)) finestra->ApriMenu(comando.controllo);
}

void Scrivania::Fai(const MostraAiuto& comando) {
    if (!aiuto_)
        aiuto_ = std::make_unique<FinestraAiuto>(parole_, [this] {
            if (VistaFinestra* davanti = Davanti()) davanti->Finestra().activateWindow();
        });
    VistaFinestra* davanti = Davanti();
    aiuto_->Mostra(InQt(comando.file), comando.contesto, davanti ? &davanti->Finestra() : nullptr);
}

void Scrivania::Fai(const CambiaLingua& comando) {
    parole_ = comando.parole;
    if (aiuto_) aiuto_->CambiaVolume(InQt(comando.aiuto));
}

void Scrivania::Fai(const ApriRiquadro& comando) {
    if (coda_.FineChiesta()) return;
    dipinta_.Avvenuta();
    QWidget* sopra = finestre_.empty() ? nullptr : &finestre_.back()->Finestra();
    riquadro_ =
        MostraRiquadro(comando, parole_, sopra, [this, numero = comando.numero](Risposta risposta) {
            specchio_.Rispondi(numero, std::move(risposta));
        });
}

void Scrivania::Fai(const FineLogica&) {
    finita_ = true;
    aiuto_.reset();
    QApplication::exit();
}

}  // namespace corvana
