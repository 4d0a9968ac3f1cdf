#include "tests/hearing/classroom.h"

#include "tests/outputs/hearing.h"

namespace corvana::prova {

namespace {

std::string NienteDaDire() {
    return {};
}

bool InVista(const Controllo* controllo) {
    for (; controllo; controllo = controllo->Padre())
        if (!controllo->Visible()) return false;
    return true;
}

}  // namespace

Aula::Aula(PaginaInto pagina, int estratti)
    : finestra_({globali_, pompa_, finestre_, riquadri_, suono_, impostazioni_, file_, casuale_},
                {NienteDaDire, NienteDaDire, NienteDaDire, {}}) {
    for (int i = 0; i < estratti; ++i)
        casuale_.Estrai();
    globali_.PercorsoLingua = CORVANA_LINGUA;
    globali_.PaginaInto.at(static_cast<std::size_t>(pagina)) = true;
    impostazioni_.Prepara();
    suono_.ApriMidi(dispositivoPredefinito);
}

void Aula::Manda(double t, Evento evento, const std::string& controllo) {
    Quando(t, [this, evento, controllo]() mutable {
        const Controllo* c = finestra_.Trova(controllo.empty() ? finestra_.Name : controllo);
        if (!c) throw std::logic_error("no control " + controllo);
        evento.finestra = finestra_.Identita();
        evento.controllo = c->Numero();
        coda_.Aggiungi(evento);
    });
}

void Aula::Fa(double t, const Mossa& mossa) {
    Evento evento;
    evento.fatto = mossa.fatto;
    evento.valore = mossa.valore;
    Manda(t, evento, mossa.controllo);
}

void Aula::Tasto(double t, Fatto fatto, int codice) {
    Evento evento;
    evento.fatto = fatto;
    evento.codice = codice;
    Manda(t, evento, {});
}

void Aula::Vivi(double fine) {
    Quando(fine, [] { throw FineCopione{}; });
    try {
        finestre_.FinoAllUltima([&] {
            finestre_.Mostra(principale_);
            finestre_.MostraModale(finestra_);
        });
    } catch (const FineCopione&) {}
}

std::vector<float> Aula::Senti() {
    const double nuovi = orologio_.Adesso() - sentiti_;
    sentiti_ = orologio_.Adesso();
    return Mono(resa_.Rendi(nuovi));
}

std::string Aula::Legge(const std::string& controllo) const {
    const Controllo* c = finestra_.Trova(controllo);
    if (!InVista(c)) return {};
    return dynamic_cast<const ConCaption&>(*c).Caption();
}

}  // namespace corvana::prova
