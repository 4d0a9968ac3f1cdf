// The drill of finding keys, and the spellings that it asks for.
#include <gtest/gtest.h>

#include "eartrainer/key_spelling.h"
#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

struct BancoTasti : BancoInto {
    BancoTasti() : BancoInto({PaginaInto::Tasti}) {}
    /// Number 1 to 21 of all spellings.
    void Chiedi(int numero) { Estrai(numero - 1, 21); }
};

struct Grafia {
    const char* latino;
    const char* anglo;
    int midi;
};

const std::vector<Grafia> grafie = {
    {"Dob", "Cb", 59}, {"Do", "C", 60},   {"Do#", "C#", 61},  {"Reb", "Db", 61}, {"Re", "D", 62},
    {"Re#", "D#", 63}, {"Mib", "Eb", 63}, {"Mi", "E", 64},    {"Mi#", "E#", 65}, {"Fab", "Fb", 64},
    {"Fa", "F", 65},   {"Fa#", "F#", 66}, {"Solb", "Gb", 66}, {"Sol", "G", 67},  {"Sol#", "G#", 68},
    {"Lab", "Ab", 68}, {"La", "A", 69},   {"La#", "A#", 70},  {"Sib", "Bb", 70}, {"Si", "B", 71},
    {"Si#", "B#", 72}};

}  // namespace

TEST(GrafiaTasto, AllKeysHave21InBothNotations) {
    for (std::size_t i = 0; i < grafie.size(); ++i)
        for (const bool anglo : {false, true}) {
            const auto chiesto = GrafiaTasto(static_cast<std::int16_t>(i + 1), false, anglo);
            EXPECT_EQ(chiesto.nome, anglo ? grafie[i].anglo : grafie[i].latino);
            EXPECT_EQ(chiesto.midi, grafie[i].midi) << chiesto.nome;
        }
}

TEST(GrafiaTasto, WhiteKeysAloneHaveSeven) {
    const std::vector<Grafia> bianche = {{"Do", "C", 60}, {"Re", "D", 62},  {"Mi", "E", 64},
                                         {"Fa", "F", 65}, {"Sol", "G", 67}, {"La", "A", 69},
                                         {"Si", "B", 71}};
    for (std::size_t i = 0; i < bianche.size(); ++i)
        for (const bool anglo : {false, true}) {
            const auto chiesto = GrafiaTasto(static_cast<std::int16_t>(i + 1), true, anglo);
            EXPECT_EQ(chiesto.nome, anglo ? bianche[i].anglo : bianche[i].latino);
            EXPECT_EQ(chiesto.midi, bianche[i].midi);
        }
}

TEST(GrafiaSemplice, NineSpellingsOfEachNotationHaveAPlainOneAndAnyOtherIsItsOwn) {
    const std::vector<std::array<const char*, 4>> attese = {
        {"Dob", "Si", "Cb", "B"},    {"Reb", "Do#", "Db", "C#"}, {"Mib", "Re#", "Eb", "D#"},
        {"Fab", "Mi", "Fb", "E"},    {"Mi#", "Fa", "E#", "F"},   {"Solb", "Fa#", "Gb", "F#"},
        {"Lab", "Sol#", "Ab", "G#"}, {"Sib", "La#", "Bb", "A#"}, {"Si#", "Do", "B#", "C"}};
    for (const auto& [latino, plano, anglo, plain] : attese) {
        EXPECT_EQ(GrafiaSemplice(latino, false), plano);
        EXPECT_EQ(GrafiaSemplice(anglo, true), plain);
        EXPECT_EQ(GrafiaSemplice(latino, true), latino) << "of the other notation";
        EXPECT_EQ(GrafiaSemplice(anglo, false), anglo);
    }
    for (const char* nome : {"Do", "Do#", "Si", "La#", "", "x"})
        EXPECT_EQ(GrafiaSemplice(nome, false), nome);
}

TEST(RicercaTasti, AtRestThePromptIsThePagesNameAndClicksAreNothing) {
    BancoTasti b;
    b.Tasto(1, 24);
    b.Vai(2);
    EXPECT_EQ(b.Passo(), "Riconoscimento tasti");
    EXPECT_EQ(b.Testo("lblSceltaTasti"), "solo bianchi");
    EXPECT_EQ(b.Punti(), "0 0 0");
}

TEST(RicercaTasti, AQuestionIsANameAndItsNoteHeldAndAnyOctaveIsRight) {
    BancoTasti b;
    b.Estrai(2, 7);
    b.Estrai(4, 7);
    b.Clicca(1, "cmdRicTasto");
    b.Quando(1.5, [&] {
        EXPECT_EQ(b.Passo(), "<Mi>");
        EXPECT_FALSE(b.finestra.menu.Esercizio.Enabled());
        EXPECT_FALSE(b.finestra.telaio.cmdEsci.Enabled());
    });
    b.Tasto(2, 5);
    b.Quando(2.5, [&] { EXPECT_EQ(b.Passo(), "<Mi>"); });
    b.Tasto(3, 52);
    b.Quando(3.5, [&] { EXPECT_EQ(b.Passo(), "<Sol>"); });
    b.Clicca(4, "cmdRicTasto");
    b.Vai(5);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 64 90", "2.0 64 0", "2.0 67 90", "3.0 67 0"}));
    EXPECT_EQ(b.Punti(), "1 1 50.00%");
    EXPECT_TRUE(b.finestra.menu.Esercizio.Enabled());
    EXPECT_TRUE(b.finestra.telaio.cmdEsci.Enabled());
}

TEST(RicercaTasti, TheNoteAfterAStopIsLetGoAgainByTheNextStart) {
    BancoTasti b;
    b.Clicca(1, "cmdRicTasto");
    b.Clicca(2, "cmdRicTasto");
    b.Clicca(3, "cmdRicTasto");
    b.Vai(4);
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 60 90", "1.0 60 0", "2.0 60 0", "2.0 60 90"}));
}

TEST(RicercaTasti, MiSharpIsFoundOnEveryFaAndFFlatOnEveryE) {
    for (int ottava = 0; ottava < 5; ++ottava)
        for (const bool anglo : {false, true}) {
            BancoTasti b;
            b.globali.NomiAnglo = anglo;
            b.Clicca(0.5, "lblSceltaTasti");
            b.Chiedi(anglo ? 10 : 9);
            b.Chiedi(1);
            b.Clicca(1, "cmdRicTasto");
            b.Quando(1.5, [&] { EXPECT_EQ(b.Passo(), anglo ? "<Fb>" : "<Mi#>"); });
            b.Tasto(2, 12 * ottava + (anglo ? 4 : 5));
            b.Quando(2.5, [&] { EXPECT_EQ(b.Passo(), anglo ? "<Cb>" : "<Dob>"); });
            b.Tasto(3, 12 * ottava + 11);
            b.Vai(4);
            EXPECT_EQ(b.Punti(), "2 0 100.00%") << ottava;
        }
}

TEST(RicercaTasti, EachOfThe21IsRightOnTheKeysOfItsNoteAloneInBothNotations) {
    for (int numero = 1; numero <= 21; ++numero)
        for (const bool anglo : {false, true}) {
            BancoTasti b;
            b.globali.NomiAnglo = anglo;
            b.Clicca(0.5, "lblSceltaTasti");
            const int giusto = grafie[static_cast<std::size_t>(numero - 1)].midi % 12;
            b.Chiedi(numero);
            b.Clicca(1, "cmdRicTasto");
            for (int tasto = 12; tasto < 24; ++tasto)
                if (tasto % 12 != giusto) b.Tasto(2, tasto);
            b.Tasto(3, 12 + giusto);
            b.Vai(4);
            EXPECT_EQ(b.Punti(), "1 11 8.33%") << numero;
        }
}

TEST(RicercaTasti, ThePlainSpellingReplacesTheStoredNameAndNeverTheTextOnTheScreen) {
    BancoTasti b;
    b.Clicca(0.5, "lblSceltaTasti");
    b.Chiedi(4);
    b.Clicca(1, "cmdRicTasto");
    b.Tasto(2, 24);
    b.Vai(3);
    EXPECT_EQ(b.Passo(), "<Reb>");
    EXPECT_EQ(b.finestra.tasti.NomeChiesto, "Do#");
}

TEST(RicercaTasti, WithTheNotationChangedInARunNoKeyIsRightUntilStop) {
    BancoTasti b;
    b.Clicca(1, "cmdRicTasto");
    b.Clicca(2, "mnuNotAnglo");
    for (int tasto = 0; tasto < 60; ++tasto)
        b.Tasto(3, tasto);
    b.Quando(4, [&] {
        EXPECT_EQ(b.Passo(), "<Do>");
        EXPECT_EQ(b.Punti(), "0 60 0.00%");
    });
    b.Clicca(5, "cmdRicTasto");
    b.Clicca(6, "cmdRicTasto");
    b.Tasto(7, 0);
    b.Vai(8);
    EXPECT_EQ(b.Punti(), "1 0 100.00%");
}

TEST(RicercaTasti, TheDifficultyCanChangeAtAnyTimeAndHoldsFromTheNextQuestionOn) {
    BancoTasti b;
    b.Estrai(0, 7);
    b.Chiedi(21);
    b.Clicca(1, "cmdRicTasto");
    b.Clicca(2, "lblSceltaTasti");
    b.Tasto(3, 0);
    b.Quando(3.5, [&] {
        EXPECT_EQ(b.Testo("lblSceltaTasti"), "tutti");
        EXPECT_EQ(b.Passo(), "<Si#>");
    });
    b.Clicca(4, "lblSceltaTasti");
    b.Vai(5);
    EXPECT_EQ(b.Testo("lblSceltaTasti"), "solo bianchi");
}

TEST(RicercaTasti, ItsNoteIsTheReferenceOfIntonationUntilThatPageReadsItsOwn) {
    BancoTasti b;
    b.Clicca(1, "cmdRicTasto");
    b.Clicca(2, "cmdRicTasto");
    b.Quando(2.5, [&] { EXPECT_EQ(b.finestra.telaio.NotaRif, 60); });
    b.Clicca(3, "mnuNotA");
    b.Quando(3.5, [&] { EXPECT_EQ(b.finestra.telaio.NotaRif, 69); });
    b.Clicca(4, "mnuRicTasto");
    b.Clicca(5, "cmdRicTasto");
    b.Vai(6);
    EXPECT_EQ(b.Note(5), (Suonati{"0.0 69 0", "0.0 60 90"}));
}

}  // namespace corvana::prova
