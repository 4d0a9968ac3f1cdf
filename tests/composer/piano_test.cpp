#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoPiano : BancoComposer {
    BancoPiano() { uscita.messaggi.clear(); }
    void Passo(int codice, bool premuto) {
        if (premuto)
            Premi(pompa.Adesso(), codice);
        else
            Lascia(pompa.Adesso(), codice);
        pompa.Attendi(0.001);
        pompa.PompaEventi();
        finestra.tasti.EsaminaPiano();
    }
    std::vector<std::uint32_t> Inviati() const {
        std::vector<std::uint32_t> inviati;
        for (const auto& voce : uscita.messaggi)
            inviati.push_back(voce.messaggio);
        return inviati;
    }
};

constexpr std::uint32_t Nota(std::uint32_t nota, std::uint32_t velocita) {
    return 0x90U | nota << 8 | velocita << 16;
}

}  // namespace

TEST(PianoDaTastiera, InTheKeyPollTheKeyPSoundsAtVelocity100WhereAllOtherKeysSoundAt90) {
    BancoPiano b;
    std::uint32_t nota = 48;
    for (const char tasto : std::string("ZSXDCVGBHNJMQ2W3ER5T6Y7UI9O0P")) {
        b.uscita.messaggi.clear();
        b.Passo(tasto, true);
        b.Passo(tasto, false);
        const std::uint32_t velocita = tasto == 'P' ? 100 : 90;
        EXPECT_EQ(b.Inviati(), (std::vector{Nota(nota, velocita), Nota(nota, 0)})) << tasto;
        ++nota;
    }
}

TEST(PianoDaTastiera, AHeldKeyIsStruckOnceAndStaysLitUntilItIsLetGo) {
    BancoPiano b;
    b.Passo('Z', true);
    b.finestra.tasti.EsaminaPiano();
    EXPECT_EQ(b.Inviati(), std::vector{Nota(48, 90)});
    EXPECT_EQ(b.finestra.tasti.lb[12].BackStyle(), fondoOpaco);
    b.Passo('Z', false);
    EXPECT_EQ(b.finestra.tasti.lb[12].BackStyle(), fondoTrasparente);
}

TEST(PianoDaTastiera, KeysOfOnePassSoundInTheOrderOfTheKeyboard) {
    BancoPiano b;
    b.Premi(0, 'X');
    b.Passo('Z', true);
    EXPECT_EQ(b.Inviati(), (std::vector{Nota(48, 90), Nota(50, 90)}));
}

TEST(PianoDaTastiera, APlayedKeyBecomesTheActiveNote) {
    BancoPiano b;
    b.finestra.tasti.baseTastiera = 60;
    b.Passo('C', true);
    EXPECT_EQ(b.inserimento.notaAttiva, 64);
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "Mi");
}

TEST(PianoDaTastiera, WithTheTieLitAPlayedKeySoundsAndTheActiveNoteStays) {
    BancoPiano b;
    b.inserimento.attributoAttivo = 2;
    b.Passo('C', true);
    EXPECT_EQ(b.Inviati(), std::vector{Nota(52, 90)});
    EXPECT_EQ(b.inserimento.notaAttiva, 60);
}

TEST(PianoDaTastiera, AWindowThatOpensOverTheMelodyWindowTakesTheFingersOffIt) {
    for (const char* voce : {"mnuCopyFromA", "mnuSs"}) {
        BancoPiano b;
        b.Passo('P', true);
        b.Passo('L', true);
        ASSERT_EQ(b.uscita.NoteAccese().size(), 2U);
        b.Fine(b.pompa.Adesso() + 1);
        b.SvolgiCopione([&] { b.Subito(Fatto::Click, voce); });
        EXPECT_TRUE(b.uscita.NoteAccese().empty()) << voce;
    }
}

}  // namespace corvana::prova
