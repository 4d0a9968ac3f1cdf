#include "melody/step_mode.h"

#include <limits>

#include "forms/fault.h"
#include "melody/edits.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

using Limiti16 = std::numeric_limits<std::int16_t>;

std::int16_t Piu(std::int16_t indice, int passo) {
    const int nuovo = indice + passo;
    if (nuovo < Limiti16::min() || nuovo > Limiti16::max())
        throw Guasto(guastoTraboccamento, "Overflow");
    return static_cast<std::int16_t>(nuovo);
}

/// The texts of a voice on their way to a new note `i`.
struct Riscrittura {
    long i;
    EsitoModifica esito;
    std::string note, durate, attributi;

    void Scrivi(std::string& testo, const std::string& token) {
        testo = SostituisciToken(testo, i, token);
        esito.cambiato = true;
    }
    void Nota(std::int16_t nota) {
        Scrivi(note, std::to_string(nota));
        esito.mostrata = nota;
    }
    void Pausa() {
        Scrivi(note, tokenPausa);
        esito.mostrata = 0;
    }
    void Durata(const NotaVoluta& voluta) {
        esito.terzinaUsata = voluta.terzina;
        const double valore = voluta.terzina ? voluta.valore * 2 / 3 : voluta.valore;
        Scrivi(durate, TestoNumero(valore, voluta.separatore));
    }
    void Attributo(const NotaVoluta& voluta) {
        Scrivi(attributi, voluta.attributo);
        voluta.attributo == "p" ? Pausa() : Nota(voluta.nota);
    }
};

}  // namespace

TrattoPasso TrattoDaCaselle(std::string_view prima, std::string_view ultima) {
    const std::int16_t fine = IndiceNota(ultima);
    return {IndiceNota(prima), fine, fine};
}

std::int16_t PrimaDelTratto(const TrattoPasso& tratto) {
    return Piu(tratto.da, -1);
}

std::int16_t PassoAvanti(std::int16_t indice, const TrattoPasso& tratto) {
    return indice == tratto.a ? tratto.da : Piu(indice, 1);
}

std::int16_t PassoIndietro(std::int16_t indice, const TrattoPasso& tratto) {
    return indice <= tratto.da || indice < 0 ? tratto.fine : Piu(indice, -1);
}

std::string AvvisoPasso(std::int16_t indice, const TrattoPasso& tratto) {
    return "From= " + std::to_string(tratto.da) + "\r\nTo= " + std::to_string(tratto.a) +
           "\r\nIndiceNotaPP= " + std::to_string(indice) + "\r\nAbnormal condition !!!";
}

EsitoModifica ModificaNota(VoceMelodia& voce, long i, const NotaVoluta& voluta) {
    Riscrittura nuova{i, {}, voce.testoNote, voce.testoDurate, voce.testoAttributi};
    if (NumeroNota(Elemento(voce.noteVoce, i)) != voluta.nota) nuova.Nota(voluta.nota);
    if (NumeroReale(Elemento(voce.durateVoce, i)) != voluta.valore) nuova.Durata(voluta);
    if (Elemento(voce.attributiVoce, i) != voluta.attributo) nuova.Attributo(voluta);
    voce.testoNote = std::move(nuova.note);
    voce.testoDurate = std::move(nuova.durate);
    voce.testoAttributi = std::move(nuova.attributi);
    return nuova.esito;
}

DopoCancellata CancellataSotto(std::int16_t indice, std::int16_t primaNota) {
    DopoCancellata dopo{Piu(indice, -1), primaNota};
    if (dopo.indice < primaNota) {
        dopo.primaNota = dopo.indice;
        dopo.primaCambiata = true;
    }
    if (dopo.indice < 0) dopo = {0, 0, true, false};
    return dopo;
}

}  // namespace corvana
