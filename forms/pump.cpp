#include "forms/pump.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace corvana {

namespace {
/// Seconds that the system may keep the logic waiting and that it then makes up. Whoever was
/// stopped for longer is stopped for good reason, and would make them up in a burst of notes.
constexpr double ritardoRecuperato = 0.25;
/// Seconds of computing after a wait that take no time.
constexpr double calcoloPerdonato = 0.002;
}  // namespace

double Pompa::Adesso() const {
    const double adesso = orologio_.Adesso();
    if (adesso - istante_ > ritardoRecuperato) return adesso;
    if (adesso - risveglio_ < calcoloPerdonato) return istante_;
    const double calcolo = orologio_.Calcolato() - calcolato_;
    return calcolo < calcoloPerdonato ? istante_ : istante_ + calcolo;
}

void Pompa::Riprendi(double istante) {
    risveglio_ = orologio_.Adesso();
    calcolato_ = orologio_.Calcolato();
    istante_ = risveglio_ - istante > ritardoRecuperato ? risveglio_ : istante;
}

double Pompa::Raggiunto(double fino) const {
    const bool interrotto = !coda_.Vuota() || coda_.FineChiesta();
    return interrotto ? std::min(fino, orologio_.Adesso()) : fino;
}

bool Pompa::InChiusura() {
    if (!coda_.FineChiesta()) return false;
    coda_.SegnaFineVista();
    // What puts things back while the stack unwinds may call anything: it must not throw again.
    if (congedo_ || std::uncaught_exceptions() > 0) return true;
    throw FineProgramma{};
}

void Pompa::Guarda() {
    if (!std::exchange(daGuardare_, false) || !sguardo_) return;
    sguardo_();
}

void Pompa::PompaEventi() {
    while (!InChiusura()) {
        const auto evento = coda_.Prendi();
        if (!evento) return;
        if (sveglia_) sveglia_();
        daGuardare_ = true;
        consegna_(*evento);
        // What it did behind its last wait hasn't been seen.
        daGuardare_ = true;
    }
}

void Pompa::AttendiEvento(double fino) {
    if (InChiusura()) return;
    Guarda();
    // Time never runs back, though the instant asked for may have passed.
    const double adesso = Adesso();
    orologio_.AspettaEvento(coda_, fino);
    Riprendi(std::max(adesso, Raggiunto(fino)));
    PompaEventi();
}

void Pompa::Attendi(double secondi) {
    if (!(secondi > 0) || InChiusura()) return;
    Guarda();
    const double fino = Adesso() + secondi;
    orologio_.AspettaFine(coda_, fino);
    Riprendi(coda_.FineChiesta() ? Raggiunto(fino) : fino);
    InChiusura();
}

void Pompa::Sleep(int ms) {
    Attendi((ms + granularitaSleep) / 1000.0);
}

}  // namespace corvana
