// The drill of tonality: the figure, answers, what may be asked, the names.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

struct BancoTonalita : BancoInto {
    BancoTonalita() : BancoInto({PaginaInto::Tonalita}) {}
    void Chiedi(int indice) { Estrai(indice, 24); }
    void Alterna(double t, int indice) { Clicca(t, "lblT(" + std::to_string(indice) + ")"); }
    std::vector<int> Ammesse() const {
        std::vector<int> ammesse;
        for (int i = 0; i < 24; ++i)
            if (Fondo("lblT(" + std::to_string(i) + ")") == Rgb(128, 255, 128))
                ammesse.push_back(i);
        return ammesse;
    }
};

struct RigaAttesaTonalita {
    const char* latino;
    const char* anglo;
    int tonica;
};

const std::vector<RigaAttesaTonalita> attese = {{"DO", "C", 60},
                                                {"REb\nDO#", "Db\nC#", 61},
                                                {"RE", "D", 62},
                                                {"MIb", "Eb", 63},
                                                {"MI", "E", 64},
                                                {"FA", "F", 65},
                                                {"SOLb\nFA#", "Gb\nF#", 66},
                                                {"SOL", "G", 67},
                                                {"LAb", "Ab", 68},
                                                {"LA", "A", 69},
                                                {"SIb", "Bb", 70},
                                                {"SI\nDOb", "B\nCb", 59},
                                                {"Do", "C", 60},
                                                {"Do#", "C#", 61},
                                                {"Re", "D", 62},
                                                {"Mib\nRe#", "Eb\nD#", 63},
                                                {"Mi", "E", 64},
                                                {"Fa", "F", 65},
                                                {"Fa#", "F#", 66},
                                                {"Sol", "G", 67},
                                                {"Lab\nSol#", "Ab\nG#", 68},
                                                {"La", "A", 69},
                                                {"Sib\nLa#", "Bb\nA#", 58},
                                                {"Si", "B", 59}};

const Colore maggiori = Rgb(202, 247, 247), minori = Rgb(218, 255, 218);
const Colore svelato = Rgb(255, 255, 255);

std::string Riga(const char* t, int nota, int velocita) {
    return std::string(t) + " " + std::to_string(nota) + " " + std::to_string(velocita);
}

}  // namespace

TEST(NomiTonalita, TheCellsBearTheirNamesInBothNotations) {
    BancoTonalita b;
    b.Clicca(1, "mnuNotAnglo");
    b.Quando(1.5, [&] {
        for (std::size_t i = 0; i < attese.size(); ++i)
            EXPECT_EQ(b.Testo("T" + std::to_string(i)), attese[i].anglo);
        EXPECT_TRUE(b.finestra.menu.mnuNotAnglo.Checked());
        EXPECT_FALSE(b.finestra.menu.mnuNotLat.Checked());
    });
    b.Clicca(2, "mnuNotLat");
    b.Vai(3);
    for (std::size_t i = 0; i < attese.size(); ++i)
        EXPECT_EQ(b.Testo("T" + std::to_string(i)), attese[i].latino);
    EXPECT_FALSE(b.globali.NomiAnglo);
    EXPECT_TRUE(b.finestra.menu.mnuNotLat.Checked());
}

TEST(NomiTonalita, WithAngloNamesInUseTheEntryWritesThem) {
    BancoTonalita b;
    b.globali.NomiAnglo = true;
    b.Vai(1);
    EXPECT_EQ(b.Testo("T1"), "Db\nC#");
}

TEST(FiguraTonalita, IsTheTuningATheTonicAndTheBrokenTriadIn59TenthsOfASecond) {
    BancoTonalita b;
    b.Chiedi(2);
    b.Clicca(1, "cmdT");
    b.Quando(6.85, [&] { EXPECT_TRUE(b.finestra.tonalita.ToInCorso); });
    b.Quando(6.95, [&] { EXPECT_FALSE(b.finestra.tonalita.ToInCorso); });
    b.Vai(8);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 69 127", "0.7 69 0", "1.4 62 127", "2.1 62 0", "3.5 62 127",
                                  "4.0 62 0", "4.1 66 127", "4.6 66 0", "4.7 69 127", "5.2 69 0",
                                  "5.3 74 127", "5.8 74 0"}));
}

TEST(FiguraTonalita, EachKeySoundsFromItsTonicInItsMode) {
    for (int indice = 0; indice < 24; ++indice) {
        BancoTonalita b;
        for (int i = 0; i < 24; ++i)
            if (i != 0 && i != 2 && i != 5 && i != 7 && i != 12 && i != 14 && i != 16 && i != 19)
                b.Alterna(0.5, i);
        b.Chiedi(indice);
        b.Clicca(1, "cmdT");
        b.Vai(8);
        const int tonica = attese[static_cast<std::size_t>(indice)].tonica;
        const auto note = b.Note(1);
        ASSERT_EQ(note.size(), 12U) << indice;
        EXPECT_EQ(note[2], Riga("1.4", tonica, 127)) << indice;
        EXPECT_EQ(note[6], Riga("4.1", tonica + (indice < 12 ? 4 : 3), 127)) << indice;
        EXPECT_EQ(note[8], Riga("4.7", tonica + 7, 127)) << indice;
        EXPECT_EQ(note[10], Riga("5.3", tonica + 12, 127)) << indice;
    }
}

TEST(Tonalita, TheEntryAdmitsEightKeysAndOnlyEverAddsThem) {
    BancoTonalita b;
    b.Quando(0.5, [&] { EXPECT_EQ(b.Ammesse(), (std::vector{0, 2, 5, 7, 12, 14, 16, 19})); });
    b.Alterna(1, 0);
    b.Alterna(1, 23);
    b.Quando(1.5, [&] {
        EXPECT_EQ(b.Ammesse(), (std::vector{2, 5, 7, 12, 14, 16, 19, 23}));
        EXPECT_EQ(b.Consiglio("lblT(23)"), "to ammessa");
        EXPECT_EQ(b.Consiglio("lblT(0)"), "to esclusa");
        EXPECT_EQ(b.Fondo("lblT(0)"), Rgb(255, 0, 0));
    });
    b.Clicca(2, "mnuRicTo");
    b.Vai(3);
    EXPECT_EQ(b.Ammesse(), (std::vector{0, 2, 5, 7, 12, 14, 16, 19, 23}));
}

TEST(Tonalita, WithNothingAdmittedThereIsNoStart) {
    BancoTonalita b;
    for (const int indice : {0, 2, 5, 7, 12, 14, 16, 19})
        b.Alterna(1, indice);
    b.Quando(1.5, [&] { EXPECT_FALSE(b.finestra.tonalita.cmdT.Enabled()); });
    b.Alterna(2, 22);
    b.Quando(2.5, [&] { EXPECT_TRUE(b.finestra.tonalita.cmdT.Enabled()); });
    b.Alterna(3, 22);
    b.Clicca(4, "mnuRicTo");
    b.Quando(4.5, [&] {
        EXPECT_EQ(b.Ammesse().size(), 8U);
        EXPECT_FALSE(b.finestra.tonalita.cmdT.Enabled()) << "only a strip gives it back";
    });
    b.Alterna(5, 0);
    b.Vai(6);
    EXPECT_TRUE(b.finestra.tonalita.cmdT.Enabled());
}

TEST(Tonalita, DuringARunTheStripsAreStill) {
    BancoTonalita b;
    b.Clicca(1, "cmdT");
    b.Alterna(8, 0);
    b.Vai(9);
    EXPECT_EQ(b.Ammesse().size(), 8U);
}

TEST(Tonalita, WithOneKeyAdmittedEveryQuestionIsThatKey) {
    BancoTonalita b;
    for (const int indice : {0, 2, 5, 7, 12, 14, 16})
        b.Alterna(1, indice);
    for (int i = 0; i < 24; ++i)
        b.Chiedi(i);
    b.Clicca(2, "cmdT");
    b.Quando(8, [&] { EXPECT_EQ(b.finestra.tonalita.ToIndice, 19); });
    b.Clicca(9, "lblRipeti");
    b.Quando(16, [&] {
        b.casuale.numeri.clear();
        b.Chiedi(19);
    });
    b.Clicca(17, "T19");
    b.Vai(24);
    const auto note = b.Note(2);
    ASSERT_EQ(note.size(), 36U);
    const auto ripetute = b.Note(9);
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(ripetute[i], note[i]);
        EXPECT_EQ(b.Note(17)[i], note[i]);
    }
}

TEST(Tonalita, ClicksMadeDuringTheFigureAreJudgedAgainstTheKeyJustSounded) {
    BancoTonalita b;
    b.Chiedi(7);
    b.Chiedi(0);
    b.Clicca(1, "cmdT");
    b.Clicca(2, "T0");
    b.Clicca(3, "T7");
    b.Quando(6, [&] { EXPECT_EQ(b.Punti(), "0 0 0"); });
    b.Vai(14);
    EXPECT_EQ(b.Punti(), "1 1 50.00%");
    EXPECT_EQ(b.finestra.tonalita.ToIndice, 0);
}

TEST(Tonalita, AWrongCellStandsAndSoundsNothing) {
    BancoTonalita b;
    b.Chiedi(7);
    b.Clicca(1, "cmdT");
    b.Clicca(8, "T19");
    b.Vai(9);
    EXPECT_EQ(b.Punti(), "0 1 0.00%");
    EXPECT_TRUE(b.Note(7).empty());
}

TEST(Tonalita, StartLeavesTheExitAndStopEnablesTheMenuAgain) {
    BancoTonalita b;
    b.Clicca(1, "cmdT");
    b.Quando(8, [&] {
        EXPECT_FALSE(b.finestra.menu.Esercizio.Enabled());
        EXPECT_TRUE(b.finestra.telaio.cmdEsci.Enabled());
        EXPECT_EQ(b.Fondo("cmdT"), b.Fondo("lblStep"));
    });
    b.Clicca(9, "cmdT");
    b.Clicca(10, "T0");
    b.Clicca(10, "lblRipeti");
    b.Vai(11);
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_EQ(b.Testo("cmdT"), "Start");
    EXPECT_EQ(b.Fondo("cmdT"), b.Fondo("Label6"));
    EXPECT_EQ(b.Punti(), "0 0 0");
    EXPECT_TRUE(b.Note(8).empty());
}

TEST(Tonalita, WithHelpOnTheKeysLightAndTheAnswerShowsAfterTheFigure) {
    BancoTonalita b;
    b.Chiedi(14);
    b.Chiedi(2);
    b.Clicca(0.5, "lblTsh");
    b.Clicca(1, "cmdT");
    b.Quando(1.5, [&] { EXPECT_EQ(b.Accesi(), std::vector{33}); });
    b.Quando(2, [&] { EXPECT_TRUE(b.Accesi().empty()); });
    b.Quando(2.5, [&] {
        EXPECT_EQ(b.Accesi(), std::vector{26});
        EXPECT_EQ(b.Fondo("T14"), minori);
    });
    b.Quando(8, [&] { EXPECT_EQ(b.Fondo("T14"), svelato); });
    b.Clicca(9, "T14");
    b.Quando(10, [&] { EXPECT_EQ(b.Fondo("T14"), minori); });
    b.Vai(16);
    EXPECT_EQ(b.Fondo("T2"), svelato);
}

TEST(Tonalita, HelpCanBeTurnedOnAndOffAtAnyTime) {
    BancoTonalita b;
    b.Chiedi(2);
    b.Clicca(1, "cmdT");
    b.Quando(2, [&] { EXPECT_TRUE(b.Accesi().empty()); });
    b.Clicca(8, "lblTsh");
    b.Quando(8.5, [&] {
        EXPECT_EQ(b.Testo("lblTsh"), "");
        EXPECT_EQ(b.Fondo("T2"), svelato);
    });
    b.Clicca(9, "lblTsh");
    b.Quando(9.5, [&] {
        EXPECT_EQ(b.Testo("lblTsh"), "?");
        for (int i = 0; i < 24; ++i)
            EXPECT_EQ(b.Fondo("T" + std::to_string(i)), i < 12 ? maggiori : minori) << i;
    });
    b.Clicca(10, "cmdT");
    b.Clicca(11, "lblTsh");
    b.Vai(12);
    EXPECT_EQ(b.Fondo("T2"), maggiori) << "at rest there is no answer to show";
}

}  // namespace corvana::prova
