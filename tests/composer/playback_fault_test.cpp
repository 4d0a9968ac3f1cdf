// Plays of what no editor makes but a file may hold: they end with a fault, and all is put back.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoGuasto : BancoComposer {
    /// Plays by a click; the boxes that it made.
    std::vector<std::string> Messaggi() {
        riquadri.messaggi.clear();
        specchio.fuochi.clear();
        Suona([this] {
            Clicca(pompa.Adesso(), "cmdPlay");
            pompa.AttendiEvento(pompa.Adesso() + 1);
        });
        return riquadri.messaggi;
    }
    /// What isn't as before a play.
    std::vector<std::string> Rimasti() const {
        std::vector<std::string> rimasti;
        const auto esigi = [&](bool vero, const char* cosa) {
            if (!vero) rimasti.emplace_back(cosa);
        };
        const auto& f = finestra;
        esigi(f.play.cmdPlay.Caption() == "Play", "caption");
        esigi(f.play.cmdPlay.BackColor() == f.stato.lblNe.BackColor(), "colour");
        esigi(!f.stato.inEsecuzione && !f.stato.melodia.inCaricamento, "flags");
        esigi(f.modifica.cmdCanc.Enabled() && f.riferimenti.cmdAddBm.Enabled() &&
                  f.incolla.cmdPaste.Enabled(),
              "commands");
        esigi(f.menu.file.Enabled() && f.inserimento.cmdInsPausa.Enabled() &&
                  f.inserimento.cmdInsNota.Enabled(),
              "more commands");
        esigi(!f.voci.lblNini.Locked() && !f.voci.lblNfineB.Locked(), "boxes");
        esigi(f.stato.lblNe.Caption().empty() && f.stato.lblPnn.Caption().empty(), "display");
        esigi(f.play.Cursore.Left() == 2190, "cursor");
        esigi(uscita.NoteAccese().empty(), "notes");
        esigi(std::none_of(f.tasti.lb.begin(), f.tasti.lb.end(),
                           [](const Etichetta& t) { return t.BackStyle() == fondoOpaco; }),
              "keys");
        esigi(specchio.fuochi == std::vector<std::string>{"cmdPlay"}, "focus");
        return rimasti;
    }
};

using Testi = std::vector<std::string>;
const Testi tipo = {"13\r\nType mismatch"};
const Testi traboccamento = {"6\r\nOverflow"};
const Testi indice = {"9\r\nSubscript out of range"};

}  // namespace

TEST(GuastoRiproduzione, ANoteThatIsNoNumberEndsThePlayWhereItStandsAndAllIsPutBack) {
    for (const auto& [token, atteso] : std::vector<std::pair<std::string, Testi>>{
             {"x", tipo}, {"", tipo}, {"6 0", tipo}, {"40000", traboccamento}}) {
        BancoGuasto b;
        b.Voce(soprano, "60;62;", "0.25");
        b.Voce(contralto, "48;", "4");
        b.melodia.voci[soprano].noteVoce[1] = token;
        EXPECT_EQ(b.Messaggi(), atteso) << token;
        EXPECT_EQ(b.TickPassati(), 8) << token;
        EXPECT_EQ(b.BancoComposer::Messaggi(),
                  (Mandati{{1, 1, 60, 96}, {1, 2, 48, 96}, {8, 1, 60, 0}}));
        EXPECT_EQ(b.Rimasti(), Testi{}) << token;
    }
}

TEST(GuastoRiproduzione, ADurationThatIsNoNumberEndsItBeforeTheFirstTick) {
    for (const auto& [token, atteso] : std::vector<std::pair<std::string, Testi>>{
             {"x", tipo}, {"", tipo}, {"nan", tipo}, {"inf", tipo}, {"1E+999", traboccamento}}) {
        BancoGuasto b;
        b.Voce(soprano, "60;62;", "0.25");
        b.melodia.voci[soprano].durateVoce[1] = token;
        EXPECT_EQ(b.Messaggi(), atteso) << token;
        EXPECT_EQ(b.TickPassati(), 0) << token;
        EXPECT_TRUE(b.BancoComposer::Messaggi().empty()) << token;
        EXPECT_EQ(b.Rimasti(), Testi{}) << token;
    }
}

TEST(GuastoRiproduzione, ADurationChangedDuringThePlayIntoNoNumberEndsItThere) {
    BancoGuasto b;
    b.Voce(soprano, "60;62;64;", "0.25");
    b.NelTick(10, [&] { b.melodia.voci[soprano].durateVoce[2] = "x"; });
    EXPECT_EQ(b.Messaggi(), tipo);
    EXPECT_EQ(b.TickPassati(), 16);
    EXPECT_EQ(b.Rimasti(), Testi{});
}

TEST(GuastoRiproduzione, ARangeBeyondTheMelodyEndsItBeforeTheFirstTick) {
    for (const auto& [prima, ultima] : std::vector<std::pair<int, int>>{{2, 4}, {2, 500}, {4, 4}}) {
        BancoGuasto b;
        b.Voce(soprano, "60;62;64;", "0.25");
        b.Tratto(prima, ultima);
        // The first thing that the sum of the ticks meets is the empty text behind the last note.
        EXPECT_EQ(b.Messaggi(), tipo) << ultima;
        EXPECT_EQ(b.TickPassati(), 0) << ultima;
        EXPECT_EQ(b.Rimasti(), Testi{}) << ultima;
    }
}

TEST(GuastoRiproduzione, ARangeThatBeginsBeforeTheFirstNoteEndsInItsFirstTick) {
    BancoGuasto b;
    b.Voce(soprano, "60;62;64;", "0.25");
    b.Tratto(0, 2);
    EXPECT_EQ(b.Messaggi(), indice);
    EXPECT_EQ(b.TickPassati(), 0);
    EXPECT_EQ(b.Rimasti(), Testi{});
}

TEST(GuastoRiproduzione, TheNextPlayIsAsIfNothingHadBeen) {
    BancoGuasto b;
    b.Voce(soprano, "60;62;", "0.25");
    b.melodia.voci[soprano].noteVoce[1] = "x";
    EXPECT_EQ(b.Messaggi(), tipo);
    b.melodia.voci[soprano].noteVoce[1] = "62";
    EXPECT_EQ(b.Messaggi(), Testi{});
    EXPECT_EQ(b.BancoComposer::Messaggi(),
              (Mandati{{1, 1, 60, 96}, {8, 1, 60, 0}, {9, 1, 62, 96}, {16, 1, 62, 0}}));
}

TEST(GuastoRiproduzione, AFaultInARepeatedRoundEndsThePlay) {
    BancoGuasto b;
    b.Voce(soprano, "60;62;", "0.25");
    b.finestra.play.chekLoop.Value = true;
    b.NelTick(12, [&] { b.melodia.voci[soprano].noteVoce[0] = "x"; });
    b.Quando(1000, [] {});
    EXPECT_EQ(b.Messaggi(), tipo);
    EXPECT_EQ(b.Rimasti(), Testi{});
}

TEST(GuastoRiproduzione, AVoiceShorterInOneOfItsArraysPlaysTheNotesThatAreWhole) {
    BancoGuasto b;
    b.Voce(soprano, "60;62;64;", "0.25;0.25;", "n;n;n;");
    EXPECT_EQ(b.Messaggi(), Testi{});
    EXPECT_EQ(b.BancoComposer::Messaggi(),
              (Mandati{{1, 1, 60, 96}, {8, 1, 60, 0}, {9, 1, 62, 96}, {16, 1, 62, 0}}));
    EXPECT_EQ(b.Rimasti(), Testi{});
}

TEST(GuastoRiproduzione, AnyOtherExceptionPutsAllBackToo) {
    for (const int tick : {3, 20}) {
        BancoGuasto b;
        b.Voce(soprano, "60;62;", "0.25");
        // Past the script, whose errors aren't the program's; a tick lasts 31 ms.
        b.orologio.Quando(b.pompa.Adesso() + (tick - 0.5) * 0.031,
                          [] { throw std::out_of_range("at"); });
        b.finestra.play.chekLoop.Value = true;
        EXPECT_EQ(b.Messaggi(), Testi{"51\r\nat"});
        EXPECT_EQ(b.Rimasti(), Testi{});
    }
}

TEST(GuastoRiproduzione, NotesOffTheKeyboardAreReleasedHoweverThePlayEnds) {
    for (const int fermata : {1, 3, 8, 9, 11, 16, 20}) {
        BancoGuasto b;
        // A gate that outlasts its note joins it to the next.
        b.Voce(soprano, "20;21;00;60;110;", "0.25;0.125;0.25;0.125;1;", "n;x;n;x;n;");
        b.CliccaNelTick(fermata, "cmdPlay");
        b.Suona();
        EXPECT_EQ(b.TickPassati(), fermata);
        EXPECT_TRUE(b.uscita.NoteAccese().empty()) << fermata;
    }
}

}  // namespace corvana::prova
