// A bookmark that is played, whatever it holds.
#include <gtest/gtest.h>

#include "tests/composer/bookmark_rig.h"

namespace corvana::prova {

TEST(EseguiRiferimento, ADoubleClickOrTheButtonPlaysItsRange) {
    for (const bool doppio : {true, false}) {
        BancoTre b;
        b.finestra.mix.VoceAttiva_Click(basso);
        b.passo.modoPasso = true;
        b.Riferimenti().ListIndex = 1;
        b.Suona([&] {
            b.Subito(doppio ? Fatto::DblClick : Fatto::Click, doppio ? "lstBookMark" : "cmdPlayBm");
        });
        EXPECT_EQ(b.NoteSuonate(), (std::vector<int>{64, 65, 66, 67}));
        EXPECT_EQ(b.melodia.voci[soprano].primaNota, 4);
        EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 7);
        EXPECT_EQ(b.finestra.voci.lblNini.Text(), "5");
        EXPECT_EQ(b.finestra.voci.lblNfine.Text(), "8");
        EXPECT_EQ(b.melodia.voceAttiva, "soprano");
        EXPECT_FALSE(b.passo.modoPasso || b.Modificata());
        EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "Do;Do#;Re;Re#;Mi;Fa;Fa#;Sol;");
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(EseguiRiferimento, TheWholeMelodyIsPlayedByTheFirst) {
    BancoTre b;
    b.Tratto(3, 4);
    b.Riferimenti().ListIndex = 0;
    b.Suona([&] { b.Subito(Fatto::DblClick, "lstBookMark"); });
    EXPECT_EQ(b.NoteSuonate().size(), 12U);
}

TEST(EseguiRiferimento, WithNothingChosenOrDuringAPlayNothingHappens) {
    BancoTre b;
    b.uscita.messaggi.clear();
    b.Subito(Fatto::DblClick, "lstBookMark");
    EXPECT_TRUE(b.uscita.messaggi.empty());
    b.Riferimenti().ListIndex = 1;
    b.NelTick(40, [&] {
        b.Subito(Fatto::DblClick, "lstBookMark");
        b.Tocca("cmdPlayBm");
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Stop");
    });
    b.Suona();
    EXPECT_EQ(b.NoteSuonate().size(), 12U);
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "1");
}

TEST(EseguiRiferimento, NotesThatNoLongerExistArePlayedAsFarAsAPlayCanAndNothingIsLeftSounding) {
    for (const auto& [riga, guasto] : {std::pair{"1 ÷ 40 ÷ a", ""},
                                       {"-5 ÷ 40 ÷ a", ""},
                                       {"8 ÷ 5 ÷ a", ""},
                                       {"5 ÷ 40 ÷ a", "13"},
                                       {"40 ÷ 50 ÷ a", "13"},
                                       {"13 ÷ 13 ÷ a", "13"},
                                       {"-3 ÷ 5 ÷ a", "9"},
                                       {"32767 ÷ 32767 ÷ a", "13"},
                                       {"-32767 ÷ -32767 ÷ a", "13"}}) {
        BancoTre b;
        b.Riferimenti().PonRiga(1, riga);
        b.Riferimenti().ListIndex = 1;
        b.Suona([&] { b.Subito(Fatto::DblClick, "lstBookMark"); });
        const std::string detto = b.riquadri.messaggi.empty() ? "" : b.riquadri.messaggi.front();
        EXPECT_EQ(detto.substr(0, detto.find('\r')), guasto) << riga;
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play") << riga;
        EXPECT_TRUE(b.uscita.NoteAccese().empty()) << riga;
        EXPECT_TRUE(b.finestra.riferimenti.cmdAddBm.Enabled()) << riga;
        b.Tratto(1, 12);
        b.Suona();
        EXPECT_EQ(b.NoteSuonate().size(), 12U) << riga;
    }
}

TEST(EseguiRiferimento, AnEntryWithoutTwoNumbersIsAFaultThatLeavesTheRange) {
    for (const auto& [riga, guasto] : {std::pair{"", "13"},
                                       {"5", "9"},
                                       {"x ÷ 8 ÷ a", "13"},
                                       {"5 ÷ y ÷ a", "13"},
                                       {"5 ÷ 99999 ÷ a", "6"},
                                       {"-32768 ÷ 8 ÷ a", "6"}}) {
        BancoTre b;
        b.Tratto(2, 4);
        b.Riferimenti().PonRiga(1, riga);
        b.Riferimenti().ListIndex = 1;
        b.Subito(Fatto::DblClick, "lstBookMark");
        ASSERT_EQ(b.riquadri.messaggi.size(), 1U) << riga;
        EXPECT_TRUE(b.riquadri.messaggi.front().starts_with(guasto + std::string("\r\n"))) << riga;
        EXPECT_EQ(b.melodia.voci[soprano].primaNota, 1) << riga;
        EXPECT_EQ(b.finestra.voci.lblNini.Text(), "2") << riga;
        EXPECT_TRUE(b.uscita.NoteAccese().empty());
    }
}

}  // namespace corvana::prova
