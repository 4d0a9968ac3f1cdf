// Intervals outside of a run, their roots, and what help shows.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

struct BancoAscolto : BancoInto {
    BancoAscolto() : BancoInto({PaginaInto::Intervalli}) {
        for (int i = 0; i < 3; ++i)
            Clicca(0.5, "lblModo");  // both at once
    }
    void Premuta(double da, double a, const std::string& nome) {
        Fa(da, Fatto::MouseDown, nome);
        Fa(a, Fatto::MouseUp, nome);
    }
    void Cambia(double t, const std::string& barra, int valore) {
        Fa(t, Fatto::Change, barra, valore);
    }
};

const Colore bianco = Rgb(255, 255, 255);

}  // namespace

TEST(AscoltoIntervalli, AHeldLabelSoundsItsIntervalWithItsKeysLit) {
    BancoAscolto b;
    b.Premuta(1, 3, "LblSemi7");
    b.Quando(2, [&] {
        EXPECT_EQ(b.Accesi(), (std::vector{24, 31}));
        EXPECT_EQ(b.finestra.intervalli.LblSemi[7].BackStyle(), fondoTrasparente);
    });
    b.Vai(4);
    EXPECT_EQ(b.Note(1),
              (Suonati{"0.0 0 0", "0.0 0 0", "0.0 60 90", "0.0 67 90", "2.0 60 0", "2.0 67 0"}));
    EXPECT_TRUE(b.Accesi().empty());
    EXPECT_EQ(b.finestra.intervalli.LblSemi[7].BackStyle(), fondoOpaco);
}

TEST(AscoltoIntervalli, StartClearsTheKeysOfALabelThatIsStillHeld) {
    BancoAscolto b;
    b.Estrai(4, 14);
    b.Fa(1, Fatto::MouseDown, "LblSemi7");
    b.Clicca(2, "CmdIntStart");
    b.Vai(3);
    EXPECT_EQ(b.Testo("CmdIntStart"), "Stop");
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(AscoltoIntervalli, TheNextOneClearsTheKeysOfTheLast) {
    BancoAscolto b;
    b.Fa(1, Fatto::MouseDown, "LblSemi7");
    b.Quando(2, [&] { b.finestra.intervalli.ppSuonaInt(2); });
    b.Vai(3);
    EXPECT_EQ(b.Accesi(), (std::vector{24, 26}));
    EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 60}, {1, 62}}));
}

TEST(AscoltoIntervalli, DuringARunAHeldLabelOnlyAnswers) {
    BancoAscolto b;
    b.Estrai(4, 14);
    b.Clicca(1, "CmdIntStart");
    b.Premuta(2, 3, "LblSemi7");
    b.Vai(4);
    EXPECT_TRUE(b.Note(2).empty());
    EXPECT_TRUE(b.Accesi().empty()) << "and without help no key is lit";
}

TEST(AscoltoIntervalli, OutsideOf0To13ThereIsNoInterval) {
    BancoAscolto b;
    b.Quando(1, [&] {
        b.finestra.intervalli.ppSuonaInt(-1);
        b.finestra.intervalli.ppSuonaInt(14);
    });
    b.Vai(2);
    EXPECT_TRUE(b.Note(1).empty());
}

TEST(RadiciIntervalli, TheBarsReachSoFarThatEveryIntervalHasItsKeys) {
    BancoAscolto b;
    const auto& p = b.finestra.intervalli;
    EXPECT_EQ((std::vector{p.SelIntRoot.Min(), p.SelIntRoot.Max(), p.SelIntRoot.Value()}),
              (std::vector{36, 82, 60}));
    EXPECT_EQ((std::vector{p.RifInf.Min(), p.RifInf.Max(), p.RifInf.Value()}),
              (std::vector{36, 60, 60}));
    EXPECT_EQ((std::vector{p.RifSup.Min(), p.RifSup.Max(), p.RifSup.Value()}),
              (std::vector{60, 82, 60}));
}

TEST(RadiciIntervalli, ANewRootSounds7TenthsWithItsNameAndItsKey) {
    BancoAscolto b;
    b.Cambia(1, "SelIntRoot", 82);
    b.Quando(1.5, [&] { EXPECT_EQ(b.Accesi(), std::vector{46}); });
    b.Quando(2, [&] { EXPECT_TRUE(b.Accesi().empty()); });
    b.Premuta(3, 4, "LblSemi13");
    b.Vai(5);
    EXPECT_EQ(b.Testo("IntRoot"), "La#");
    EXPECT_EQ(b.Note(1), (Suonati{"0.0 82 90", "0.7 82 0", "2.0 0 0", "2.0 0 0", "2.0 82 90",
                                  "2.0 95 90", "3.0 82 0", "3.0 95 0"}));
    EXPECT_TRUE(b.Accesi().empty());
}

TEST(RadiciIntervalli, AVariableRootIsDrawnForEachIntervalFromItsRange) {
    BancoAscolto b;
    b.Clicca(1, "lblFv");
    b.Quando(1.5, [&] {
        EXPECT_EQ(b.Testo("lblFv"), "variabile");
        EXPECT_TRUE(b.Visibile("frmRifVar"));
        EXPECT_FALSE(b.Visibile("IntRoot"));
        EXPECT_FALSE(b.Visibile("SelIntRoot"));
        EXPECT_EQ(b.Testo("lblRifInf") + b.Testo("lblRifSup"), "DoDo");
    });
    b.Cambia(2, "RifInf", 50);
    b.Cambia(4, "RifSup", 62);
    b.Quando(5, [&] {
        EXPECT_EQ(b.Testo("lblRifInf") + b.Testo("lblRifSup"), "ReRe");
        EXPECT_EQ(b.Note(2), (Suonati{"0.0 50 90", "0.7 50 0", "2.0 62 90", "2.7 62 0"}));
    });
    for (const int quale : {0, 12})
        b.Estrai(quale, 13);
    b.Premuta(6, 7, "LblSemi1");
    b.Premuta(8, 9, "LblSemi1");
    b.Clicca(10, "lblFv");
    b.Vai(11);
    EXPECT_EQ(b.Note(6),
              (Suonati{"0.0 0 0", "0.0 0 0", "0.0 50 90", "0.0 51 90", "1.0 50 0", "1.0 51 0",
                       "2.0 50 0", "2.0 51 0", "2.0 62 90", "2.0 63 90", "3.0 62 0", "3.0 63 0"}));
    EXPECT_EQ(b.finestra.intervalli.IntRadice, 0) << "fixed, it is the bar's again";
    EXPECT_FALSE(b.Visibile("frmRifVar"));
    EXPECT_TRUE(b.Visibile("SelIntRoot"));
}

TEST(RadiciIntervalli, ARangeOfOneRootDrawsNothing) {
    BancoAscolto b;
    b.Clicca(1, "lblFv");
    b.Premuta(2, 3, "LblSemi1");
    b.Vai(4);
    EXPECT_EQ(b.casuale.estratti, 0);
    EXPECT_EQ(b.finestra.intervalli.IntRadice, 0);
}

TEST(RadiciIntervalli, RepeatKeepsTheRootAlsoWhenItIsVariable) {
    BancoAscolto b;
    b.Clicca(1, "lblFv");
    b.Cambia(1, "RifInf", 50);
    b.Estrai(4, 14);
    b.Estrai(3, 11);
    b.Clicca(3, "CmdIntStart");
    b.Clicca(5, "lblRipInt");
    b.Vai(6);
    EXPECT_EQ(b.casuale.estratti, 2);
    EXPECT_EQ(b.Note(5), (Suonati{"0.0 53 0", "0.0 57 0", "0.0 53 90", "0.0 57 90"}));
}

TEST(RadiciIntervalli, APressOnEitherNameShowsTheWholeRange) {
    for (const char* nome : {"lblRifInf", "lblRifSup"}) {
        BancoAscolto b;
        b.Clicca(1, "lblFv");
        b.Cambia(2, "RifInf", 40);
        b.Cambia(4, "RifSup", 80);
        b.Premuta(6, 7, nome);
        b.Quando(6.5, [&] { EXPECT_EQ(b.Accesi(), (std::vector{4, 44})); });
        b.Vai(8);
        EXPECT_TRUE(b.Accesi().empty());
    }
}

TEST(AiutoIntervalli, ItShowsTheAnswerAtNoCostAndHidesItAgain) {
    BancoAscolto b;
    b.Clicca(0.8, "lblIntSh");
    b.Estrai(4, 14);
    b.Clicca(1, "CmdIntStart");
    b.Quando(1.5, [&] { EXPECT_EQ(b.Testo("lblIntSh"), "?") << "not outside of a run"; });
    b.Clicca(2, "lblIntSh");
    b.Quando(2.5, [&] {
        EXPECT_EQ(b.Accesi(), (std::vector{24, 28}));
        EXPECT_EQ(b.Testo("lblNi") + b.Testo("lblNs"), "DoMi");
        EXPECT_TRUE(b.Visibile("lblNi") && b.Visibile("lblNs"));
        EXPECT_EQ(b.Fondo("LblSemi4"), bianco);
    });
    b.Clicca(3, "lblIntSh");
    b.Vai(4);
    EXPECT_TRUE(b.Accesi().empty());
    EXPECT_EQ(b.Testo("lblNi") + b.Testo("lblNs"), "");
    EXPECT_FALSE(b.Visibile("lblNs"));
    EXPECT_EQ(b.Fondo("LblSemi4"), b.Fondo("lblIntSh"));
    EXPECT_EQ(b.Punti(), "0 0 0");
}

TEST(AiutoIntervalli, WithItOnEachNewPairShowsItsAnswerInPlaceOfTheLast) {
    BancoAscolto b;
    for (const int semitoni : {4, 7})
        b.Estrai(semitoni, 14);
    b.Clicca(1, "CmdIntStart");
    b.Clicca(2, "lblIntSh");
    b.Clicca(3, "LblSemi4");
    b.Vai(4);
    EXPECT_EQ(b.Fondo("LblSemi4"), b.Fondo("lblIntSh"));
    EXPECT_EQ(b.Fondo("LblSemi7"), bianco);
    EXPECT_EQ(b.Accesi(), (std::vector{24, 31}));
    EXPECT_EQ(b.Testo("lblNs"), "Sol");
}

TEST(AiutoIntervalli, OutsideOfARunItRestoresByTheOldDistanceAndWhitensWhatWasDrawnLast) {
    BancoAscolto b;
    b.Estrai(4, 14);
    b.Clicca(1, "CmdIntStart");
    b.Clicca(2, "lblIntSh");
    b.Clicca(3, "CmdIntStart");
    b.Premuta(4, 5, "LblSemi9");
    b.Quando(4.5, [&] {
        EXPECT_EQ(b.Fondo("LblSemi4"), bianco) << "not the one that is pressed";
        EXPECT_EQ(b.Fondo("LblSemi9"), b.Fondo("lblIntSh"));
        EXPECT_EQ(b.Testo("lblNs"), "La");
    });
    b.Premuta(6, 7, "LblSemi2");
    b.Vai(8);
    EXPECT_EQ(b.Fondo("LblSemi4"), bianco);
}

}  // namespace corvana::prova
