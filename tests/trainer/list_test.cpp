// Choosing an exercise in the list, with the mouse and with the keys.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"
#include "trainer/exercises.h"

namespace corvana::prova {

namespace {

using Note = std::vector<int>;

/// The window on the first row, idle; the list is clicked at `BancoPrincipale::pronta` and later.
struct BancoLista : BancoPrincipale {
    void Scegli(int riga) {
        Clicca(3, "difficolt", riga);
        Fine(4);
        Avvia();
    }
};

}  // namespace

TEST(ListaEsercizi, HasTheElevenRowsWithTheirCaptions) {
    BancoPrincipale b;
    ASSERT_EQ(b.finestra.intervalli.difficolt.List().size(), 11U);
    for (std::size_t i = 0; i < 11; ++i)
        EXPECT_EQ(b.finestra.intervalli.difficolt.List()[i], righeEsercizio.at(i).testo);
}

TEST(ListaEsercizi, ARowShowsWhereItBeginsAndEndsAndSetsTheLimits) {
    for (const int riga : {0, 1, 2, 3, 5, 6, 7, 8, 10}) {
        BancoLista b;
        b.Scegli(riga);
        const auto& [testo, basso, alto] = righeEsercizio.at(static_cast<std::size_t>(riga));
        EXPECT_EQ(b.finestra.stato.LimiteBasso, basso) << riga;
        EXPECT_EQ(b.finestra.stato.LimiteAlto, alto) << riga;
        EXPECT_EQ(b.NoteInVista(), (Note{basso, alto})) << riga;
        EXPECT_TRUE(b.finestra.esercizio.Start.Enabled()) << riga;
    }
}

TEST(ListaEsercizi, ASeparatorShowsTheFirstRowAsSelected) {
    for (const int riga : {4, 9}) {
        BancoLista b;
        b.PonStato("11;31;16;30;n");
        b.Scegli(riga);
        EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 0) << riga;
        EXPECT_EQ(b.finestra.stato.LimiteBasso, 43) << riga;
        EXPECT_EQ(b.NoteInVista(), (Note{43, 53})) << riga;
    }
}

TEST(ListaEsercizi, ASelectionByTheUserGivesStartTheFocus) {
    BancoPrincipale b;
    std::size_t prima = 0;
    b.Quando(2.9, [&] { prima = b.specchio.fuochi.size(); });
    b.Clicca(3, "difficolt", 2);
    b.Fine(4);
    b.Avvia();
    ASSERT_EQ(b.specchio.fuochi.size(), prima + 1);
    EXPECT_EQ(b.specchio.fuochi.back(), "Start");
}

TEST(ListaEsercizi, ARowThatIsntThereChangesNothing) {
    BancoPrincipale b;
    b.Clicca(3, "difficolt", 11);
    b.Clicca(3, "difficolt", -1);
    b.Fine(4);
    b.Avvia();
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 0);
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 43);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(TastiDellaLista, EachShortcutSelectsItsRowOnRelease) {
    const std::vector<std::pair<int, int>> tasti = {
        {'Z', 0}, {'X', 1}, {'C', 2}, {'V', 3}, {'B', 5}, {'N', 6}, {'M', 7}, {188, 8}, {190, 10}};
    for (const auto& [codice, riga] : tasti) {
        BancoPrincipale b;
        b.PonStato(riga == 0 ? "11;31;16;30;n" : "");
        const int partenza = riga == 0 ? 8 : 0;
        b.Premi(3, codice);
        b.Quando(3.5, [&] { EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), partenza); });
        b.Lascia(4, codice);
        b.Fine(5);
        b.Avvia();
        EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), riga);
        EXPECT_EQ(b.finestra.stato.LimiteBasso,
                  righeEsercizio.at(static_cast<std::size_t>(riga)).limiteBasso);
    }
}

TEST(TastiDellaLista, NoKeySelectsASeparatorAndAnswersSelectNothing) {
    BancoPrincipale b;
    int scelte = 0;
    b.Quando(2.9, [&] {
        auto di = b.finestra.intervalli.difficolt.Click.Attuale();
        b.finestra.intervalli.difficolt.Click = [&scelte, di] {
            ++scelte;
            di();
        };
    });
    for (int codice = 1; codice < 256; ++codice)
        b.Tasto(3 + codice * 0.01, codice);
    b.Fine(7);
    b.Avvia();
    EXPECT_EQ(scelte, 9);
}

TEST(TastiDellaLista, MeanNothingDuringARun) {
    BancoPrincipale b;
    b.Clicca(3, "Start");
    for (const int codice : {88, 67, 86, 66, 78, 77, 188, 190})
        b.Tasto(4, codice);
    b.Fine(5);
    b.Avvia();
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 0);
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 43);
    EXPECT_EQ(b.punteggio.Errate, 0);
}

TEST(ListaEsercizi, TheFirstSelectionAfterARulerRangeWasRestoredGivesNoFocus) {
    BancoPrincipale b;
    b.PonStato("20;44;16;30;n");
    std::size_t prima = 0, dopo = 0;
    b.Quando(2.9, [&] { prima = b.specchio.fuochi.size(); });
    b.Clicca(3, "difficolt", 2);
    b.Quando(3.5, [&] { dopo = b.specchio.fuochi.size(); });
    b.Clicca(4, "difficolt", 3);
    b.Fine(5);
    b.Avvia();
    EXPECT_EQ(dopo, prima);
    EXPECT_EQ(b.specchio.fuochi.size(), prima + 1);
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 62);
}

TEST(ListaEsercizi, ASeparatorGivesStartTheFocusForTheFirstRowAndOnceMoreForItself) {
    for (const int riga : {4, 9}) {
        BancoPrincipale b;
        b.Quando(2.9, [&] { b.specchio.fuochi.clear(); });
        b.Clicca(3, "difficolt", riga);
        b.Fine(4);
        b.Avvia();
        EXPECT_EQ(b.specchio.fuochi, (std::vector<std::string>{"Start", "Start"})) << riga;
    }
}

TEST(ListaEsercizi, ASeparatorAsTheFirstSelectionAfterARulerRangeGivesTheFocusAllTheSame) {
    BancoPrincipale b;
    b.PonStato("20;44;16;30;n");
    b.Righello(2.5, 3700);
    b.Quando(2.9, [&] {
        EXPECT_FALSE(b.finestra.esercizio.Start.Enabled());
        b.specchio.fuochi.clear();
    });
    b.Clicca(3, "difficolt", 9);
    b.Fine(4);
    b.Avvia();
    EXPECT_EQ(b.specchio.fuochi, std::vector<std::string>{"Start"});
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled());
    EXPECT_FALSE(b.finestra.intervalli.CaricamentoLista);
}

TEST(ListaEsercizi, DuringARunARowReplacesTheLimitsForTheNextNote) {
    BancoPrincipale b;
    b.Clicca(3, "Start");
    b.Clicca(4, "difficolt", 8);
    b.Tasto(5, 'H');  // n43, the note that stands, is SI
    b.Fine(6);
    b.Avvia();
    EXPECT_EQ(b.punteggio.Esatte, 1);
    EXPECT_EQ(b.finestra.stato.NotaCorrente, 11);
}

}  // namespace corvana::prova
