// How the learner sets range and reference of the drill of pitch, and what was stored of them.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

/// Started, stopped, and at 8 set anew.
struct BancoEstensione : BancoInto {
    BancoEstensione() : BancoInto({PaginaInto::Intonazione}) {
        Clicca(1, "IntoStart");
        Clicca(5, "IntoStart");
        Clicca(8, "cmdReimposta");
    }
    /// Clicks on these keys, one a second from 10 on.
    void Tasti(const std::vector<int>& tasti) {
        double t = 10;
        for (const int tasto : tasti)
            Tasto(t++, tasto);
    }
    std::string Limiti() const {
        return std::to_string(into.IntoBasso) + ".." + std::to_string(into.IntoAlto);
    }
};

using Riquadri = std::vector<std::string>;

}  // namespace

TEST(EstensioneIntonazione, SetAnewThereIsNoRangeNoMarkAndNoStart) {
    BancoEstensione b;
    b.Vai(9);
    EXPECT_EQ(b.Limiti(), "-1..-1");
    EXPECT_TRUE(b.Segnati().empty());
    EXPECT_FALSE(b.Visibile("IntoStart"));
    EXPECT_EQ(b.Passo(), "primo limite");
    EXPECT_FALSE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_EQ(b.Note(8), Suonati{"0.0 60 0"});
}

TEST(EstensioneIntonazione, TheFirstClickHidesTheExitUntilAStop) {
    BancoEstensione b;
    b.Tasti({40});
    b.Quando(10.5, [&] {
        EXPECT_FALSE(b.Visibile("cmdEsci"));
        EXPECT_EQ(b.Passo(), "secondo limite");
        EXPECT_EQ(b.Segnati(), std::vector{40});
    });
    b.Tasto(11, 20);
    b.Quando(11.5, [&] { EXPECT_EQ(b.Passo(), "scegli rif"); });
    b.Tasto(12, 30);
    b.Estrai(0, 13);
    b.Estrai(1, 21);
    b.Clicca(13, "IntoStart");
    b.Quando(17, [&] { EXPECT_FALSE(b.Visibile("cmdEsci")); });
    b.Quando(17.5, [&] { EXPECT_TRUE(b.finestra.intonazione.IntoRifOk); });
    b.Clicca(18, "IntoStart");
    b.Vai(19);
    EXPECT_FALSE(b.finestra.intonazione.IntoRifOk);
    EXPECT_TRUE(b.Visibile("cmdEsci"));
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
}

TEST(EstensioneIntonazione, TheClickThatCompletesTheRangeIsNotTheReference) {
    BancoEstensione b;
    b.Tasti({40, 20});
    b.Quando(11.5, [&] {
        EXPECT_EQ(b.Limiti(), "20..40");
        EXPECT_EQ(b.Segnati(), (std::vector{20, 40}));
        EXPECT_FALSE(b.Visibile("IntoStart"));
        EXPECT_TRUE(b.Note(10).empty());
    });
    b.Tasto(12, 25);
    b.Vai(13);
    EXPECT_EQ(b.finestra.telaio.NotaRif, 61);
    EXPECT_EQ(b.Segnati(), (std::vector{20, 25, 40}));
    EXPECT_EQ(b.Note(12), (Suonati{"0.0 60 0", "0.0 61 100"}));
    EXPECT_TRUE(b.Visibile("IntoStart"));
    EXPECT_EQ(b.specchio.fuochi.back(), "IntoStart");
}

TEST(EstensioneIntonazione, TheReferenceCanBeMovedAtWillAndItsOldMarkGoesButForALimits) {
    BancoEstensione b;
    b.Tasti({20, 40, 25, 30, 40, 20, 33});
    b.Quando(13.5, [&] { EXPECT_EQ(b.Segnati(), (std::vector{20, 30, 40})); });
    b.Quando(15.5, [&] { EXPECT_EQ(b.Segnati(), (std::vector{20, 40})); });
    b.Vai(17);
    EXPECT_EQ(b.Segnati(), (std::vector{20, 33, 40}));
    EXPECT_EQ(b.finestra.telaio.NotaRif, 69);
}

TEST(EstensioneIntonazione, AReferenceOutsideOfTheRangeIsRefusedAndMovesNothing) {
    BancoEstensione b;
    b.Tasti({20, 40, 25, 41, 19});
    b.Vai(16);
    EXPECT_EQ(b.riquadri.messaggi, (Riquadri{"rif fuori", "rif fuori"}));
    EXPECT_EQ(b.finestra.telaio.NotaRif, 61);
    EXPECT_EQ(b.Segnati(), (std::vector{20, 25, 40}));
    EXPECT_TRUE(b.Note(13).empty());
}

TEST(EstensioneIntonazione, TheSameKeyTwiceIsTooNarrowAndTheNextClickIsASecondOneAgain) {
    BancoEstensione b;
    b.Tasti({30, 30, 31});
    b.Quando(13, [&] {
        EXPECT_EQ(b.riquadri.messaggi, (Riquadri{"stretto sopra", "stretto sopra"}));
        EXPECT_EQ(b.Segnati(), std::vector{30});
        EXPECT_EQ(b.Passo(), "secondo limite");
    });
    b.Tasto(14, 32);
    b.Vai(15);
    EXPECT_EQ(b.Limiti(), "30..32");
}

TEST(EstensioneIntonazione, AKeyTooCloseBelowStaysUnmarkedUntilTheNextClickReplacesIt) {
    for (const auto& [poi, limiti] : {std::pair{10, "10..30"}, {45, "30..45"}}) {
        BancoEstensione b;
        b.Tasti({30, 29});
        b.Quando(12, [&] {
            EXPECT_EQ(b.riquadri.messaggi, Riquadri{"stretto sotto"});
            EXPECT_EQ(b.Limiti(), "29..30");
            EXPECT_EQ(b.Segnati(), std::vector{30});
        });
        b.Tasto(13, poi);
        b.Vai(14);
        EXPECT_EQ(b.Limiti(), limiti);
    }
}

TEST(EstensioneIntonazione, StartClearsTheReferenceThatStillSounds) {
    BancoEstensione b;
    b.Tasti({20, 40, 25});
    b.Estrai(0, 13);
    b.Estrai(1, 21);
    b.Clicca(14, "IntoStart");
    b.Vai(18);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_EQ(b.Note(14).front(), "0.0 61 90");
}

TEST(EstensioneIntonazione, WithWhiteKeysAloneNoRangeIsWithoutAnyToAsk) {
    for (std::int16_t basso = 0; basso <= 57; ++basso) {
        BancoInto b{PaginaInto::Intonazione};
        const std::string limiti = std::to_string(basso) + ";" + std::to_string(basso + 2);
        b.PonStato(limiti + ";69;1;False;0");
        for (const int quale : {1, 1, 0, 0, 2})
            b.Estrai(quale, 3);
        b.Clicca(1, "IntoStart");
        EXPECT_TRUE(b.Vai(2)) << basso;
        EXPECT_FALSE(TastoNero(b.into.IntoNota)) << basso;
    }
}

TEST(EstensioneIntonazione, SetAnewBehindARightAnswerWhatIsNoRangeYetAsksNothing) {
    // Nothing chosen, one limit, the same black key twice: none has a white key to draw.
    for (const int clic : {0, 1, 2}) {
        BancoInto b{PaginaInto::Intonazione};
        b.Clicca(1, "IntoStart");
        b.Clicca(5, "IntoStart");
        b.Clicca(6, "mnuNotA");
        std::vector<Mossa> mosse = {{Fatto::Click, "lb24"}, {Fatto::Click, "cmdReimposta"}};
        for (int i = 0; i < clic; ++i)
            mosse.push_back({Fatto::Click, "lb1"});
        b.Insieme(7, mosse);
        EXPECT_TRUE(b.Vai(12));
        EXPECT_EQ(b.Note(7), (Suonati{"0.0 60 0", "0.0 69 90", "1.2 69 0"})) << clic;
        EXPECT_EQ(b.into.IntoNota, 24) << clic;
    }
}

TEST(EstensioneIntonazione, ChoosingAnInstrumentMeanwhileBringsTheStoredRangeBack) {
    BancoEstensione b;
    b.Tasti({20, 40, 25});
    b.Clicca(14, "mnuSs");
    b.Vai(15);
    EXPECT_EQ(b.Limiti(), "24..36");
    EXPECT_EQ(b.Segnati(), (std::vector{24, 33, 36}));
    EXPECT_EQ(b.Passo(), "premi start");
}

TEST(MemoriaIntonazione, AValueEditedByHandIsToldInTheFaultBoxAndTheDefaultsHold) {
    for (const char* testo : {"24;36", "a;b;c;d;e;f", "24;99;69;0;False;0", "25;25;69;0;False;0"}) {
        BancoInto b{PaginaInto::Intonazione};
        b.PonStato(testo);
        b.Clicca(1, "IntoStart");
        EXPECT_TRUE(b.Vai(5)) << testo;
        ASSERT_EQ(b.riquadri.messaggi.size(), 1U) << testo;
        EXPECT_NE(b.riquadri.messaggi[0].find("\r\n"), std::string::npos);
        EXPECT_EQ(b.into.IntoBasso, 24);
        EXPECT_EQ(b.into.IntoAlto, 36);
    }
}

TEST(MemoriaIntonazione, AValueOfOneFieldIsTakenAsUnset) {
    BancoInto b{PaginaInto::Intonazione};
    b.PonStato("30");
    b.Vai(1);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.into.IntoBasso, 24);
}

TEST(MemoriaIntonazione, EnteringThePageEndsWhatIntervalsAndChordsLeft) {
    BancoInto b{PaginaInto::Intervalli};
    b.Fa(1, Fatto::MouseDown, "LblSemi4");
    b.Clicca(5, "mnuRicTa");
    b.Tasto(6, 10);
    b.Clicca(7, "mnuNotA");
    b.Vai(8);
    EXPECT_EQ(b.Note(7), (Suonati{"0.0 60 0", "0.0 64 0"}));
    EXPECT_EQ(b.into.AccAlto, -1);
    EXPECT_EQ(b.Segnati(), (std::vector{24, 33, 36}));
    EXPECT_TRUE(b.Accesi().empty());
}

}  // namespace corvana::prova
