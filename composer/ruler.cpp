#include "composer/ruler.h"

#include <array>

#include "core/notation.h"
#include "core/octaves.h"
#include "forms/keys.h"

namespace corvana {

namespace {

constexpr std::array righeBlu = {150, 330, 495, 660, 825, 1815, 2805, 2970};
constexpr std::array righeNere = {990, 1155, 1335, 1485, 1650, 1980, 2145, 2310, 2475, 2640};
constexpr Colore coloreRigaBlu = Rgb(0, 0, 255), coloreRigaNera = Rgb(0, 0, 0);
constexpr int larghezzaRiga = 360, spessoreRiga = 15;

constexpr std::int16_t canaleCursore = 1, velocitaCursore = 100;
constexpr int durataCursore = 150;  // milliseconds

void FaiRiga(std::deque<Figura>& righe, Form& finestra, Cornice& regolo, int sopra, Colore colore) {
    Figura& riga = righe.emplace_back(finestra, "Line1" + std::to_string(righe.size()), &regolo);
    riga.Top = sopra;
    riga.Width = larghezzaRiga;
    riga.Height = spessoreRiga;
    riga.BackColor = colore;
}

}  // namespace

PannelloRegolo::PannelloRegolo(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                               VicineRegolo vicine)
    : finestra_(finestra), a_(ambiente), stato_(stato), vicine_(std::move(vicine)) {
    Regolo.BackColor = Rgb(224, 255, 255);
    lblCursore.BackColor = Rgb(255, 0, 0);
    lblAccidente.Visible = false;
}

std::deque<Figura> PannelloRegolo::FaiRighe(Form& finestra, Cornice& regolo) {
    std::deque<Figura> righe;
    for (const int sopra : righeBlu)
        FaiRiga(righe, finestra, regolo, sopra, coloreRigaBlu);
    for (const int sopra : righeNere)
        FaiRiga(righe, finestra, regolo, sopra, coloreRigaNera);
    return righe;
}

void PannelloRegolo::Carica() {
    rigaCursore = rigaDoCentrale;
    notaCursore = notaDoCentrale;
    PonCursore();
}

void PannelloRegolo::MuoviCursore(std::string_view stato, int tasto) {
    if (stato != "Premuta" || (tasto != vk::su && tasto != vk::giu)) return;
    const PostoCursore prima{rigaCursore, notaCursore};
    const PostoCursore dopo = tasto == vk::su ? CursoreSu(prima) : CursoreGiu(prima);
    rigaCursore = dopo.riga;
    notaCursore = dopo.nota;
    PonCursore();
    vicine_.fuocoInsNota();
    SuonaCursore();
}

void PannelloRegolo::PonCursore() {
    lblAccidente.Visible = NotaConDiesis(notaCursore);
    // A row is half the label's height; the label's middle then lies on the row's line.
    const int altezza = lblCursore.Height();
    lblCursore.Top = rigaCursore * altezza / 2 + altezza;
    lblAccidente.Top = lblCursore.Top();
    stato_.inserimento.notaAttiva = notaCursore;
    stato_.lblActNote.Caption = NomeNota(notaCursore, a_.globali.NomiAnglo);
}

void PannelloRegolo::SuonaCursore() {
    const std::int16_t nota = notaCursore;
    vicine_.mostraTasto(nota - notaPiuBassa, true);
    a_.suono.NotaOn(canaleCursore, nota, velocitaCursore);
    a_.pompa.Sleep(durataCursore);
    a_.suono.NotaOff(canaleCursore, nota);
    vicine_.mostraTasto(nota - notaPiuBassa, false);
}

}  // namespace corvana
