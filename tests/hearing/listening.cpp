#include "tests/hearing/listening.h"

#include "melody/tokens.h"

namespace corvana::prova {

namespace {

constexpr double pausaPrima = 3;

std::string Chiusi(const std::string& lettere) {
    std::string token;
    for (const char lettera : lettere)
        token.append(1, lettera).append(";");
    return token;
}

/// Ticks that a note sounds.
Tick Sonanti(Tick tick, std::string_view attributo) {
    if (attributo == "p") return 0;
    const Tick gate = attributo == "s" ? tick / 5 : attributo == "t" ? tick / 2 : tick;
    return gate - 1;
}

}  // namespace

Ascolto::Ascolto()
    : palco(orologio, file, [this](auto istante) {
          auto uscita = std::make_unique<ResaOffline>(std::move(istante));
          resa = uscita.get();
          return uscita;
      }) {}

void Ascolto::Voce(std::size_t voce, const std::string& note, const std::string& durate,
                   const std::string& attributi) {
    VoceMelodia& v = melodia.voci[voce];
    v.testoNote = note;
    v.testoDurate = durate;
    v.testoAttributi = Chiusi(attributi);
    palco.Aggiorna(voce);
}

bool Ascolto::Carica(const std::string& cartella, const std::string& nome) {
    if (!palco.Scegli(cartella, nome)) return false;
    orologio.Quando(orologio.Adesso(), [this] { palco.Premi(finestra.play.cmdPlay); });
    finestra.archivio.cmdEseguiFile_Click();
    return true;
}

void Ascolto::Strumento(std::int32_t programma) {
    for (const std::string_view voce : nomiVoci) {
        melodia.voceAttiva = voce;
        finestra.mix.SceltaStrum(programma);
    }
    melodia.voceAttiva = nomiVoci[soprano];
}

void Ascolto::Solo(std::size_t voce) {
    for (std::size_t altra = soprano + 1; altra < numeroVoci; ++altra)
        if (altra != voce) Voce(altra, "", "", "");
    if (voce == soprano) return;
    // A play needs a soprano: rests, then.
    const VoceMelodia& prima = melodia.voci[soprano];
    std::string pause;
    for (int i = 0; i < prima.numeroNote; ++i)
        pause += "00;";
    Voce(soprano, pause, std::string(prima.testoDurate), std::string(pause.size() / 3, 'p'));
}

void Ascolto::Suona() {
    palco.pompa.Attendi(pausaPrima);
    inizio_ = palco.pompa.Adesso();
    if (fermata_ > 0)
        orologio.Quando(inizio_ + fermata_, [this] { palco.Premi(finestra.play.cmdPlay); });
    fermata_ = 0;
    finestra.play.cmdPlay_Click();
    fine_ = palco.pompa.Adesso();
}

void Ascolto::FermaDopo(double secondi) {
    fermata_ = secondi;
}

std::vector<float> Ascolto::Senti(double secondi) {
    const double da = inizio_ - anticipo;
    resa->Rendi(da - resi_);
    resi_ = da + secondi;
    return Mono(resa->Rendi(secondi));
}

double Ascolto::Secondi(Tick tick) const {
    return static_cast<double>(tick * (MsPerTick(melodia.tempo) + granularitaSleep)) / 1000;
}

std::vector<NotaAttesa> Ascolto::Attese(std::size_t voce) const {
    const VoceMelodia& v = melodia.voci[voce];
    std::vector<NotaAttesa> attese;
    ContoTuplet conto;
    Tick passati = 0;
    for (long i = 0; i < v.numeroNote; ++i) {
        const Tick tick = TickToken(v.durateVoce, i, conto);
        const Tick sonanti = Sonanti(tick, Elemento(v.attributiVoce, i));
        if (sonanti > 0)
            attese.push_back({NumeroNota(Elemento(v.noteVoce, i)), Istante(passati),
                              Istante(passati + sonanti)});
        passati += tick;
    }
    return attese;
}

std::span<const float> Cuore(std::span<const float> suono, const NotaAttesa& nota) {
    constexpr double attacco = 0.03;
    constexpr double bastante = 0.1;
    const double fine = std::max(nota.fine, nota.inizio + bastante);
    const double inizio = std::max(nota.inizio + attacco, fine - bastante);
    return Parte(suono, inizio, fine - inizio);
}

}  // namespace corvana::prova
