// How the learner chooses the roots of the chords.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

/// With the roots 10 to 20 chosen by 3.
struct BancoConRadici : BancoInto {
    BancoConRadici() : BancoInto({PaginaInto::Accordi}) {
        Tasto(1, 10);
        Tasto(2, 20);
    }
};

struct BancoRadici : BancoInto {
    explicit BancoRadici(const std::vector<int>& tasti) : BancoInto({PaginaInto::Accordi}) {
        double t = 1;
        for (const int tasto : tasti)
            Tasto(t++, tasto);
        Vai(t);
    }
    std::string Limiti() const {
        return std::to_string(into.AccBasso) + ".." + std::to_string(into.AccAlto);
    }
};

using Riquadri = std::vector<std::string>;
using Tasti = std::vector<int>;

}  // namespace

TEST(EstensioneAccordi, AtTheEntryThereIsNone) {
    const BancoRadici b({});
    EXPECT_EQ(b.Limiti(), "-1..-1");
    EXPECT_EQ(b.Passo(), "primo limite");
    EXPECT_FALSE(b.Visibile("ComdRacStart"));
    EXPECT_FALSE(b.Visibile("cmdRes"));
    EXPECT_EQ(b.Note(), (Suonati{"0.0 36 0", "0.0 0 0", "0.0 0 0"}));
}

TEST(EstensioneAccordi, EnteredFromAnotherPageItsFirstLimitIsAskedFor) {
    BancoInto b{PaginaInto::Intervalli};
    b.Clicca(1, "mnuRicTa");
    b.Vai(2);
    EXPECT_EQ(b.Passo(), "primo limite");
}

TEST(EstensioneAccordi, EnteredAnewFromARunOfIntervalsByTheInstrumentsItEndsThatRun) {
    BancoInto b{PaginaInto::Accordi};
    b.Estrai(4, 14);
    b.Clicca(1, "mnuRint");
    b.Clicca(2, "CmdIntStart");
    b.Clicca(6, "mnuSs");
    b.Quando(5, [&] { EXPECT_TRUE(b.finestra.telaio.IntInCorso); });
    b.Vai(7);
    EXPECT_TRUE(b.Visibile("frmRacc"));
    EXPECT_FALSE(b.finestra.telaio.IntInCorso);
}

TEST(EstensioneAccordi, TwoKeysInAnyOrderMakeItAndStartComesUp) {
    for (const Tasti& tasti : {Tasti{10, 20}, Tasti{20, 10}}) {
        const BancoRadici b(tasti);
        EXPECT_EQ(b.Limiti(), "10..20");
        EXPECT_EQ(b.Segnati(), (Tasti{10, 20}));
        EXPECT_EQ(b.Passo(), "premi start");
        EXPECT_TRUE(b.Visibile("ComdRacStart"));
    }
}

TEST(EstensioneAccordi, AfterOneKeyTheSecondIsAskedForAndThereIsNoStart) {
    const BancoRadici b({51});
    EXPECT_EQ(b.Passo(), "secondo limite");
    EXPECT_EQ(b.Segnati(), Tasti{51});
    EXPECT_FALSE(b.Visibile("ComdRacStart"));
}

TEST(EstensioneAccordi, TheSameKeyTwiceIsASingleRoot) {
    const BancoRadici b({30, 30});
    EXPECT_EQ(b.Limiti(), "30..30");
    EXPECT_EQ(b.Passo(), "premi start");
}

TEST(EstensioneAccordi, AKeyThatIsTooHighIsRefusedAsTheFirstAndAsTheSecond) {
    const BancoRadici prima({52});
    EXPECT_EQ(prima.riquadri.messaggi, Riquadri{"troppo alto"});
    EXPECT_EQ(prima.Passo(), "primo limite");
    EXPECT_TRUE(prima.Segnati().empty());
    const BancoRadici poi({30, 52, 59, 20});
    EXPECT_EQ(poi.riquadri.messaggi, (Riquadri{"troppo alto", "troppo alto"}));
    EXPECT_EQ(poi.Limiti(), "20..30") << "a lower key still completes the range";
}

TEST(EstensioneAccordi, OnceItStandsAClickAsksForStartAndDuringARunItIsNothing) {
    BancoConRadici b;
    b.Tasto(3, 30);
    b.Quando(3.5, [&] { EXPECT_EQ(b.riquadri.messaggi, Riquadri{"premi start"}); });
    b.Clicca(4, "ComdRacStart");
    b.Tasto(5, 30);
    b.Clicca(6, "ComdRacStart");
    b.Tasto(7, 30);
    b.Vai(8);
    EXPECT_EQ(b.riquadri.messaggi, (Riquadri{"premi start", "premi start"}));
}

TEST(EstensioneAccordi, AfterAResetTheStartCanBeSeenAndDoesNothingUntilAKeyHidesIt) {
    BancoConRadici b;
    b.Clicca(3, "ComdRacStart");
    b.Clicca(4, "ComdRacStart");
    b.Clicca(5, "cmdRes");
    b.Clicca(6, "ComdRacStart");
    b.Quando(7, [&] {
        EXPECT_TRUE(b.Visibile("ComdRacStart"));
        EXPECT_EQ(b.Testo("ComdRacStart"), "Start");
        EXPECT_EQ(b.Passo(), "fermato");
        EXPECT_TRUE(b.Segnati().empty());
        EXPECT_TRUE(b.Note(4.5).empty());
    });
    b.Tasto(8, 5);
    b.Quando(8.5, [&] { EXPECT_FALSE(b.Visibile("ComdRacStart")); });
    b.Tasto(9, 6);
    b.Vai(10);
    EXPECT_EQ(b.Segnati(), (Tasti{5, 6}));
    EXPECT_TRUE(b.Visibile("ComdRacStart"));
}

TEST(EstensioneAccordi, ANewEntryTakesTheRangeAwayAndKeepsWhatIsExcluded) {
    BancoConRadici b;
    b.Clicca(2.5, "EsclTa2");
    b.Clicca(3, "mnuNotA");
    b.Clicca(4, "mnuRicTa");
    b.Vai(5);
    EXPECT_EQ(b.into.AccBasso, -1);
    EXPECT_EQ(b.into.IntoBasso, -1);
    EXPECT_TRUE(b.Segnati().empty());
    EXPECT_EQ(b.Fondo("EsclTa2"), Rgb(255, 0, 0));
    EXPECT_FALSE(b.Visibile("frInto"));
}

}  // namespace corvana::prova
