#include "tests/composer/editor_model.h"

#include <array>
#include <cstdlib>

#include "tests/composer/plain_numbers.h"

namespace corvana::prova {

namespace {

constexpr std::array figure = {4.0, 2.0, 1.0, 0.5, 0.25, 0.125, 0.0625};
/// In the order of the list; "na" comes after them.
constexpr std::array paroleDurata = {"4",    "6",    "2",     "3",     "1",      "1.5",   "0.5",
                                     "0.75", "0.25", "0.375", "0.125", "0.1875", "0.0625"};
constexpr int altraParola = 13;

}  // namespace

void ModelloEditor::PremiAttributo(int i) {
    const bool acceso = attributo != i;
    attributo = acceso ? i : 6;
    if (i != 3) return;
    accentoVisibile = acceso;
    if (acceso) accentoAcceso = true;
    if (!acceso) conta = 0;
}

double ModelloEditor::Valore() const {
    const double v = figure.at(static_cast<std::size_t>(figura));
    if (attributo == 0) return per * v * 1.5;
    if (attributo == 3) return per * v * 2 / 3;
    return per * v;
}

/// A tie takes the last note off and its value on.
double ModelloEditor::ConLegatura(double valore) {
    if (attributo != 2 || Voce().note.empty()) return valore;
    valore += LettoColPunto(Voce().note.back().durata);
    Voce().note.pop_back();
    return valore;
}

/// The count stands for notes heard, too, unless a key was only listened to.
void ModelloEditor::Anteprima() {
    if (attributo == 3 && !soloAscolto) ++conta;
}

void ModelloEditor::Premi(int tasto) {
    soloAscolto = true;
    if (attributo != 2) nota = tasto;
}

void ModelloEditor::DoppioClick(int tasto) {
    Premi(tasto);
    silenzio = true;
    InserisciNota();
}

void ModelloEditor::Accoda(const std::string& n, double valore, const std::string& a) {
    Voce().note.push_back({n, ScrittoColPunto(valore), a});
    Aggiorna();
}

void ModelloEditor::InserisciNota() {
    if (nota < 36 || nota > 95) return;
    modificata = true;
    soloAscolto = false;
    const std::array lettere = {"n", "s", "n", accentoAcceso ? "a" : "n", "t", "a", "n"};
    if (attributo == 3) ++conta;
    const std::string lettera = lettere.at(static_cast<std::size_t>(attributo));
    Accoda(std::to_string(nota), ConLegatura(Valore()), lettera);
    if (Concludi()) accentoVisibile = false;
    if (accentoVisibile) accentoAcceso = false;
    if (!silenzio) Anteprima();
    silenzio = false;
}

void ModelloEditor::InserisciPausa() {
    modificata = true;
    if (attributo == 3) ++conta;
    Accoda("00", ConLegatura(Valore()), "p");
    Concludi();
}

/// True when a triplet was closed.
bool ModelloEditor::Concludi() {
    if (attributo == 3 && conta < 3) return false;
    const bool tre = conta == 3;
    if (tre) conta = 0;
    if (tre || !conserva) attributo = 6;
    return tre;
}

/// The voice is split and its boxes are written.
void ModelloEditor::Aggiorna() {
    VoceEditor& voce = Voce();
    voce.spezzate = voce.note;
    voce.ultima = static_cast<int>(voce.note.size());
    if (voce.note.empty()) voce.prima = 0;
    if (!voce.note.empty() && voce.prima == 0) voce.prima = 1;
}

void ModelloEditor::Taglia() {
    VoceEditor& voce = Voce();
    std::size_t lettere = 0;
    for (const NotaEditor& n : voce.note)
        lettere += n.nota.size() + 1;
    if (lettere < 3) return;
    const bool sola = lettere == 3;
    if (sola) voce.note.clear();
    if (!sola) voce.note.pop_back();
    modificata = modificata || !sola;
    Aggiorna();
    if (!sola && attiva == soprano) voce.prima = 1;
}

void ModelloEditor::Incolla() {
    VoceEditor& voce = Voce();
    if (voce.note.empty()) return Aggiorna();
    if (!attendeIncolla) {
        attendeIncolla = true;
        return;
    }
    attendeIncolla = false;
    modificata = true;
    const NoteEditor tratto(voce.note.begin() + voce.prima - 1, voce.note.begin() + voce.ultima);
    voce.note.insert(voce.note.end(), tratto.begin(), tratto.end());
    Aggiorna();
}

void ModelloEditor::ScriviTratto(std::size_t quale, bool ultima, int numero) {
    VoceEditor& voce = voci[quale];
    const int note = static_cast<int>(voce.note.size());
    if (note == 0) return;
    ScegliVoce(quale);
    if (quale != soprano)
        voce.ultima = numero > voce.prima + 1 && numero <= note ? numero : note;
    else if (ultima && numero >= voce.prima && numero <= note)
        voce.ultima = numero;
    else if (!ultima && numero >= 1 && numero <= voce.ultima)
        voce.prima = numero;
}

void ModelloEditor::ScegliVoce(std::size_t voce) {
    attiva = voce;
    passoAperto = false;
}

void ModelloEditor::Carica(const NotaEditor& n) {
    attributoScelto = n.attributo;
    parola = 0;
    while (parola < altraParola && n.durata != paroleDurata.at(static_cast<std::size_t>(parola)))
        ++parola;
}

void ModelloEditor::Passo(int verso) {
    VoceEditor& voce = Voce();
    if (voce.note.empty()) return;
    const int da = voce.prima - 1, a = voce.ultima - 1;
    if (!passoAperto) passo = da - 1;
    passoAperto = true;
    volte = 1;
    if (verso == 1)
        passo = passo == a ? da : passo + 1;
    else
        passo = passo <= da ? a : passo - 1;
    if (passo >= static_cast<int>(voce.note.size())) return;
    const NotaEditor& sotto = voce.note[static_cast<std::size_t>(passo)];
    nota = std::atoi(sotto.nota.c_str());
    Carica(sotto);
}

double ModelloEditor::ValoreScelto() const {
    const bool scelta = parola >= 0 && parola < altraParola;
    return (scelta ? LettoColPunto(paroleDurata.at(static_cast<std::size_t>(parola))) : 1) * volte;
}

void ModelloEditor::Modifica() {
    modificata = true;
    VoceEditor& voce = Voce();
    // Where there is no note the fault ends it before the accent is hidden.
    if (!voce.spezzate.empty() && passo >= static_cast<int>(voce.spezzate.size())) return;
    if (!voce.spezzate.empty()) {
        const NotaEditor prima = voce.spezzate[static_cast<std::size_t>(passo)];
        NotaEditor nuova = prima;
        if (LettoColPunto(prima.nota) != nota) nuova.nota = std::to_string(nota);
        const bool altroValore = LettoColPunto(prima.durata) != ValoreScelto();
        if (altroValore)
            nuova.durata =
                ScrittoColPunto(attributo == 3 ? ValoreScelto() * 2 / 3 : ValoreScelto());
        nuova.attributo = attributoScelto;
        if (nuova.attributo != prima.attributo)
            nuova.nota = attributoScelto == "p" ? "00" : std::to_string(nota);
        const bool cambiata = !(nuova == prima) || altroValore;
        if (cambiata && voce.note.empty()) return;
        if (altroValore && attributo == 3) attributo = 6;
        if (cambiata) voce.note[static_cast<std::size_t>(passo)] = nuova, Aggiorna();
    }
    accentoVisibile = false;
}

void ModelloEditor::InserisciDietro() {
    modificata = true;
    VoceEditor& voce = Voce();
    if (passo >= static_cast<int>(voce.spezzate.size())) return;
    const double valore =
        attributo == 3 ? figure.at(static_cast<std::size_t>(figura)) * 2 / 3 : ValoreScelto();
    const std::string token = attributoScelto == "p" ? "00" : std::to_string(nota);
    voce.note = voce.spezzate;
    voce.note.insert(voce.note.begin() + passo + 1,
                     {token, ScrittoColPunto(valore), attributoScelto});
    ++passo;
    Aggiorna();
}

void ModelloEditor::Cancella() {
    modificata = true;
    VoceEditor& voce = Voce();
    const int note = static_cast<int>(voce.note.size());
    if (note == 0 || (note > 1 && passo > note)) return;
    if (note == 1) {
        voce.note.clear();
        Aggiorna();
        passo = 0;
        return;
    }
    if (passo > 0) Carica(voce.note[static_cast<std::size_t>(passo - 1)]);
    if (passo < note) voce.note.erase(voce.note.begin() + passo);
    const int prima = std::max(std::min(voce.prima - 1, passo - 1), 0);
    Aggiorna();
    // The lower voices' range begins with their first note here, as it always does.
    voce.prima = passo == 0 ? 1 : prima + 1;
    passo = std::max(passo - 1, 0);
}

void ModelloEditor::Azzera() {
    for (VoceEditor& voce : voci)
        voce.note.clear(), voce.prima = voce.ultima = 0;
    ScegliVoce(soprano);
    modificata = false;
}

TestiVoce TestiDi(const NoteEditor& note) {
    TestiVoce testi;
    for (const NotaEditor& n : note) {
        testi[0] += n.nota + ";";
        testi[1] += n.durata + ";";
        testi[2] += n.attributo + ";";
    }
    return testi;
}

}  // namespace corvana::prova
