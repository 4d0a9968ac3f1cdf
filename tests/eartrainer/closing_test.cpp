// When the window closes, when it doesn't, and what it leaves behind.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

using P = PaginaInto;

/// Does `mosse`, one a second from 1 on, asks the window to close at `chiudi`, and tells whether it
/// stayed.
bool Resta(P pagina, const std::vector<std::string>& mosse, double chiudi) {
    BancoInto b{pagina};
    b.Estrai(4, 14);
    double t = 1;
    for (const std::string& controllo : mosse)
        b.Clicca(t++, controllo);
    b.Chiudi(chiudi);
    const bool resta = b.Vai(chiudi + 30);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    return resta;
}

}  // namespace

TEST(ChiusuraInto, IsRefusedWithoutAMessageWhileADrillRunsButNotThatOfTonality) {
    EXPECT_TRUE(Resta(P::Intonazione, {"IntoStart"}, 10));
    EXPECT_TRUE(Resta(P::Intervalli, {"CmdIntStart"}, 10));
    EXPECT_TRUE(Resta(P::Accordi, {"lb10", "lb20", "ComdRacStart"}, 10));
    EXPECT_TRUE(Resta(P::Tasti, {"cmdRicTasto"}, 10));
    EXPECT_FALSE(Resta(P::Tonalita, {"cmdT"}, 10));
}

TEST(ChiusuraInto, IsPossibleOnEveryPageAtRest) {
    for (const P pagina : pagineInto)
        EXPECT_FALSE(Resta(pagina, {}, 1));
}

TEST(ChiusuraInto, DuringAFigureOfTonalityWaitsForItsEnd) {
    BancoInto b{P::Tonalita};
    b.Clicca(1, "cmdT");
    b.Chiudi(2);
    b.Quando(6.8, [&] { EXPECT_TRUE(b.globali.IntoAperto); });
    EXPECT_FALSE(b.Vai(8));
}

TEST(ChiusuraInto, IsRefusedWhileAFigureOfTonalitySounds) {
    BancoInto b{P::Tonalita};
    b.finestra.tonalita.ToInCorso = true;
    b.Chiudi(1);
    EXPECT_TRUE(b.Vai(2));
}

TEST(ChiusuraInto, IsRefusedWhileTheReferenceIsBeingChosenAndNotBefore) {
    const std::vector<std::string> imposta = {"IntoStart", "IntoStart", "cmdReimposta"};
    auto mosse = imposta;
    EXPECT_FALSE(Resta(P::Intonazione, mosse, 20));
    mosse.emplace_back("lb10");
    EXPECT_FALSE(Resta(P::Intonazione, mosse, 20));
    mosse.emplace_back("lb20");
    EXPECT_TRUE(Resta(P::Intonazione, mosse, 20));
}

TEST(ChiusuraInto, WithNoLanguageFileTheEmptyPromptsAreComparedByTheirValue) {
    BancoInto b{P::Intervalli};
    b.globali.testi = {};
    b.Chiudi(1);
    EXPECT_TRUE(b.Vai(2)) << "an empty prompt is that of the reference";
    BancoInto altro{P::Tasti};
    altro.globali.testi = {};
    altro.Chiudi(1);
    EXPECT_FALSE(altro.Vai(2)) << "it shows the name of the page";
}

TEST(ChiusuraInto, TheEndOfTheProgramAsksNobodyStoresTheStateAndSilencesTheRun) {
    BancoInto b{P::Accordi};
    b.Tasto(1, 10);
    b.Tasto(2, 20);
    b.Clicca(3, "ComdRacStart");
    b.Quando(4, [&] {
        EXPECT_EQ(b.uscita.NoteAccese().size(), 3U);
        b.coda.ChiediFine();
    });
    b.Vai(5);
    EXPECT_FALSE(b.globali.IntoAperto);
    EXPECT_EQ(b.Stato(), "24;36;69;0;True;40");
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(ChiusuraInto, GivesTheMainWindowItsInstrumentBack) {
    BancoInto b{P::Intonazione};
    b.Chiudi(1);
    b.Vai(2);
    EXPECT_EQ(b.Programmi(), (std::vector{0, 40}));
    EXPECT_FALSE(b.globali.IntoAperto);
}

TEST(ChiusuraInto, StoresTheOrganWhichComesBackAtTheNextVisitOfIntonation) {
    BancoInto b{P::Intonazione};
    b.Clicca(1, "mnuOrgano");
    b.Chiudi(2);
    b.Vai(3);
    EXPECT_EQ(b.Stato(), "24;36;69;0;False;16");
    BancoInto dopo{P::Intonazione};
    dopo.PonStato(b.Stato());
    dopo.Vai(1);
    EXPECT_EQ(dopo.into.StrumentoInto, 16);
    EXPECT_EQ(dopo.Programmi(), std::vector{16});
}

TEST(ChiusuraInto, StoresBothSwitchesTheOtherWayRound) {
    BancoInto b{P::Intonazione};
    b.Quando(0.5, [&] {
        EXPECT_EQ(b.into.ConRiferimento, 1);
        EXPECT_TRUE(b.into.SoloBianchi);
    });
    b.Clicca(1, "lblMod");
    b.Clicca(2, "lblSolotb");
    b.Chiudi(3);
    b.Vai(4);
    EXPECT_EQ(b.Stato(), "24;36;69;1;True;0");
    BancoInto dopo{P::Intonazione};
    dopo.PonStato(b.Stato());
    dopo.Vai(1);
    EXPECT_EQ(dopo.into.ConRiferimento, 0);
    EXPECT_FALSE(dopo.into.SoloBianchi);
}

TEST(ChiusuraInto, FromAPageWithoutARangeStores24And36And69) {
    BancoInto b{P::Accordi};
    b.Chiudi(1);
    b.Vai(2);
    EXPECT_EQ(b.Stato(), "24;36;69;0;True;40");
}

TEST(ChiusuraInto, SilencesWhatAHeldKeyOrAHeldIntervalWouldLeaveSounding) {
    BancoInto b{P::Intervalli};
    b.Premi(1, 'Z');
    b.Premi(2, vk::virgola);
    for (int i = 0; i < 3; ++i)
        b.Clicca(3, "lblModo");
    b.Fa(4, Fatto::MouseDown, "LblSemi4");
    b.Quando(4.5, [&] { EXPECT_FALSE(b.uscita.NoteAccese().empty()); });
    b.Chiudi(5);
    EXPECT_FALSE(b.Vai(9));
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

}  // namespace corvana::prova
