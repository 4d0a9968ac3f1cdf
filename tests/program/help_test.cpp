#include <gtest/gtest.h>

#include "composer/composer.h"
#include "forms/keys.h"
#include "tests/program/program_rig.h"

namespace corvana::prova {
namespace {

using Aiuti = std::vector<std::string>;

constexpr double pronta = BancoProgramma::pronta;
const std::string trainer = "2 /programma/corvana.chm";
const std::string metronomo = "8 /programma/corvana.chm";
const std::string promemoria = "50 /programma/corvana.chm";
const std::string composizione = "60 /programma/corvana.chm";
const std::string strumenti = "40 /programma/corvana.chm";

TEST(Aiuto, F1TheMenuAndTheToolButtonOpenThePageOfTheTrainer) {
    BancoProgramma b;
    b.Tasto(pronta + 1, vk::f1);
    b.Clicca(pronta + 2, "mnuAiuto");
    b.Clicca(pronta + 3, "ToolButton7");
    b.Vai(pronta + 4);
    EXPECT_EQ(b.specchio.aiuti, (Aiuti{trainer, trainer, trainer}));
}

TEST(Aiuto, WithTheMetronomeOpenTheyOpenItsPageUntilItCloses) {
    BancoProgramma b;
    b.Clicca(pronta + 1, "mnuMetro");
    b.Tasto(pronta + 2, vk::f1);
    b.Clicca(pronta + 3, "mnuAiuto");
    b.Clicca(pronta + 4, "lblCloseMetro");
    b.Tasto(pronta + 5, vk::f1);
    b.Vai(pronta + 6);
    EXPECT_EQ(b.specchio.aiuti, (Aiuti{metronomo, metronomo, trainer}));
}

TEST(Aiuto, F1OpensThePageOfTheSecondaryWindowInFront) {
    BancoProgramma b;
    double t = pronta;
    for (const char* voce : {"mnuSs", "mnuMidiTest", "mnuPromemoria", "mnuVersione"}) {
        b.Clicca(++t, voce);
        b.Tasto(++t, vk::f1);
        b.Chiudi(++t);
    }
    b.Clicca(++t, "mnuMetro");
    b.Clicca(++t, "cmdSetup");
    b.Tasto(++t, vk::f1);
    b.Vai(++t);
    EXPECT_EQ(b.specchio.aiuti,
              (Aiuti{strumenti, strumenti, promemoria, "0 /programma/corvana.chm", metronomo}));
}

TEST(Aiuto, F1AndTheToolButtonOfTheMelodyWindowOpenItsPageAndThatOfThePickerOverIt) {
    BancoProgramma b;
    double t = pronta;
    b.Clicca(++t, "mnuComposer");
    b.Tasto(++t, vk::f1);
    b.Clicca(++t, "ToolButton6");
    b.Clicca(++t, "mnuSs");
    b.Tasto(++t, vk::f1);
    b.Chiudi(++t);
    b.Tasto(++t, vk::f1);
    b.Chiudi(++t);
    b.Tasto(++t, vk::f1);
    b.Vai(++t);
    EXPECT_EQ(b.specchio.aiuti,
              (Aiuti{composizione, composizione, strumenti, composizione, trainer}));
}

TEST(Aiuto, AMelodyPlaysOnBehindIt) {
    BancoProgramma b;
    double t = pronta;
    b.Clicca(++t, "mnuComposer");
    b.Clicca(++t, "cmdInsNota");
    b.Clicca(t += 2, "cmdPlay");
    b.Tasto(t + 0.3, vk::f1);
    b.Quando(t + 0.5, [&b] {
        EXPECT_EQ(b.specchio.aiuti, (Aiuti{composizione}));
        const auto& composer = dynamic_cast<const frmComposer&>(*b.finestre.Davanti());
        EXPECT_TRUE(composer.stato.inEsecuzione);
    });
    b.Vai(t + 3);
}

TEST(Aiuto, AKeyHeldDownOpensItOnce) {
    BancoProgramma b;
    b.Premi(pronta + 1, vk::f1);
    Evento ripetuto;
    ripetuto.fatto = Fatto::KeyDown;
    ripetuto.codice = vk::f1;
    ripetuto.ripetuto = true;
    b.Manda(pronta + 1.5, ripetuto, "");
    b.Manda(pronta + 1.6, ripetuto, "");
    b.Lascia(pronta + 2, vk::f1);
    b.Vai(pronta + 3);
    EXPECT_EQ(b.specchio.aiuti.size(), 1U);
}

TEST(Aiuto, OtherKeysDoNotOpenIt) {
    BancoProgramma b;
    double t = pronta;
    for (int codice = 1; codice < 256; ++codice)
        if (codice != vk::f1) b.Tasto(t += 0.01, codice);
    b.Vai(t + 1);
    EXPECT_TRUE(b.specchio.aiuti.empty());
}

TEST(Aiuto, ItIsTheHelpOfTheLanguageThatWasChosenLast) {
    BancoProgramma b;
    b.Clicca(pronta + 1, "mnuEn");
    b.Tasto(pronta + 2, vk::f1);
    b.Clicca(pronta + 3, "mnuIt");
    b.Tasto(pronta + 4, vk::f1);
    b.Vai(pronta + 5);
    EXPECT_EQ(b.specchio.aiuti, (Aiuti{"2 /programma/corvanaen.chm", trainer}));
}

TEST(Aiuto, ANormalDrillGoesOnBehindIt) {
    BancoProgramma b;
    b.Clicca(pronta + 1, "Start");
    b.Tasto(pronta + 2, vk::f1);
    b.Clicca(pronta + 3, "mnuAiuto");
    b.Quando(pronta + 4, [&b] {
        EXPECT_TRUE(b.finestra.esercizio.InCorso);
        EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 0);
    });
    for (const int codice : {68, 97, 70, 98, 71, 99, 72})
        b.Tasto(pronta + 5, codice);
    b.Vai(pronta + 6);
    EXPECT_EQ(b.specchio.aiuti, (Aiuti{trainer, trainer}));
    EXPECT_EQ(b.punteggio.Esatte + b.punteggio.Errate, 7);
}

TEST(Aiuto, AnAutomaticDrillShowsAsManyNotesWithItAsWithout) {
    const auto mostrate = [](bool conAiuto) {
        BancoProgramma b;
        b.Clicca(pronta + 1, "mnuAutomatico");
        b.Clicca(pronta + 2, "Start");
        if (conAiuto) b.Tasto(pronta + 9, vk::f1);
        b.Vai(pronta + 33);
        EXPECT_EQ(b.specchio.aiuti.size(), conAiuto ? 1U : 0U);
        EXPECT_TRUE(b.finestra.esercizio.InCorso);
        return b.punteggio.Mostrate;
    };
    EXPECT_EQ(mostrate(true), mostrate(false));
    EXPECT_GE(mostrate(true), 15);
}

TEST(Aiuto, TheMetronomeKeepsItsTimeWhenItOpens) {
    BancoProgramma b;
    b.Clicca(pronta + 1, "mnuMetro");
    b.Clicca(pronta + 2, "cmdSSmetro");
    b.Tasto(pronta + 6.5, vk::f1);
    b.Vai(pronta + 12.5);
    EXPECT_EQ(b.specchio.aiuti, (Aiuti{metronomo}));
    const auto pulsi = b.Pulsi();
    ASSERT_GE(pulsi.size(), 9U);
    for (std::size_t i = 1; i < pulsi.size(); ++i)
        EXPECT_NEAR(pulsi[i].first - pulsi[i - 1].first, 1.0, 1e-6);
}

}  // namespace
}  // namespace corvana::prova
