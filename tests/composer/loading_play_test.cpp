// The play that a load starts.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

struct BancoAscolto : BancoComposer {
    BancoAscolto() { finestra.archivio.Fr2.Visible = true; }
    void Scelta(const Linee& linee) {
        PonFile("song", FileDi(linee));
        uscita.messaggi.clear();
    }
    void Carica(const Linee& linee) {
        Scelta(linee);
        Subito(Fatto::Click, "cmdEseguiFile");
    }
    /// Notes struck on a channel.
    std::vector<int> Suonate(int canale) const {
        std::vector<int> note;
        for (const auto& [nota, velocita] : uscita.ConStato(0x8F + canale))
            if (velocita > 0) note.push_back(nota);
        return note;
    }
};

}  // namespace

TEST(CaricaESuona, ALoadPlaysTheMelodyAtOnceToItsEnd) {
    BancoAscolto b;
    const double inizio = b.pompa.Adesso();
    b.Carica(dueVoci);
    EXPECT_EQ(b.Suonate(1), (std::vector<int>{60, 62, 64, 65}));
    EXPECT_EQ(b.Suonate(4), (std::vector<int>{48, 43}));
    EXPECT_TRUE(b.Suonate(2).empty() && b.Suonate(3).empty());
    EXPECT_NEAR(b.pompa.Adesso() - inizio, 4 * 32 * 0.031, 1e-6);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CaricaESuona, TheMelodysTempoIsTheOneItPlaysAt) {
    BancoAscolto b;
    Linee linee = dueVoci;
    linee[3] = " 120 ";
    const double inizio = b.pompa.Adesso();
    b.Carica(linee);
    EXPECT_NEAR(b.pompa.Adesso() - inizio, 4 * 32 * 0.015, 1e-6);
}

TEST(CaricaESuona, InCaricamentoFallsAtTheEndOfThatPlayAndUntilThenNothingIsMarked) {
    BancoAscolto b;
    b.NelTick(20, [&] {
        EXPECT_TRUE(b.melodia.inCaricamento);
        b.finestra.mix.SceltaStrum(40);
    });
    b.Fa(b.pompa.Adesso() + 1, Fatto::Change, "Slider1", 100);
    b.NelTick(100, [&] {
        EXPECT_TRUE(b.melodia.inCaricamento);
        EXPECT_EQ(b.melodia.tempo, 100);
    });
    b.Carica(dueVoci);
    EXPECT_FALSE(b.melodia.inCaricamento);
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
    b.Subito(Fatto::Change, "Slider1", 110);
    EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
}

TEST(CaricaESuona, AStopEndsThePlayAndInCaricamentoWithIt) {
    BancoAscolto b;
    b.CliccaNelTick(10, "cmdPlay");
    b.Carica(dueVoci);
    EXPECT_FALSE(b.melodia.inCaricamento);
    EXPECT_EQ(b.Suonate(1), std::vector<int>{60});
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(CaricaESuona, ALoadDuringAPlayStopsItAndPlaysTheNewMelodyAlone) {
    BancoAscolto b;
    b.Voce(soprano, "72;74;76;", "4");
    b.Scelta(dueVoci);
    b.CliccaNelTick(10, "cmdEseguiFile");
    b.Suona();
    EXPECT_EQ(b.Suonate(1), (std::vector<int>{72, 60, 62, 64, 65}));
    EXPECT_EQ(b.TickPassati(), 10 + 4 * 32);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    EXPECT_EQ(b.melodia.voci[soprano].testoNote, "60;62;64;65;");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "4");
}

TEST(CaricaESuona, AMelodyWithoutSopranoIsTakenAndDoesntPlay) {
    BancoAscolto b;
    b.Carica({"", "", "", " 60 ", " 16 ", "basso;32", "48;", "2;", "n;"});
    EXPECT_EQ(b.melodia.voci[3].testoNote, "48;");
    EXPECT_TRUE(b.Suonate(4).empty());
    EXPECT_TRUE(b.melodia.inCaricamento);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(CaricaESuona, ALoadFromAnotherVoiceEndsOnTheSoprano) {
    BancoAscolto b;
    b.finestra.mix.VoceAttiva_Click(2);
    b.Carica(dueVoci);
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
    EXPECT_EQ(b.finestra.mix.VoceAttiva[soprano].BackColor(), Rgb(0, 255, 0));
    EXPECT_TRUE(b.finestra.riferimenti.cmdAddBm.Enabled());
}

}  // namespace corvana::prova
