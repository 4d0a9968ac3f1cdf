#include "composer/range_panel.h"

#include "forms/fault.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr double attesaFreccia = 0.1;  // seconds; a step falls at every other one

/// The whole number that a box holds; none for any other text.
std::optional<std::int64_t> InteroDi(const std::string& testo) {
    try {
        return ArrotondaAlPari(NumeroReale(testo));
    } catch (const Guasto&) {
        return std::nullopt;
    }
}

}  // namespace

PannelloTratti::PannelloTratti(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                               PannelloVoci& voci, VicineTratti vicine)
    : a_(ambiente),
      finestra_(finestra),
      melodia_(stato.melodia),
      voci_(voci),
      vicine_(std::move(vicine)) {
    for (int i = 0; i < numeroFrecce; ++i) {
        Etichetta& freccia = lblid.emplace_back(finestra, "lblid" + std::to_string(i));
        freccia.MouseDown = [this, i](const Evento&) { lblid_MouseDown(i); };
        freccia.MouseUp = [this](const Evento&) { lblid_MouseUp(); };
        // The second press of two quick ones is a step and no hold: the keyboard double clicks too,
        // and no release follows. A label without a click it would double click at every press.
        freccia.DblClick = [this, i] { Passo(i); };
        freccia.Click = [] {};
    }
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        voci_.perVoce[voce].prima.LostFocus = [this, voce] { lblNini_Validate(voce); };
        voci_.perVoce[voce].ultima.LostFocus = [this, voce] { lblNfine_Validate(voce); };
    }
}

void PannelloTratti::lblid_MouseDown(int Index) {
    passoInCorso = true;
    try {
        TieniPremuta(Index);
    } catch (...) {
        passoInCorso = false;
        throw;
    }
}

void PannelloTratti::TieniPremuta(int Index) {
    const std::uint32_t questa = finestra_.Identita();
    bool dispari = false;
    for (bool mossa = false; passoInCorso || !mossa;) {
        a_.pompa.Attendi(attesaFreccia);
        a_.pompa.PompaEventi();
        if (finestra_.Identita() != questa) break;
        dispari = !dispari;
        if (dispari) continue;
        if (passoInCorso || !mossa) Passo(Index);
        mossa = true;
    }
    passoInCorso = false;
}

void PannelloTratti::lblid_MouseUp() {
    passoInCorso = false;
    vicine_.fuocoPlay();
}

void PannelloTratti::Passo(int Index) {
    const auto freccia = FrecciaDi(Index);
    if (!freccia || melodia_.voci[freccia->voce].Vuota()) return;
    const EstremiTratto tratto = Estremi(freccia->voce);
    if (!PuoMuovere(*freccia, tratto)) return;
    Sposta(*freccia, tratto);
    vicine_.scegliVoce(static_cast<int>(freccia->voce));
    if (freccia->ultima) voci_.MostraNoteVoce();
}

EstremiTratto PannelloTratti::Estremi(std::size_t voce) const {
    const VoceMelodia& v = melodia_.voci[voce];
    if (voce == soprano) return {v.primaNota + 1L, v.ultimaNota + 1L, v.numeroNote};
    return {NumeroLetto(voci_.perVoce[voce].prima.Text()),
            NumeroLetto(voci_.perVoce[voce].ultima.Text()), v.numeroNote};
}

void PannelloTratti::Sposta(const Freccia& freccia, const EstremiTratto& tratto) {
    VoceMelodia& v = melodia_.voci[freccia.voce];
    const long dopo = (freccia.ultima ? tratto.ultima : tratto.prima) + freccia.passo;
    const PannelloVoci::ControlliVoce& caselle = voci_.perVoce[freccia.voce];
    (freccia.ultima ? caselle.ultima : caselle.prima).Text = std::to_string(dopo);
    if (freccia.voce == soprano)
        (freccia.ultima ? v.ultimaNota : v.primaNota) = static_cast<std::int16_t>(dopo - 1);
}

void PannelloTratti::lblNini_Validate(std::size_t voce) {
    Convalida({voce, false});
}

void PannelloTratti::lblNfine_Validate(std::size_t voce) {
    if (Convalida({voce, true})) voci_.MostraNoteVoce();
}

/// False when there was no number to judge.
bool PannelloTratti::Convalida(const CasellaTratto& quale) {
    const VoceMelodia& v = melodia_.voci[quale.voce];
    const PannelloVoci::ControlliVoce& caselle = voci_.perVoce[quale.voce];
    Casella& casella = quale.ultima ? caselle.ultima : caselle.prima;
    // A play walks on the very fields that a box of a lower voice would set.
    if (casella.Locked()) return false;
    const auto numero = v.Vuota() ? std::nullopt : InteroDi(casella.Text());
    if (numero)
        Giudica(quale, *numero, casella);
    else
        casella.Text =
            v.Vuota() ? "" : std::to_string((quale.ultima ? v.ultimaNota : v.primaNota) + 1);
    return numero.has_value();
}

/// The number goes into the voice's range, or the box shows what the rule puts in its place.
void PannelloTratti::Giudica(const CasellaTratto& quale, std::int64_t numero, Casella& casella) {
    VoceMelodia& v = melodia_.voci[quale.voce];
    const PannelloVoci::ControlliVoce& caselle = voci_.perVoce[quale.voce];
    const Casella& altra = quale.ultima ? caselle.prima : caselle.ultima;
    const RegolaCasella regola =
        RegolaDi(quale, {v.primaNota + 1L, v.ultimaNota + 1L, v.numeroNote,
                         [&altra] { return long{NumeroNota(altra.Text())}; }});
    const bool accettato = regola.Accetta(numero);
    if (accettato)
        (quale.ultima ? v.ultimaNota : v.primaNota) = static_cast<std::int16_t>(numero - 1);
    casella.Text = std::to_string(accettato ? numero : regola.rifiutato);
    vicine_.scegliVoce(static_cast<int>(quale.voce));
}

}  // namespace corvana
