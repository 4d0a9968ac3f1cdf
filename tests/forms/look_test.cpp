// The look that is taken before time passes, when events were delivered.
#include <gtest/gtest.h>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

struct BancoSguardo : Banco {
    BancoSguardo() {
        pompa.PonSguardo([this] { sguardi.push_back(fatti); });
        pompa.PonConsegna([this](const Evento& e) {
            ++fatti;
            if (e.valore > 0) {
                pompa.Attendi(e.valore);
                ++fatti;
            }
        });
    }
    /// An event whose handler does something, and after that many seconds something more.
    void Aggiungi(int secondi = 0) {
        Evento e;
        e.valore = secondi;
        coda.Aggiungi(e);
    }

    int fatti = 0;             ///< what the handlers did
    std::vector<int> sguardi;  ///< and how much of it each look saw
};

using Visti = std::vector<int>;

}  // namespace

TEST(Sguardo, ItIsTakenOnceBeforeTimePassesHoweverManyEventsWereDelivered) {
    BancoSguardo b;
    b.Aggiungi();
    b.Aggiungi();
    b.pompa.PompaEventi();
    EXPECT_EQ(b.sguardi, Visti{});
    b.pompa.Attendi(1);
    EXPECT_EQ(b.sguardi, Visti{2});
    b.pompa.Attendi(1);
    b.pompa.Sleep(1);
    EXPECT_EQ(b.sguardi, Visti{2});
}

TEST(Sguardo, EachWayToWaitTakesIt) {
    for (const int modo : {0, 1, 2}) {
        BancoSguardo b;
        b.Aggiungi();
        b.pompa.PompaEventi();
        b.Quando(b.pompa.Adesso(), [&] { EXPECT_EQ(b.sguardi, Visti{1}); });
        if (modo == 0) b.pompa.Attendi(1);
        if (modo == 1) b.pompa.Sleep(1);
        b.Quando(b.pompa.Adesso() + 0.5, [&] { b.coda.Aggiungi({}); });
        if (modo == 2) b.pompa.AttendiEvento(b.pompa.Adesso() + 1);
        EXPECT_EQ(b.sguardi, Visti{1}) << modo;
    }
}

TEST(Sguardo, AWaitWithinAHandlerTakesItAndTheNextOneSeesWhatItDidBehindThat) {
    BancoSguardo b;
    b.Aggiungi(5);
    b.pompa.PompaEventi();
    EXPECT_EQ(b.sguardi, Visti{1});
    b.pompa.Attendi(1);
    EXPECT_EQ(b.sguardi, (Visti{1, 2}));
}

TEST(Sguardo, AWaitThatDoesntWaitDoesntTakeIt) {
    BancoSguardo b;
    b.Aggiungi();
    b.pompa.PompaEventi();
    b.pompa.Attendi(0);
    EXPECT_EQ(b.sguardi, Visti{});
}

TEST(Sguardo, EachBoxTakesItBeforeItOpens) {
    for (const int quale : {0, 1, 2}) {
        BancoSguardo b;
        b.Aggiungi();
        b.pompa.PompaEventi();
        b.riquadri.durante = [&](const std::string&) { EXPECT_EQ(b.sguardi, Visti{1}); };
        b.riquadri.risposte = {true};
        b.riquadri.testi = {"nome"};
        switch (quale) {
            case 0: b.riquadriVisti.MsgBox("detto"); break;
            case 1: EXPECT_TRUE(b.riquadriVisti.Domanda("detto")); break;
            default: EXPECT_EQ(b.riquadriVisti.InputBox("detto", "titolo", "p"), "nome");
        }
        EXPECT_EQ(b.sguardi, Visti{1}) << quale;
        EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"detto"});
    }
}

}  // namespace corvana::prova
