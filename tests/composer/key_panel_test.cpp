// The keys that light, and the ways to silence what sounds.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoTasti : BancoComposer {
    BancoTasti() { uscita.messaggi.clear(); }

    std::vector<int> Accesi() const {
        std::vector<int> accesi;
        for (std::size_t i = 0; i < finestra.tasti.lb.size(); ++i)
            if (finestra.tasti.lb[i].BackStyle() == fondoOpaco)
                accesi.push_back(static_cast<int>(i));
        return accesi;
    }
    void AccendiTutti() {
        for (Etichetta& tasto : finestra.tasti.lb)
            tasto.BackStyle = fondoOpaco;
    }
    std::vector<std::uint32_t> Inviati() const {
        std::vector<std::uint32_t> inviati;
        for (const auto& voce : uscita.messaggi)
            inviati.push_back(voce.messaggio);
        return inviati;
    }
};

constexpr std::uint32_t Spento(std::uint32_t canale, std::uint32_t nota) {
    return 0x8FU + canale + (nota << 8);
}

}  // namespace

TEST(MostraTasto, LightsAndClearsTheKeyAlone) {
    BancoTasti b;
    for (const int tasto : {0, 17, 59}) {
        b.finestra.tasti.MostraTasto(tasto, true);
        EXPECT_EQ(b.Accesi(), std::vector<int>{tasto});
        b.finestra.tasti.MostraTasto(tasto, false);
        EXPECT_TRUE(b.Accesi().empty());
    }
    EXPECT_TRUE(b.Inviati().empty());
}

TEST(MostraTasto, AnyNumberOutsideOf0To59DoesNothing) {
    BancoTasti b;
    for (const int tasto : {-1, -36, 60, 1000}) {
        b.finestra.tasti.MostraTasto(tasto, true);
        EXPECT_TRUE(b.Accesi().empty()) << tasto;
    }
}

TEST(SpegniTutteLeNote, SilencesEachNoteOnChannel1AndThenOn2To4AndClearsItsKey) {
    BancoTasti b;
    b.AccendiTutti();
    b.finestra.tasti.SpegniTutteLeNote();
    std::vector<std::uint32_t> attesi;
    for (std::uint32_t nota = 36; nota <= 95; ++nota)
        for (std::uint32_t canale = 1; canale <= 4; ++canale)
            attesi.push_back(Spento(canale, nota));
    EXPECT_EQ(b.Inviati(), attesi);
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(SpegniTastiera, SilencesTheKeysOnChannel1AndClearsThem) {
    BancoTasti b;
    b.AccendiTutti();
    b.finestra.tasti.SpegniTastiera();
    std::vector<std::uint32_t> attesi;
    for (std::uint32_t nota = 36; nota <= 95; ++nota)
        attesi.push_back(Spento(1, nota));
    EXPECT_EQ(b.Inviati(), attesi);
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(SpegniNoteVoci, SilencesTheCurrentNoteOfEachVoiceOnItsChannel) {
    BancoTasti b;
    b.AccendiTutti();
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        b.stato.voci[voce].notaCorrente = static_cast<std::int16_t>(60 + voce);
    b.finestra.tasti.SpegniNoteVoci();
    EXPECT_EQ(b.Inviati(), (std::vector<std::uint32_t>{Spento(1, 60), Spento(2, 61), Spento(3, 62),
                                                       Spento(4, 63)}));
    for (int tasto = 24; tasto <= 27; ++tasto)
        EXPECT_EQ(b.finestra.tasti.lb[static_cast<std::size_t>(tasto)].BackStyle(),
                  fondoTrasparente);
    EXPECT_EQ(b.Accesi().size(), 56U);
}

TEST(SpegniNoteVoci, LeavesOutRestsAndNotesWithoutAKey) {
    BancoTasti b;
    const std::array<std::int16_t, numeroVoci> note = {0, 35, 95, 96};
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        b.stato.voci[voce].notaCorrente = note.at(voce);
    b.finestra.tasti.SpegniNoteVoci();
    EXPECT_EQ(b.Inviati(), std::vector<std::uint32_t>{Spento(3, 95)});
}

}  // namespace corvana::prova
