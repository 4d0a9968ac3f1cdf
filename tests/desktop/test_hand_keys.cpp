// The melody window with no mouse at all: notes of every kind are entered, dropped, rewritten,
// transposed, saved and played, and each is reached from where the hands are.
#include <gtest/gtest.h>

#include "melody/mel_reader.h"
#include "tests/core/temporary_folder.h"
#include "tests/desktop/keys_hand.h"

namespace corvana::prova {
namespace {

struct PalcoComposer : PalcoTasti {
    explicit PalcoComposer(const std::string& cartella) : PalcoTasti(cartella) {
        // The composer is the first entry of that menu.
        Apri(Qt::Key_R, 0, "frmComposer");
    }

    TestiVoce Salvata(const CartellaProvvisoria& cartella, const std::string& nome) {
        DalMenu(Qt::Key_F, 2);
        Rispondi(nome);
        EXPECT_EQ(Dice("lblNome"), "Salvato: " + nome);
        // The list that saving shows lies over the palette.
        Aziona("cmdChiudi");
        const std::string byte = Contenuto(cartella.Di(nome + ".mel"));
        const LetturaMel letta = LeggiMel(byte, '.');
        return letta.soprano;
    }
    void ScriviCinqueNote();
    int NoteSuonate() const;
};

void PalcoComposer::ScriviCinqueNote() {
    Batti(Qt::Key_F6);  // the first time it is middle C
    Batti(Qt::Key_Return);
    Batti(Qt::Key_Right);
    Batti(Qt::Key_F6);
    Batti(Qt::Key_Space);
    Batti(Qt::Key_F11);
    Batti(Qt::Key_Right);
    Batti(Qt::Key_Return);
    Batti(Qt::Key_F8);
    Batti(Qt::Key_F12);
    Batti(Qt::Key_Left);
    Batti(Qt::Key_Return);
}

int PalcoComposer::NoteSuonate() const {
    int note = 0;
    for (const auto& [istante, messaggio] : uscita->Mandati())
        note += (messaggio & 0xF0U) == 0x90U && messaggio >> 16U > 0;
    return note;
}

TEST(SoloTastiera, NotesDotsAndRestsAreEnteredAndTheLastIsDropped) {
    const CartellaProvvisoria cartella;
    PalcoComposer p(cartella.Di(""));
    p.ScriviCinqueNote();
    EXPECT_EQ(p.Salvata(cartella, "five"),
              (TestiVoce{"60;62;63;00;62;", "1;1;1.5;0.5;0.5;", "n;n;n;p;n;"}));
    p.Aziona("cmdCanc");
    EXPECT_EQ(p.Salvata(cartella, "four"), (TestiVoce{"60;62;63;00;", "1;1;1.5;0.5;", "n;n;n;p;"}));
}

TEST(SoloTastiera, ANoteIsRewrittenAndAllAreTransposed) {
    const CartellaProvvisoria cartella;
    PalcoComposer p(cartella.Di(""));
    p.ScriviCinqueNote();
    p.Aziona("lblStep1");
    p.Aziona("lblStep1");
    EXPECT_EQ(p.Dice("lblNe"), "2");
    p.Batti(Qt::Key_F6);
    p.Batti(Qt::Key_F6);
    p.Scegli("cmbDurata", 2);
    p.Scegli("cmbAttributi", 1);
    p.Aziona("cmdModifica0");
    p.Aziona("cmdNpp");
    EXPECT_FALSE(p.Di("frmModifica").isVisible());
    EXPECT_EQ(p.Salvata(cartella, "rewritten"),
              (TestiVoce{"60;64;63;00;62;", "1;2;1.5;0.5;0.5;", "n;s;n;p;n;"}));
    p.Aziona("lblIDs1");
    p.Aziona("lblIDs1");
    EXPECT_EQ(p.Dice("lblSemitoni"), "2");
    p.Aziona("lblSemitoni");
    EXPECT_EQ(p.Salvata(cartella, "transposed"),
              (TestiVoce{"62;66;65;00;64;", "1;2;1.5;0.5;0.5;", "n;s;n;p;n;"}));
}

TEST(SoloTastiera, OneKeyPlaysAndStops) {
    const CartellaProvvisoria cartella;
    PalcoComposer p(cartella.Di(""));
    p.ScriviCinqueNote();
    p.Ascolta();
    p.Batti(Qt::Key_F9);
    EXPECT_EQ(p.NoteSuonate(), 4);
    EXPECT_EQ(p.Dice("cmdPlay"), "Play");
    p.Ascolta();
    p.FermaDopo(0.5);
    p.Batti(Qt::Key_F9);
    EXPECT_EQ(p.Dice("cmdPlay"), "Stop");
    p.Batti(Qt::Key_F9);
    p.Prosegui();
    EXPECT_EQ(p.Dice("cmdPlay"), "Play");
    EXPECT_EQ(p.NoteSuonate(), 1);
}

TEST(SoloTastiera, WhatTheListOfMelodiesCoversIsNoStop) {
    const CartellaProvvisoria cartella;
    PalcoComposer p(cartella.Di(""));
    const QStringList prima = p.Fermate();
    EXPECT_TRUE(prima.contains("cmdInsNota"));
    EXPECT_TRUE(prima.contains("cmdAttrNota5"));
    p.DalMenu(Qt::Key_F, 0);
    ASSERT_TRUE(p.Di("Fr2").isVisible());
    const QStringList dopo = p.Fermate();
    for (const char* nome : {"List1", "cmdEseguiFile", "cmdChiudi", "cmdPlay", "lblStep1"})
        EXPECT_TRUE(dopo.contains(QLatin1String(nome))) << nome;
    for (const char* nome : {"cmdInsNota", "cmdAttrNota5", "cmdSimbNote0", "cmdCanc", "PausaPer"})
        EXPECT_FALSE(dopo.contains(QLatin1String(nome))) << nome;
}

}  // namespace
}  // namespace corvana::prova
