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

}  // namespace

std::int16_t PassoAvanti(std::int16_t indice, const TrattoPasso& tratto) {
    return indice == tratto.a ? tratto.da : Piu(indice, 1);
}

std::int16_t PassoIndietro(std::int16_t indice, const TrattoPasso& tratto) {
    return indice <= tratto.da || indice < 0 ? tratto.fine : Piu(indice, -1);
}

EsitoModifica ModificaNota(VoceMelodia& voce, long i, const NotaVoluta& voluta) {
    EsitoModifica esito;
    std::string note = voce.testoNote;
    std::string durate = voce.testoDurate;
    std::string attributi = voce.testoAttributi;
    const auto scrivi = [&](std::string& testo, const std::string& token) {
        testo = SostituisciToken(testo, i, token);
        esito.cambiato = true;
    };
    const auto scriviNota = [&](std::int16_t nota, const std::string& token) {
        scrivi(note, token);
        esito.mostrata = nota;
    };
    if (NumeroNota(Elemento(voce.noteVoce, i)) != voluta.nota)
        scriviNota(voluta.nota, std::to_string(voluta.nota));
    if (NumeroReale(Elemento(voce.durateVoce, i)) != voluta.valore) {
        esito.terzinaUsata = voluta.terzina;
        const double valore = voluta.terzina ? voluta.valore * 2 / 3 : voluta.valore;
        scrivi(durate, TestoNumero(valore, voluta.separatore));
    }
    if (Elemento(voce.attributiVoce, i) != voluta.attributo) {
        scrivi(attributi, voluta.attributo);
        if (voluta.attributo == "p")
            scriviNota(0, tokenPausa);
        else
            scriviNota(voluta.nota, std::to_string(voluta.nota));
    }
    voce.testoNote = std::move(note);
    voce.testoDurate = std::move(durate);
    voce.testoAttributi = std::move(attributi);
    return esito;
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
