// The melody played from within the instrument picker: what may be done meanwhile, and how it ends.
#include <gtest/gtest.h>

#include "tests/program/voice_picker_rig.h"

namespace corvana::prova {

namespace {

constexpr double finito = qui + BancoPicker::durataPlay + 0.1;

/// Many notes, so that it plays on for a long time.
void Allunga(BancoPicker& b) {
    std::string note;
    for (int i = 0; i < 100; ++i)
        note += "60;";
    b.Voce(soprano, note);
    b.composer->voci.MostraSopranoIntero();
}

}  // namespace

TEST(PlayPicker, PlaysTheWholeMelodyAndGivesTheWordBackAtItsEnd) {
    BancoPicker b;
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 1, [&] {
        EXPECT_EQ(b.Parola(), "Stop");
        EXPECT_TRUE(b.Suona());
        EXPECT_EQ(b.composer->play.cmdPlay.Caption(), "Stop");
    });
    b.Quando(finito, [&] {
        EXPECT_EQ(b.Parola(), "Play");
        EXPECT_FALSE(b.Suona());
        EXPECT_EQ(b.Note(1), (std::vector<int>{60, 62, 64, 65}));
        EXPECT_TRUE(b.uscita.NoteAccese().empty());
        EXPECT_TRUE(b.PickerDavanti());
        EXPECT_TRUE(b.composer->menu.file.Enabled());
    });
    EXPECT_TRUE(b.Vai(finito + 1));
}

TEST(PlayPicker, ThePictureBehindTheWordPlaysToo) {
    BancoPicker b;
    b.Clicca(qui, "cmdPlaybg");
    b.Quando(qui + 1, [&] { EXPECT_EQ(b.Parola(), "Stop"); });
    EXPECT_TRUE(b.Vai(finito));
}

TEST(PlayPicker, TheWindowBeneathDoesntTakeTheFocusAtTheEnd) {
    BancoPicker b;
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(finito, [&] { EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{}); });
    EXPECT_TRUE(b.Vai(finito + 1));
}

TEST(PlayPicker, WithoutASopranoThereIsNothingToPlay) {
    BancoPicker b([](BancoPicker& p) {
        p.Voce(soprano, "");
        p.Voce(2, "48;50;");
    });
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 0.5, [&] {
        EXPECT_EQ(b.Parola(), "Play");
        EXPECT_FALSE(b.Suona());
        EXPECT_TRUE(b.uscita.messaggi.empty());
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(PlayPicker, StopEndsItWithinATick) {
    BancoPicker b(Allunga);
    b.Clicca(qui, "cmdPlaySstru");
    b.Clicca(qui + 2, "cmdPlaySstru");
    b.Quando(qui + 2.05, [&] {
        EXPECT_EQ(b.Parola(), "Play");
        EXPECT_FALSE(b.Suona());
        EXPECT_TRUE(b.uscita.NoteAccese().empty());
        EXPECT_TRUE(b.PickerDavanti());
    });
    b.Clicca(qui + 3, "cmdPlaySstru");
    b.Quando(qui + 4, [&] { EXPECT_TRUE(b.Suona()) << "and it plays again"; });
    EXPECT_TRUE(b.Vai(qui + 5));
}

TEST(PlayPicker, NothingClosesItWhileItPlaysAndEverythingAfterwards) {
    const std::vector<std::pair<const char*, std::function<void(BancoPicker&, double)>>> vie = {
        {"esc", [](BancoPicker& b, double t) { b.Tasto(t, vk::esc); }},
        {"ok", [](BancoPicker& b, double t) { b.Clicca(t, "cmdEsci"); }},
        {"its picture", [](BancoPicker& b, double t) { b.Clicca(t, "cmdEscibg"); }},
        {"the window's cross", [](BancoPicker& b, double t) { b.Chiudi(t); }}};
    for (const auto& [nome, chiudi] : vie) {
        BancoPicker b(Allunga);
        b.Clicca(qui, "cmdPlaySstru");
        chiudi(b, qui + 1);
        b.Quando(qui + 2, [&, n = nome] {
            EXPECT_TRUE(b.PickerDavanti()) << n;
            EXPECT_TRUE(b.globali.PickerAperto) << n;
            EXPECT_TRUE(b.Suona()) << n;
        });
        b.Clicca(qui + 3, "cmdPlaySstru");
        chiudi(b, qui + 4);
        b.Quando(qui + 5, [&, n = nome] {
            EXPECT_TRUE(b.ComposerDavanti()) << n;
            EXPECT_FALSE(b.globali.PickerAperto) << n;
        });
        EXPECT_TRUE(b.Vai(qui + 6));
    }
}

TEST(PlayPicker, TheTestDoesNothingWhileItPlays) {
    BancoPicker b(Allunga);
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 1, [&] { b.uscita.messaggi.clear(); });
    b.Clicca(qui + 1.1, "cmdTest");
    b.Quando(qui + 4, [&] {
        for (const int nota : b.Note(1))
            EXPECT_EQ(nota, 60) << "only the melody";
        EXPECT_GE(b.Note(1).size(), 3U) << "and it goes on without a pause";
    });
    b.Clicca(qui + 5, "cmdPlaySstru");
    b.Clicca(qui + 6, "cmdTest");
    b.Quando(qui + 8, [&] {
        const auto note = b.Note(1);
        EXPECT_EQ(std::vector(note.end() - 5, note.end()), (std::vector<int>{71, 72, 69, 64, 69}));
    });
    EXPECT_TRUE(b.Vai(qui + 9));
}

TEST(PlayPicker, ARowChosenWhileItPlaysIsHeardAtOnce) {
    BancoPicker b(Allunga);
    b.Clicca(qui, "cmdPlaySstru");
    b.Clicca(qui + 1, "List1", 73);
    b.Quando(qui + 1.05, [&] {
        EXPECT_EQ(b.Programmi(), (std::vector<std::pair<int, int>>{{1, 73}}));
        EXPECT_EQ(b.DellaVoce(soprano).strumento, 73);
        EXPECT_TRUE(b.Suona());
    });
    EXPECT_TRUE(b.Vai(qui + 2));
}

TEST(PlayPicker, AVoiceChosenWhileItPlaysShowsItsNotesFromItsNextOneOn) {
    BancoPicker b([](BancoPicker& p) {
        Allunga(p);
        p.Voce(1, "48;50;52;53;55;");
    });
    b.Clicca(qui, "cmdPlaySstru");
    b.Clicca(qui + 1, "VoceAttiva1");
    b.Quando(qui + 2, [&] {
        EXPECT_EQ(b.composer->stato.melodia.voceAttiva, "contralto");
        EXPECT_EQ(b.composer->stato.lblNe.Caption(), "3");
        EXPECT_TRUE(b.Suona());
    });
    EXPECT_TRUE(b.Vai(qui + 3));
}

TEST(PlayPicker, ALoopGoesOnUntilStop) {
    BancoPicker b([](BancoPicker& p) { p.composer->play.chekLoop.Value = true; });
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 20, [&] {
        EXPECT_EQ(b.Parola(), "Stop");
        EXPECT_GT(b.Note(1).size(), 12U);
    });
    b.Clicca(qui + 21, "cmdPlaySstru");
    b.Quando(qui + 22, [&] { EXPECT_EQ(b.Parola(), "Play"); });
    EXPECT_TRUE(b.Vai(qui + 23));
}

TEST(PlayPicker, StopAndEscTogetherEndThePlayBeforeTheWindowBeneathIsBack) {
    BancoPicker b(Allunga);
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 2, [&] {
        Evento esc;
        esc.fatto = Fatto::KeyDown;
        esc.codice = vk::esc;
        b.coda.Aggiungi(b.Fatta({}, "cmdPlaySstru"));
        b.coda.Aggiungi(b.Fatta(esc, ""));
    });
    b.Quando(qui + 2.2, [&] {
        EXPECT_TRUE(b.ComposerDavanti());
        EXPECT_FALSE(b.Suona());
        EXPECT_EQ(b.composer->play.cmdPlay.Caption(), "Play");
        EXPECT_TRUE(b.composer->menu.file.Enabled());
        EXPECT_TRUE(b.uscita.NoteAccese().empty());
    });
    b.Clicca(qui + 3, "cmdPlay");
    b.Quando(qui + 4, [&] { EXPECT_TRUE(b.Suona()) << "the window beneath plays as ever"; });
    EXPECT_TRUE(b.Vai(qui + 5));
}

TEST(PlayPicker, AnyNumberOfClicksInOneGoLeaveWordAndPlayInStep) {
    for (int clic = 1; clic <= 6; ++clic) {
        BancoPicker b(Allunga);
        b.Clicca(qui, "cmdPlaySstru");
        b.Insieme(qui + 2, std::vector<Mossa>(static_cast<std::size_t>(clic),
                                              {Fatto::Click, "cmdPlaySstru"}));
        b.Quando(qui + 3, [&] {
            EXPECT_EQ(b.Suona(), clic % 2 == 0) << clic;
            EXPECT_EQ(b.Parola(), b.Suona() ? "Stop" : "Play") << clic;
        });
        b.Clicca(qui + 4, "cmdPlaySstru");
        b.Quando(qui + 5, [&] {
            EXPECT_EQ(b.Suona(), clic % 2 == 1) << clic;
            EXPECT_EQ(b.Parola(), b.Suona() ? "Stop" : "Play") << clic;
        });
        EXPECT_TRUE(b.Vai(qui + 6));
    }
}

TEST(PlayPicker, AFaultThatEndsThePlayGivesTheWordBackToo) {
    BancoPicker b([](BancoPicker& p) { p.DellaVoce(soprano).noteVoce[2] = "x"; });
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 3, [&] {
        EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"13\r\nType mismatch"});
        EXPECT_EQ(b.Parola(), "Play");
        EXPECT_FALSE(b.Suona());
    });
    b.Tasto(qui + 4, vk::esc);
    b.Quando(qui + 5, [&] { EXPECT_TRUE(b.ComposerDavanti()); });
    EXPECT_TRUE(b.Vai(qui + 6));
}

TEST(PlayPicker, AnEmptyVoiceGivesTheMelodyWindowBackToTheSoprano) {
    BancoPicker b;
    b.Clicca(qui, "VoceAttiva3");
    b.Clicca(qui + 0.5, "cmdPlaySstru");
    b.Quando(qui + 1, [&] { EXPECT_EQ(b.composer->stato.melodia.voceAttiva, "soprano"); });
    EXPECT_TRUE(b.Vai(qui + 2));
}

TEST(PlayPicker, TheProgramsEndEndsPlayPickerAndMelodyWindowAtOnce) {
    BancoPicker b(Allunga);
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 2, [&] { b.coda.ChiediFine(); });
    EXPECT_FALSE(b.Vai(1000));
    EXPECT_LT(b.orologio.Adesso(), qui + 2.1);
    EXPECT_EQ(b.finestre.Davanti(), nullptr);
    EXPECT_FALSE(b.globali.PickerAperto);
    EXPECT_FALSE(b.globali.ComposerAperto);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.specchio.chiuse,
              (std::vector<std::string>{"frmStrum", "frmComposer", "CorvanaMainF"}));
}

TEST(PlayPicker, ThePickerThatOpensDuringTheDelayBeforeAPlayHoldsThatPlayBackUntilItCloses) {
    BancoPicker b([](BancoPicker& p) { p.coda.Aggiungi(p.Fatta({}, "mnuPlayRitardo")); });
    b.Quando(20, [&] {
        b.picker = dynamic_cast<frmStrum*>(b.finestre.Davanti());
        ASSERT_TRUE(b.picker);
        EXPECT_FALSE(b.Suona());
    });
    b.Clicca(21, "cmdPlaySstru");
    b.Quando(22, [&] { EXPECT_TRUE(b.Suona()); });
    b.Quando(30, [&] { EXPECT_EQ(b.Parola(), "Play"); });
    b.Tasto(31, vk::esc);
    b.Quando(37, [&] {
        EXPECT_TRUE(b.ComposerDavanti());
        EXPECT_TRUE(b.Suona()) << "the delayed one";
    });
    EXPECT_TRUE(b.Vai(38));
}

TEST(PlayPicker, OpenedAgainWhileAStoppedPlayStillLiesBelowTheNewPickerPlaysAndItsWordComesBack) {
    BancoPicker b(Allunga);
    b.Clicca(qui, "cmdPlaySstru");
    b.Quando(qui + 2, [&] {
        Evento esc;
        esc.fatto = Fatto::KeyDown;
        esc.codice = vk::esc;
        b.coda.Aggiungi(b.Fatta({}, "cmdPlaySstru"));
        b.coda.Aggiungi(b.Fatta(esc, ""));
        Evento apre;
        apre.finestra = b.composer->Identita();
        apre.controllo = b.composer->menu.mnuSs.Numero();
        b.coda.Aggiungi(apre);
    });
    b.Quando(qui + 2.5, [&] {
        ASSERT_EQ(b.finestre.Davanti()->Name, "frmStrum");
        b.picker = dynamic_cast<frmStrum*>(b.finestre.Davanti());
    });
    b.Clicca(qui + 3, "cmdPlaySstru");
    b.Quando(qui + 4, [&] {
        EXPECT_TRUE(b.Suona());
        EXPECT_EQ(b.Parola(), "Stop");
    });
    b.Clicca(qui + 5, "cmdPlaySstru");
    b.Quando(qui + 6, [&] { EXPECT_EQ(b.Parola(), "Play"); });
    b.Tasto(qui + 7, vk::esc);
    b.Quando(qui + 8, [&] {
        EXPECT_TRUE(b.ComposerDavanti());
        EXPECT_FALSE(b.Suona());
        EXPECT_FALSE(b.globali.PickerAperto);
    });
    EXPECT_TRUE(b.Vai(qui + 9));
}

}  // namespace corvana::prova
