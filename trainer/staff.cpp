// The staff, the names of its notes, and how a note is announced.
#include "core/notation.h"
#include "trainer/corvana_main.h"

namespace corvana {

namespace {

constexpr std::array<const char*, numeroRisposte> nomiLatini = {"DO",  "RE", "MI", "FA",
                                                                "SOL", "LA", "SI"};
constexpr std::array<const char*, numeroRisposte> nomiAnglo = {"C", "D", "E", "F", "G", "A", "B"};

void Mostra(CorvanaMainF& finestra, const Posizione& posizione, bool mostra) {
    Controllo* nota = finestra.Trova("n" + std::to_string(posizione.numero));
    nota->Visible = posizione.specie == Specie::maschera ? !mostra : mostra;
}

}  // namespace

void CorvanaMainF::Nascondinote() {
    for (const Posizione& posizione : Posizioni())
        Mostra(*this, posizione, false);
}

void CorvanaMainF::VisualizzaNota(std::uint8_t posizione) {
    if (const Posizione* trovata = CercaPosizione(posizione)) Mostra(*this, *trovata, true);
}

void CorvanaMainF::AnnunciaNota() {
    const std::int16_t valore = CercaPosizione(NotaCorrente)->valore;
    lblnn.Caption =
        NomeNota(static_cast<std::int16_t>(valore + scartoIndiceNota), a_.globali.NomiAnglo);
    if (SuonoNota)
        a_.suono.SuonaNota(valore);
    else
        SuonaOnda("rok.wav", sndSenzaPredefinito);
}

void CorvanaMainF::SuonaOnda(const char* nome, unsigned flags) {
    a_.suono.SuonaOnda(a_.globali.PercorsoNote + nome, flags);
}

void CorvanaMainF::lblMn_Click() {
    const bool mostra = lblMn.Caption() == "?";
    lblMn.Caption = mostra ? "" : "?";
    lblnn.Visible = mostra;
}

void CorvanaMainF::Nominote1_Click() {
    PonNomiRisposte(false);
}

void CorvanaMainF::Nominote2_Click() {
    PonNomiRisposte(true);
}

void CorvanaMainF::PonNomiRisposte(bool anglo) {
    a_.globali.NomiAnglo = anglo;
    Nominote1.Checked = !anglo;
    Nominote2.Checked = anglo;
    const auto& nomi = anglo ? nomiAnglo : nomiLatini;
    const auto bottoni = Risposte();
    for (std::size_t i = 0; i < bottoni.size(); ++i)
        bottoni.at(i)->Caption = nomi.at(i);
}

std::array<Bottone*, numeroRisposte> CorvanaMainF::Risposte() {
    return {&pdo, &pre, &pmi, &pfa, &psol, &pla, &psi};
}

void CorvanaMainF::Suono1_Click() {
    SuonoNota = false;
    Suono1.Checked = true;
}

void CorvanaMainF::Suono2_Click() {
    SuonoNota = true;
    Suono1.Checked = false;
}

}  // namespace corvana
