#include "forms/handler.h"

#include <gtest/gtest.h>

#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;
using Cambi = std::vector<SpecchioRegistrato::Cambio>;

}  // namespace

TEST(Gestore, IsAttachedReplacedAndTakenAwayWhileTheWindowIsShown) {
    BancoFinestra b;
    Diario visto;
    const auto clicca = [&] {
        b.Accoda(Fatto::Click, "figura");
        b.Consegna();
    };
    clicca();
    b.finestra.figura.Click = [&] { visto.emplace_back("first"); };
    clicca();
    b.finestra.figura.Click = [&] { visto.emplace_back("second"); };
    clicca();
    b.finestra.figura.Click = nullptr;
    clicca();
    EXPECT_EQ(visto, (Diario{"first", "second"}));
}

TEST(Gestore, TheFaceIsToldWhenAnybodyBeginsOrCeasesToListen) {
    BancoFinestra b;
    b.specchio.registra = true;
    Figura& figura = b.finestra.figura;
    figura.Click = [] {};
    figura.Click = [] { throw 1; };
    figura.MouseDown = [](const Evento&) {};
    figura.MouseMove = [](const Evento&) {};
    figura.Click = nullptr;
    figura.Click = nullptr;
    figura.DblClick = [] {};
    EXPECT_EQ(b.specchio.cambi, (Cambi{{"figura", &Valori::Ascolti, 1},
                                       {"figura", &Valori::Ascolti, 3},
                                       {"figura", &Valori::Ascolti, 7},
                                       {"figura", &Valori::Ascolti, 6},
                                       {"figura", &Valori::Ascolti, 14}}));
}

TEST(Gestore, OfWhatTheFaceNeedntKnowItIsntTold) {
    BancoFinestra b;
    b.specchio.registra = true;
    b.finestra.figura.Change = b.finestra.figura.Scroll = [] {};
    b.finestra.figura.MouseUp = [](const Evento&) {};
    EXPECT_TRUE(b.specchio.cambi.empty());
}

TEST(Gestore, MayTakeItselfAwayWhileItRuns) {
    BancoFinestra b;
    Diario visto;
    const std::string lungo(100, 'x');
    b.finestra.figura.Click = [&, lungo] {
        b.finestra.figura.Click = nullptr;
        visto.push_back(lungo);
    };
    b.finestra.figura.Click();
    b.finestra.figura.Click();
    EXPECT_EQ(visto, (Diario{lungo}));
}

TEST(Gestore, OneForTwoControlsIsWrittenOnce) {
    BancoFinestra b;
    int volte = 0;
    b.finestra.figura.Click = b.finestra.dentro.Click = [&] { ++volte; };
    b.finestra.figura.Click();
    b.finestra.dentro.Click();
    EXPECT_EQ(volte, 2);
    b.finestra.dentro.Click = nullptr;
    EXPECT_TRUE(b.finestra.figura.Click);
    EXPECT_FALSE(b.finestra.dentro.Click);
}

}  // namespace corvana::prova
