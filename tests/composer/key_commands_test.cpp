// The keys that come to the window as events: function keys and the second part of the piano.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoComandi : BancoComposer {
    BancoComandi() { uscita.messaggi.clear(); }
    void Giu(int codice, bool ripetuto = false) { Tasto(Fatto::KeyDown, codice, ripetuto); }
    void Su(int codice) { Tasto(Fatto::KeyUp, codice, false); }
    /// Notes that were struck, in order.
    std::vector<int> Battute() const {
        std::vector<int> battute;
        for (const auto& [istante, m] : uscita.messaggi)
            if ((m & 0xFFU) == 0x90U && m >> 16 != 0) battute.push_back(m >> 8 & 0xFFU);
        return battute;
    }
    int Corrente() const { return finestra.tasti.tastoCorrente; }

private:
    void Tasto(Fatto fatto, int codice, bool ripetuto) {
        Evento e;
        e.fatto = fatto;
        e.codice = codice;
        e.ripetuto = ripetuto;
        coda.Aggiungi(Fatta(e, ""));
        pompa.PompaEventi();
    }
};

constexpr int f5 = 116, f6 = 117, f7 = 118, f8 = 119, f9 = 120, f11 = 122, f12 = 123;
using Interi = std::vector<int>;

constexpr std::uint32_t Colpo(std::uint32_t nota, std::uint32_t velocita) {
    return 0x90U | nota << 8 | velocita << 16;
}

}  // namespace

TEST(TastiFunzione, F5OnFirstUsePressesKey23) {
    BancoComandi b;
    b.Giu(f5);
    EXPECT_EQ(b.Battute(), Interi{59});
    EXPECT_EQ(b.Corrente(), 23);
    EXPECT_EQ(b.inserimento.notaAttiva, 59);
}

TEST(TastiFunzione, F6OnFirstUsePressesKey24) {
    BancoComandi b;
    b.Giu(f6);
    EXPECT_EQ(b.Battute(), Interi{60});
    EXPECT_EQ(b.Corrente(), 24);
}

TEST(TastiFunzione, F5AndF6WalkOverTheKeysAlsoByTheKeyboardsRepetitions) {
    BancoComandi b;
    b.Giu(f6);
    b.Giu(f6, true);
    b.Giu(f6, true);
    b.Su(f6);
    b.Giu(f5);
    EXPECT_EQ(b.Battute(), (Interi{60, 61, 62, 61}));
}

TEST(TastiFunzione, AtTheEndsOfTheKeyboardF5AndF6PressNothing) {
    BancoComandi b;
    b.finestra.tasti.tastoCorrente = 0;
    b.Giu(f5);
    EXPECT_EQ(b.Corrente(), 0);
    b.finestra.tasti.tastoCorrente = 59;
    b.Giu(f6);
    EXPECT_EQ(b.Corrente(), 59);
    EXPECT_TRUE(b.Battute().empty());
}

TEST(RilascioTasti, F5OrF6UpReleasesTheCurrentKey) {
    for (const int codice : {f5, f6}) {
        BancoComandi b;
        b.finestra.tasti.tastoCorrente = 30;
        b.finestra.tasti.MostraTasto(30, true);
        b.Su(codice);
        ASSERT_EQ(b.uscita.messaggi.size(), 1U);
        EXPECT_EQ(b.uscita.messaggi[0].messaggio, Colpo(66, 0));
        EXPECT_EQ(b.finestra.tasti.lb[30].BackStyle(), fondoTrasparente);
        EXPECT_EQ(b.Corrente(), 30);
    }
}

TEST(RilascioTasti, WithNoKeyUsedYetNothingIsReleased) {
    BancoComandi b;
    b.Su(f5);
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(TastiFunzione, F7AndF8ChooseTheFigureBeforeAndTheNextInACircle) {
    BancoComandi b;
    Interi figure;
    for (const int codice : {f7, f7, f7, f8, f8}) {
        b.Giu(codice);
        figure.push_back(b.inserimento.figuraAttiva);
    }
    EXPECT_EQ(figure, (Interi{1, 0, 6, 0, 1}));
    EXPECT_EQ(b.inserimento.valoreFigura, 2);
    EXPECT_EQ(b.finestra.inserimento.cmdSimbNote[1].BackColor(), Rgb(10, 254, 10));
}

TEST(TastiFunzione, F9PlaysAndF9DuringPlayStops) {
    BancoComandi b;
    b.Voce(soprano, "60;62;64;", "1");
    b.NelTick(5, [&] {
        EXPECT_TRUE(b.finestra.stato.inEsecuzione);
        b.coda.Aggiungi(b.Fatta({.fatto = Fatto::KeyDown, .codice = f9}, ""));
    });
    b.Suona([&] { b.Giu(f9); });
    EXPECT_EQ(b.TickPassati(), 5);
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
}

TEST(TastiFunzione, F11StepsTheAttributeByItsOwnOrder) {
    BancoComandi b;
    Interi attributi;
    for (int i = 0; i < 8; ++i) {
        b.Giu(f11);
        attributi.push_back(b.inserimento.attributoAttivo);
        EXPECT_EQ(b.finestra.inserimento.lblAt.Visible(), b.inserimento.attributoAttivo == 3);
    }
    EXPECT_EQ(attributi, (Interi{0, 1, 4, 5, 2, 3, 6, 0}));
}

TEST(TastiFunzione, F11HidesTheAccentThatAnotherAttributeWouldLeave) {
    BancoComandi b;
    b.finestra.inserimento.cmdAttrNota_Click(3);
    b.finestra.inserimento.cmdAttrNota_Click(1);
    ASSERT_TRUE(b.finestra.inserimento.lblAt.Visible());
    b.Giu(f11);
    EXPECT_EQ(b.inserimento.attributoAttivo, 4);
    EXPECT_FALSE(b.finestra.inserimento.lblAt.Visible());
}

TEST(TastiFunzione, F12InsertsARest) {
    BancoComandi b;
    b.Giu(f12);
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "00;");
}

TEST(TastiFunzione, F12DuringPlayHasNoEffect) {
    BancoComandi b;
    b.Voce(soprano, "60;62;", "1");
    b.NelTick(5, [&] { b.coda.Aggiungi(b.Fatta({.fatto = Fatto::KeyDown, .codice = f12}, "")); });
    b.Suona();
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;");
    EXPECT_EQ(b.TickPassati(), 64);
}

TEST(TastiFunzione, NoOtherKeyDoesAnything) {
    BancoComandi b;
    b.Voce(soprano, "60;62;", "1");
    for (int codice = 1; codice < 256; ++codice)
        if (codice < f5 || codice > f12 || codice == 121) b.finestra.comandi.TastiFunzione(codice);
    EXPECT_TRUE(b.uscita.messaggi.empty());
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;");
    EXPECT_EQ(b.inserimento.figuraAttiva, 2);
    EXPECT_EQ(b.inserimento.attributoAttivo, 6);
}

TEST(PianoAdEventi, TheKeysOfTheSecondTableSoundAt90AndSelectTheirNote) {
    const std::vector<std::pair<int, int>> tasti = {{188, 12}, {76, 13},  {190, 14},
                                                    {192, 15}, {189, 16}, {186, 29},
                                                    {221, 30}, {187, 31}, {8, 32}};
    for (const int base : {36, 48, 60})
        for (const auto& [codice, distanza] : tasti) {
            BancoComandi b;
            b.finestra.tasti.baseTastiera = static_cast<std::int16_t>(base);
            b.Giu(codice);
            const int nota = base + distanza;
            EXPECT_EQ(b.inserimento.notaAttiva, nota);
            EXPECT_EQ(b.finestra.tasti.lb[std::size_t(nota - 36)].BackStyle(), fondoOpaco);
            b.Su(codice);
            EXPECT_EQ(b.finestra.tasti.lb[std::size_t(nota - 36)].BackStyle(), fondoTrasparente);
            ASSERT_EQ(b.uscita.messaggi.size(), 2U);
            EXPECT_EQ(b.uscita.messaggi[0].messaggio, Colpo(std::uint32_t(nota), 90));
            EXPECT_EQ(b.uscita.messaggi[1].messaggio, Colpo(std::uint32_t(nota), 0));
        }
}

TEST(PianoAdEventi, BackspaceSoundsAgainOnEveryRepetitionUnlessTheCommaIsHeld) {
    BancoComandi b;
    b.finestra.tasti.baseTastiera = 60;
    b.Giu(8);
    b.Giu(8, true);
    b.Giu(8, true);
    b.Su(8);
    EXPECT_EQ(b.Battute(), (Interi{92, 92, 92}));
    b.uscita.messaggi.clear();
    b.Giu(188);
    b.Giu(8);
    b.Giu(8, true);
    EXPECT_EQ(b.Battute(), Interi{72});
}

TEST(PianoAdEventi, TheOtherKeysSwallowTheRepetitions) {
    BancoComandi b;
    b.Giu(188);
    b.Giu(188, true);
    EXPECT_EQ(b.Battute(), Interi{60});
}

TEST(PianoAdEventi, WhileAMelodyPlaysTheyStillSound) {
    BancoComandi b;
    b.Voce(soprano, "60;", "1");
    b.NelTick(3, [&] { b.coda.Aggiungi(b.Fatta({.fatto = Fatto::KeyDown, .codice = 76}, "")); });
    b.Suona();
    EXPECT_EQ(b.Battute(), (Interi{60, 61}));
    EXPECT_TRUE(b.uscita.NoteAccese().empty()) << "the end of the play silences all keys";
}

TEST(BaseTastiera, ADoubleClickOnTheNotesNameOrOnTheMarkOfMiddleCStepsIt) {
    for (const char* dove : {"lblActNote", "Lbdoc"}) {
        BancoComandi b;
        Interi basi = {b.finestra.tasti.baseTastiera};
        for (int i = 0; i < 3; ++i) {
            b.Subito(Fatto::DblClick, dove);
            basi.push_back(b.finestra.tasti.baseTastiera);
        }
        EXPECT_EQ(basi, (Interi{48, 60, 36, 48})) << dove;
    }
}

}  // namespace corvana::prova
