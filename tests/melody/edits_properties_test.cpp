// Whatever is done to a voice in whatever order, its three texts stay parallel, and texts and
// arrays tell the same. Beside the texts a plain list of notes goes through the same edits.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/text.h"
#include "melody/edits.h"
#include "melody/entry.h"
#include "melody/numbers.h"
#include "melody/step_mode.h"
#include "tests/melody/edited_voice.h"

namespace corvana::prova {

namespace {

struct NotaModello {
    int nota = 0;
    double durata = 0;
    std::string attributo;
};

bool Uguali(const NotaModello& a, const NotaModello& b) {
    return a.nota == b.nota && a.attributo == b.attributo &&
           std::abs(a.durata - b.durata) <= 1e-9 * std::max(1.0, std::abs(a.durata));
}

struct Redattore {
    VoceMelodia voce;
    StatoInserimento stato;
    OpzioniInserimento opzioni;
    std::vector<NotaModello> modello;

    int Note() const { return static_cast<int>(modello.size()); }
    int Qualsiasi() const { return *rc::gen::inRange(0, Note()); }
    auto Dopo(int i) { return modello.begin() + (i + 1); }

    void Nota(bool pausa) {
        stato.notaAttiva = static_cast<std::int16_t>(*rc::gen::inRange(36, 96));
        ScegliFigura(stato, static_cast<std::uint8_t>(*rc::gen::inRange(0, 7)));
        if (*rc::gen::arbitrary<bool>()) PremiAttributo(stato, *rc::gen::inRange(0, 6));
        opzioni.per = static_cast<std::int16_t>(*rc::gen::inRange(0, 101));
        opzioni.conserva = *rc::gen::arbitrary<bool>();
        const bool lega = stato.attributoAttivo == attributoLegatura && Note() > 0;
        if (pausa)
            InserisciPausa(stato, voce, opzioni);
        else
            InserisciNota(stato, voce, opzioni);
        const double prima = lega ? modello.back().durata : 0;
        if (lega) modello.pop_back();
        Segna(pausa, prima);
    }
    /// The value and the letter are tables of their own; here it is where they go.
    void Segna(bool pausa, double prima) {
        const std::vector<std::string> lettere = Dividi(voce.testoAttributi, ';');
        // A tie adds to what the text says, which keeps fifteen digits of the value.
        constexpr double cifre = 1e-14;
        RC_ASSERT(stato.valoreNota >= prima * (1 - cifre));
        modello.push_back({pausa ? 0 : stato.notaAttiva, stato.valoreNota,
                           pausa ? "p" : lettere.at(lettere.size() - 2)});
    }
    void Inserisci() {
        const int i = *rc::gen::inRange(-1, Note());
        InserisciDopo(voce, i, {"72", "0.75", "a"});
        modello.insert(Dopo(i), {72, 0.75, "a"});
    }
    void Cancella() {
        if (Note() == 0) return;
        const int i = Qualsiasi();
        TogliTokenDopo(voce, i - 1);
        modello.erase(Dopo(i - 1));
    }
    void Taglia() {
        TagliaUltima(voce);
        if (Note() > 0) modello.pop_back();
    }
    void IncollaTratto() {
        if (Note() == 0 || Note() > 200) return;
        const int da = Qualsiasi();
        const int a = *rc::gen::inRange(da - 1, Note());
        Incolla(voce, da, a);
        const std::vector<NotaModello> tratto(modello.begin() + da, Dopo(a));
        modello.insert(modello.end(), tratto.begin(), tratto.end());
    }
    void Modifica() {
        if (Note() == 0) return;
        const int i = Qualsiasi();
        NotaModello& n = modello[static_cast<std::size_t>(i)];
        const std::string attributo = *rc::gen::element<std::string>("n", "s", "t", "a", "p");
        ModificaNota(voce, i, {67, 1.5, false, attributo, '.'});
        n = {attributo == "p" && n.attributo != "p" ? 0 : 67, 1.5, attributo};
    }
    void TrasponiTutto() {
        const int semitoni = *rc::gen::inRange(-12, 13);
        std::array<VoceMelodia, numeroVoci> voci{voce};
        const bool fatto = Trasponi(voci, semitoni);
        voce = voci[0];
        for (NotaModello& n : modello)
            if (fatto && n.nota != 0) n.nota += semitoni;
    }

    void Gesto() {
        switch (*rc::gen::inRange(0, 10)) {
            case 0: return Inserisci();
            case 1: return Cancella();
            case 2: return Taglia();
            case 3: return IncollaTratto();
            case 4: return Modifica();
            case 5: return TrasponiTutto();
            case 6: return Nota(true);
            default: return Nota(false);
        }
    }
};

std::string Uniti(const std::vector<std::string>& elementi) {
    std::string testo;
    for (std::size_t i = 0; i + 1 < elementi.size(); ++i)
        testo += elementi[i] + ";";
    return testo;
}

/// Texts and arrays are one another's, and both are the list's.
void Confronta(const Redattore& r) {
    const VoceMelodia& voce = r.voce;
    RC_ASSERT(Uniti(voce.noteVoce) == voce.testoNote);
    RC_ASSERT(Uniti(voce.durateVoce) == voce.testoDurate);
    RC_ASSERT(Uniti(voce.attributiVoce) == voce.testoAttributi);
    RC_ASSERT(NoteIntere(voce) == r.Note());
    RC_ASSERT(voce.numeroNote == (r.Note() == 0 ? -1 : r.Note()));
    RC_ASSERT(voce.durateVoce.size() == voce.noteVoce.size());
    RC_ASSERT(voce.attributiVoce.size() == voce.noteVoce.size());
    for (int i = 0; i < r.Note(); ++i) {
        const NotaModello letta{NumeroNota(Elemento(voce.noteVoce, i)),
                                NumeroReale(Elemento(voce.durateVoce, i)),
                                Elemento(voce.attributiVoce, i)};
        RC_ASSERT(Uguali(letta, r.modello[static_cast<std::size_t>(i)]));
    }
}

}  // namespace

RC_GTEST_PROP(Redazione, AnySequenceOfEditsKeepsTextsArraysAndAPlainListInStep, ()) {
    Redattore r;
    const int gesti = *rc::gen::inRange(1, 60);
    for (int gesto = 0; gesto < gesti; ++gesto) {
        r.Gesto();
        Spezza(r.voce);
        Confronta(r);
    }
}

RC_GTEST_PROP(Redazione, WhatIsInsertedAndTakenOutAgainLeavesTheTextsAsTheyWere, ()) {
    Redattore r;
    const int gesti = *rc::gen::inRange(1, 20);
    for (int gesto = 0; gesto < gesti; ++gesto) {
        r.Gesto();
        Spezza(r.voce);
    }
    const TestiVoce prima = TestiDellaVoce(r.voce);
    const int i = *rc::gen::inRange(-1, r.Note());
    InserisciDopo(r.voce, i, {"60", "1", "n"});
    Spezza(r.voce);
    TogliTokenDopo(r.voce, i);
    RC_ASSERT(TestiDellaVoce(r.voce) == prima);
    Accoda(r.voce, {"60", "1", "n"});
    TagliaUltima(r.voce);
    RC_ASSERT(TestiDellaVoce(r.voce) == prima);
}

}  // namespace corvana::prova
