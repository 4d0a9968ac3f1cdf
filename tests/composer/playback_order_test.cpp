// In which order the events of a tick come, and what the play reads when.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/support/open_window.h"

namespace corvana::prova {

namespace {

/// A window whose messages bear, in place of an instant, how many changes of its controls had been
/// told before them.
struct BancoOrdine : Banco {
    Registratore tra{[this] { return static_cast<double>(specchio.cambi.size()); }};
    Suono suonoTra{tra, pompa, riquadri};
    frmComposer finestra{
        {globali, pompa, finestre, riquadri, suonoTra, impostazioni, file, casuale},
        {[] { return ""; }, [] { return ""; }, {}}};

    BancoOrdine() {
        suonoTra.ApriMidi(-1);
        ApriSenzaCiclo(finestre, pompa, coda, finestra);
        tra.messaggi.clear();
        specchio.registra = true;
    }

    void Soprano(const std::string& note, const std::string& durate, const std::string& attributi) {
        VoceMelodia& voce = finestra.stato.melodia.voci[soprano];
        voce.testoNote = note;
        voce.testoDurate = durate;
        voce.testoAttributi = attributi;
        finestra.voci.AggiornaVoce();
    }

    /// The messages and the changes of keys, in order, of a play up to its end procedure.
    std::vector<std::string> Fatti() {
        specchio.cambi.clear();
        finestra.play.cmdPlay_Click();
        std::vector<std::string> fatti;
        std::size_t mandati = 0;
        const auto messaggiFino = [&](std::size_t cambi) {
            for (; mandati < tra.messaggi.size() && tra.messaggi[mandati].istante <= double(cambi);
                 ++mandati) {
                const std::uint32_t m = tra.messaggi[mandati].messaggio;
                fatti.push_back((m >> 16 ? "on " : "off ") + std::to_string(m >> 8 & 0x7F));
            }
        };
        for (std::size_t i = 0; i < specchio.cambi.size(); ++i) {
            messaggiFino(i);
            const auto& [controllo, nome, valore] = specchio.cambi[i];
            if (controllo == "cmdPlay" && valore == Valore(std::string("Play"))) return fatti;
            if (nome != &Valori::BackStyle) continue;
            fatti.push_back(controllo + (valore == Valore(fondoOpaco) ? " lit" : " cleared"));
        }
        return fatti;
    }
};

}  // namespace

TEST(OrdineRiproduzione, EventsOfATickComeFromSopranoToBasso) {
    BancoComposer b;
    // Entered the other way round; in tick 9 each voice begins or ends something.
    b.Voce(basso, "36;", "1;", "n;");
    b.Voce(tenore, "48;", "0.5;", "t;");
    b.Voce(contralto, "52;53;", "0.25;0.25;", "n;n;");
    b.Voce(soprano, "60;61;", "0.25;0.25;", "n;n;");
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 96},
                                     {1, 2, 52, 96},
                                     {1, 3, 48, 98},
                                     {1, 4, 36, 96},
                                     {8, 1, 60, 0},
                                     {8, 2, 52, 0},
                                     {8, 3, 48, 0},
                                     {9, 1, 61, 96},
                                     {9, 2, 53, 96},
                                     {16, 1, 61, 0},
                                     {16, 2, 53, 0},
                                     {32, 4, 36, 0}}));
}

TEST(OrdineRiproduzione, AKeyIsLitBeforeItsNoteOnAndClearedAfterItsNoteOff) {
    BancoOrdine b;
    b.Soprano("60;00;62;", "0.25;0.25;0.25;", "n;p;a;");
    EXPECT_EQ(b.Fatti(), (std::vector<std::string>{"lb24 lit", "on 60", "off 60", "lb24 cleared",
                                                   "lb26 lit", "on 62", "off 62", "lb26 cleared"}));
}

TEST(OrdineRiproduzione, ANoteThatTheKeyboardHasntSoundsAndLightsNoKey) {
    BancoOrdine b;
    b.Soprano("35;36;95;96;", "0.25;0.25;0.25;0.25;", "n;n;n;n;");
    EXPECT_EQ(b.Fatti(), (std::vector<std::string>{"on 35", "off 35", "lb0 lit", "on 36", "off 36",
                                                   "lb0 cleared", "lb59 lit", "on 95", "off 95",
                                                   "lb59 cleared", "on 96", "off 96"}));
}

TEST(OrdineRiproduzione, AVolumeIsReadAsEachNoteIsLoaded) {
    BancoComposer b;
    b.Voce(soprano, "60;61;62;63;", "0.25");
    b.Voce(contralto, "48;49;50;51;", "0.25;0.25;0.25;0.25;", "a;s;t;p;");
    b.NelTick(3, [&] { b.finestra.mix.VolS.PonValore(50); });
    b.NelTick(8, [&] { b.finestra.mix.VolC.PonValore(10); });
    b.NelTick(17, [&] { b.finestra.mix.VolS.PonValore(98); });
    b.NelTick(20, [&] { b.finestra.mix.VolS.PonValore(97); });
    b.Suona();
    EXPECT_EQ(b.Messaggi(1), (Mandati{{1, 1, 60, 96},
                                      {8, 1, 60, 0},
                                      {9, 1, 61, 48},
                                      {16, 1, 61, 0},
                                      {17, 1, 62, 48},
                                      {24, 1, 62, 0},
                                      {25, 1, 63, 1},
                                      {32, 1, 63, 0}}));
    EXPECT_EQ(b.Messaggi(2),
              (Mandati{{1, 2, 48, 125}, {8, 2, 48, 0}, {17, 2, 50, 90}, {20, 2, 50, 0}}));
}

TEST(OrdineRiproduzione, WithVolSAt98AllSopranoNotesGoOutAtVelocity2AndLblVolSReads0) {
    BancoComposer b;
    b.Voce(soprano, "60;61;62;63;", "0.5;0.5;0.5;0.5;", "n;a;s;t;");
    b.Voce(contralto, "48;", "0.5;", "n;");
    b.Fa(0, Fatto::Change, "VolS", 98);
    b.pompa.AttendiEvento(1);
    b.Suona();
    EXPECT_EQ(b.finestra.mix.lblVolS.Caption(), "0");
    EXPECT_EQ(b.Messaggi(1), (Mandati{{1, 1, 60, 2},
                                      {16, 1, 60, 0},
                                      {17, 1, 61, 2},
                                      {32, 1, 61, 0},
                                      {33, 1, 62, 2},
                                      {35, 1, 62, 0},
                                      {49, 1, 63, 2},
                                      {56, 1, 63, 0}}));
    EXPECT_EQ(b.Messaggi(2), (Mandati{{1, 2, 48, 96}, {16, 2, 48, 0}}));
}

TEST(OrdineRiproduzione, EachVoiceHasItsOwnVolumeBar) {
    BancoComposer b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        b.Voce(voce, std::to_string(60 - 4 * voce) + ";", "1");
    b.finestra.mix.VolS.Value = 10;
    b.finestra.mix.VolC.Value = 20;
    b.finestra.mix.VolT.Value = 30;
    b.finestra.mix.VolB.Value = 40;
    b.Suona();
    EXPECT_EQ(b.Messaggi(), (Mandati{{1, 1, 60, 88},
                                     {1, 2, 56, 78},
                                     {1, 3, 52, 68},
                                     {1, 4, 48, 58},
                                     {32, 1, 60, 0},
                                     {32, 2, 56, 0},
                                     {32, 3, 52, 0},
                                     {32, 4, 48, 0}}));
}

TEST(OrdineRiproduzione, TheTempoIsReadOnceAndCountsFromTheNextPlayOn) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "1");
    b.Fa(0.2, Fatto::Change, "Slider1", 120);
    b.Suona();
    EXPECT_EQ(b.melodia.tempo, 120);
    EXPECT_NEAR(b.pompa.Adesso(), 64 * 0.031, 1e-9);
    b.Suona();
    EXPECT_NEAR(b.pompa.Adesso(), 64 * 0.031 + 64 * 0.015, 1e-9);
}

TEST(OrdineRiproduzione, ATickLastsWhatTheTempoSays) {
    struct Riga {
        std::uint8_t tempo;
        double secondi;
    };
    for (const auto& [tempo, secondi] :
         {Riga{20, 0.093}, {60, 0.031}, {120, 0.015}, {250, 0.007}}) {
        BancoComposer b;
        b.Voce(soprano, "60;", "1");
        b.melodia.tempo = tempo;
        b.Suona();
        EXPECT_NEAR(b.pompa.Adesso(), 32 * secondi, 1e-9) << int{tempo};
    }
}

TEST(OrdineRiproduzione, ClicksOfATickAreDeliveredAfterItInTheirOrder) {
    BancoComposer b;
    b.Voce(soprano, "60;62;", "0.25");
    b.Fa(0.24, Fatto::Change, "VolS", 50);
    b.Fa(0.24, Fatto::Change, "VolS", 60);
    b.Suona();
    EXPECT_EQ(b.Messaggi(),
              (Mandati{{1, 1, 60, 96}, {8, 1, 60, 0}, {9, 1, 62, 38}, {16, 1, 62, 0}}));
}

}  // namespace corvana::prova
