// Whatever is entered and edited in whatever order: the texts stay parallel and are those of a
// plain model, what is shown agrees with them, and what was added can be taken back.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/text.h"
#include "tests/composer/editor_model.h"

namespace corvana::prova {

namespace {

std::string Scatola(int numero) {
    return numero == 0 ? "" : std::to_string(numero);
}

void ConfrontaVoce(const BancoAMano& b, const ModelloEditor& m, std::size_t voce) {
    const VoceMelodia& v = b.melodia.voci[voce];
    const VoceEditor& attesa = m.voci[voce];
    RC_ASSERT(b.Testi(voce) == TestiDi(attesa.note));
    RC_ASSERT(b.finestra.voci.perVoce[voce].prima.Text() == Scatola(attesa.prima));
    RC_ASSERT(b.finestra.voci.perVoce[voce].ultima.Text() == Scatola(attesa.ultima));
    if (attesa.note.empty()) return;
    const std::size_t elementi = attesa.note.size() + 1;
    RC_ASSERT(v.numeroNote == static_cast<int>(attesa.note.size()));
    RC_ASSERT(v.noteVoce == Dividi(v.testoNote, ';'));
    RC_ASSERT(v.durateVoce == Dividi(v.testoDurate, ';'));
    RC_ASSERT(v.attributiVoce == Dividi(v.testoAttributi, ';'));
    RC_ASSERT(v.noteVoce.size() == elementi && v.durateVoce.size() == elementi &&
              v.attributiVoce.size() == elementi);
}

void ConfrontaInserimento(const BancoAMano& b, const ModelloEditor& m) {
    RC_ASSERT(b.melodia.voceAttiva == nomiVoci[m.attiva]);
    RC_ASSERT(b.inserimento.notaAttiva == m.nota);
    RC_ASSERT(b.AttributoAcceso() == m.attributo);
    RC_ASSERT(int(b.inserimento.contaTerzina) == m.conta);
    RC_ASSERT(b.AccentoInVista() == m.accentoVisibile);
    RC_ASSERT(!m.accentoVisibile || b.AccentoAcceso() == m.accentoAcceso);
    RC_ASSERT(b.Modificata() == m.modificata);
    RC_ASSERT(b.finestra.incolla.lblIncolla.Visible() == m.attendeIncolla);
    RC_ASSERT(b.passo.modoPasso == m.passoAperto);
    RC_ASSERT(b.passo.IndiceNotaPP == m.passo);
    RC_ASSERT(b.uscita.NoteAccese().empty());
}

void Confronta(const BancoAMano& b, const ModelloEditor& m) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        ConfrontaVoce(b, m, voce);
    ConfrontaInserimento(b, m);
}

/// A user who has done this and that.
void Usa(BancoAMano& b, ModelloEditor& m) {
    const int gesti = *rc::gen::inRange(1, 60);
    for (int gesto = 0; gesto < gesti; ++gesto) {
        GestoACaso(b, m);
        Confronta(b, m);
    }
}

}  // namespace

RC_GTEST_PROP(EditorAMano, AnySequenceOfEntriesAndEditsAgreesWithAPlainModel, ()) {
    BancoAMano b;
    ModelloEditor m;
    Usa(b, m);
}

RC_GTEST_PROP(EditorAMano, WhateverIsDoneWhatIsKeptIsTheMelodyAtEachWait, ()) {
    BancoAMano b;
    ModelloEditor m;
    const int gesti = *rc::gen::inRange(1, 60);
    for (int gesto = 0; gesto < gesti; ++gesto) {
        GestoACaso(b, m);
        b.pompa.Attendi(0.001);
        const auto byte = b.custode.Contenuto();
        RC_ASSERT(byte.has_value() == m.modificata);
        if (!byte) continue;
        const auto tenuta = LeggiTenuta(*byte);
        RC_ASSERT(tenuta.has_value());
        for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
            const VoceTenuta& v = tenuta->voci[voce];
            RC_ASSERT((TestiVoce{v.note, v.durate, v.attributi}) == TestiDi(m.voci[voce].note));
        }
    }
}

RC_GTEST_PROP(EditorAMano, ANoteThatIsEnteredAndDroppedLeavesTheTextsAsTheyWere, ()) {
    BancoAMano b;
    ModelloEditor m;
    Usa(b, m);
    b.finestra.modifica.cmdNpp_Click();
    if (b.AttributoAcceso() == 2) b.Attributo(2);
    const TestiVoce prima = b.Testi(m.attiva);
    *rc::gen::arbitrary<bool>() ? b.Pausa() : b.DoppioClick(70);
    RC_ASSERT(b.Testi(m.attiva)[0] == prima[0] + b.Testi(m.attiva)[0].substr(prima[0].size()));
    RC_ASSERT(b.Testi(m.attiva)[0].size() == prima[0].size() + 3);
    b.Tocca("cmdCanc");
    RC_ASSERT(b.Testi(m.attiva) == prima);
}

RC_GTEST_PROP(EditorAMano, ANoteInsertedBehindTheStepAndDeletedLeavesTheTextsAndTheStep, ()) {
    BancoAMano b;
    ModelloEditor m;
    Usa(b, m);
    if (b.melodia.Attiva().Vuota()) b.Pausa();
    b.Passo(*rc::gen::inRange(0, 2));
    // A range that was moved may have led the step out of the voice.
    RC_PRE(b.passo.IndiceNotaPP < b.melodia.Attiva().numeroNote);
    const TestiVoce prima = b.Testi(m.attiva);
    const int passo = b.passo.IndiceNotaPP;
    b.Tocca("cmdInsertNote");
    RC_ASSERT(b.Testi(m.attiva) != prima);
    b.Tocca("cmdCancNota");
    RC_ASSERT(b.Testi(m.attiva) == prima);
    RC_ASSERT(b.passo.IndiceNotaPP == passo);
}

}  // namespace corvana::prova
