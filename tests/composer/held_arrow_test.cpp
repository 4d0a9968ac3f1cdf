// An arrow that is held down: no hold outlives its button.
#include "tests/composer/arrows_rig.h"

namespace corvana::prova {

TEST(FrecceTenute, TheReleaseCountsWhereverThePointerIs) {
    for (const char* dove : {"Regolo", "lblid7", "cmdPlay", ""}) {
        BancoFrecce b;
        b.PonTratto(soprano, 1, 10);
        b.Mouse(1, Fatto::MouseDown, "lblid1");
        b.Mouse(1.25, Fatto::MouseUp, dove);
        b.Ferma(1.5, 9, {"2", "10"});
        b.Esegui(10);
    }
}

TEST(FrecceTenute, ALossOfTheKeyboardEndsTheHold) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Mouse(1, Fatto::MouseDown, "lblid1");
    b.Fa(1.25, Fatto::FuocoPerso, "");
    b.Ferma(1.5, 9, {"2", "10"});
    b.Esegui(10);
}

TEST(FrecceTenute, ADisabledOrHiddenArrowStillSeesItsRelease) {
    for (const bool nasconde : {false, true}) {
        BancoFrecce b;
        b.PonTratto(soprano, 1, 10);
        b.Tieni(1, 1.45, 1);
        b.Quando(1.1, [&] {
            if (nasconde)
                b.finestra.tratti.lblid[1].Visible = false;
            else
                b.finestra.tratti.lblid[1].Enabled = false;
        });
        b.Ferma(1.7, 9, {"3", "10"});
        b.Esegui(10);
    }
}

TEST(FrecceTenute, AWindowThatOpensOverItEndsTheHold) {
    struct Altra final : Form {
        Altra() : Form("altra") {}
    } altra;
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Mouse(1, Fatto::MouseDown, "lblid1");
    b.finestra.stato.lblNome.Click = [&] { b.finestre.MostraModale(altra); };
    b.Clicca(1.25, "lblNome");
    b.Fa(3, Fatto::Chiudi, "");
    b.Ferma(4, 9, {"2", "10"});
    b.Esegui(10);
}

TEST(FrecceTenute, TheClosingOfTheWindowEndsTheHoldAndNothingMovesBehindIt) {
    for (const auto& [quando, prima] :
         std::vector<std::pair<double, const char*>>{{1.05, "1"}, {1.15, "1"}, {1.25, "2"}}) {
        BancoFrecce b;
        b.PonTratto(soprano, 1, 10);
        b.Mouse(1, Fatto::MouseDown, "lblid1");
        b.Fa(quando, Fatto::Chiudi, "");
        b.Esegui(10);
        EXPECT_LT(b.orologio.Adesso(), 2) << "the window's loop has ended";
        EXPECT_FALSE(b.Premuta());
        EXPECT_EQ(b.Caselle(soprano), (Estremi{prima, "10"})) << quando;
        EXPECT_EQ(b.finestre.Davanti(), nullptr);
    }
}

TEST(FrecceTenute, TheEndOfTheProgramEndsTheHold) {
    BancoFrecce b;
    b.Mouse(1, Fatto::MouseDown, "lblid1");
    b.Quando(1.55, [&] { b.coda.ChiediFine(); });
    b.Fine(1000);
    EXPECT_FALSE(
        b.SvolgiCopione([&] { b.finestre.FinoAllUltima([&] { b.finestra.CicloResidente(); }); }));
    EXPECT_LT(b.orologio.Adesso(), 1.7);
    EXPECT_FALSE(b.Premuta());
}

TEST(FrecceTenute, AFaultEndsTheHold) {
    BancoFrecce b;
    b.finestra.voci.lblNfineT.Text = "abc";
    b.Mouse(1, Fatto::MouseDown, "lblid10");
    b.Quando(2, [&] { EXPECT_FALSE(b.Premuta()); });
    b.Esegui(5);
    ASSERT_EQ(b.riquadri.messaggi.size(), 1U);
    EXPECT_TRUE(b.riquadri.messaggi.front().starts_with("13\r\n"));
}

TEST(FrecceTenute, OfTwoButtonsAtOnceTheFirstReleaseEndsBothHolds) {
    for (const int primo : {bottoneSinistro, bottoneDestro}) {
        BancoFrecce b;
        b.PonTratto(soprano, 1, 10);
        b.Mouse(1, Fatto::MouseDown, "lblid1", bottoneSinistro);
        b.Mouse(1.45, Fatto::MouseDown, "lblid1", bottoneDestro);
        b.Mouse(1.55, Fatto::MouseUp, "lblid1", primo);
        Estremi fermata;
        b.Quando(2, [&] {
            EXPECT_FALSE(b.Premuta());
            fermata = b.Caselle(soprano);
        });
        b.Esegui(10);
        EXPECT_EQ(b.Caselle(soprano), fermata);
    }
}

TEST(FrecceTenute, AnotherArrowAtTheSameInstantAsTheReleaseIsAHoldOfItsOwn) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Tieni(1, 1.45, 1);
    b.Tieni(1.45, 1.7, 2);
    b.Ferma(2.2, 9, {"3", "9"});
    b.Esegui(10);
}

TEST(FrecceTenute, ADoubleClickThatNoReleaseFollowsIsOneStepAndNoHold) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    b.Fa(1, Fatto::DblClick, "lblid1");
    b.Ferma(1.1, 9, {"2", "10"});
    b.Esegui(10);
}

TEST(FrecceTenute, PressedWithTheKeyboardItIsOneStep) {
    BancoFrecce b;
    b.PonTratto(soprano, 1, 10);
    for (const Etichetta& freccia : b.finestra.tratti.lblid)
        EXPECT_TRUE(freccia.Ascolti() & ascoltaClick) << freccia.Name << " would be double clicked";
    b.Insieme(1,
              {{Fatto::MouseDown, "lblid1"}, {Fatto::MouseUp, "lblid1"}, {Fatto::Click, "lblid1"}});
    b.Ferma(1.5, 9, {"2", "10"});
    b.Esegui(10);
}

TEST(FrecceTenute, DuringAPlayTheHoldEndsAndThePlayGoesOn) {
    BancoFrecce b;
    b.Clicca(1, "cmdPlay");
    b.Tieni(2, 2.5, 4);
    b.Quando(3, [&] {
        EXPECT_FALSE(b.Premuta());
        EXPECT_TRUE(b.finestra.stato.inEsecuzione);
    });
    b.Esegui(30);
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

}  // namespace corvana::prova
