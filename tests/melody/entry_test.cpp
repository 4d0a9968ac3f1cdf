// What a note entered behind the last one becomes, and a rest.
#include "melody/entry.h"

#include <gtest/gtest.h>

#include "tests/melody/edited_voice.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

struct Immissione {
    StatoInserimento stato;
    VoceMelodia voce;
    OpzioniInserimento opzioni;

    bool Nota(std::int16_t nota) {
        stato.notaAttiva = nota;
        return InserisciNota(stato, voce, opzioni);
    }
    void Pausa() { InserisciPausa(stato, voce, opzioni); }
    TestiVoce T() const { return TestiDellaVoce(voce); }
};

struct CasoValore {
    std::uint8_t attributo;
    bool accento;
    const char* durata;
    const char* lettera;
};

Immissione ConEighth(const CasoValore& caso) {
    Immissione i;
    ScegliFigura(i.stato, 3);
    i.stato.attributoAttivo = caso.attributo;
    i.stato.accentoAcceso = caso.accento;
    i.opzioni.per = 3;
    return i;
}

}  // namespace

TEST(ValoreFigura, IsThatOfTheSevenButtons) {
    const std::array<double, 7> attesi = {4, 2, 1, 0.5, 0.25, 0.125, 0.0625};
    for (std::uint8_t figura = 0; figura < 7; ++figura) {
        StatoInserimento stato;
        ScegliFigura(stato, figura);
        EXPECT_EQ(stato.figuraAttiva, figura);
        EXPECT_EQ(stato.valoreFigura, attesi.at(figura));
    }
}

TEST(InserisciNota, AtTheStartIsDoCentraleAsAPlainQuarter) {
    Immissione i;
    EXPECT_TRUE(InserisciNota(i.stato, i.voce, i.opzioni));
    EXPECT_EQ(i.T(), (TestiVoce{"60;", "1;", "n;"}));
}

TEST(InserisciNota, ThreeTimesAnEighthByEachAttribute) {
    for (const CasoValore& caso : {CasoValore{0, false, "2.25;", "n;"},
                                   {1, false, "1.5;", "s;"},
                                   {2, false, "1.5;", "n;"},
                                   {3, false, "1;", "n;"},
                                   {3, true, "1;", "a;"},
                                   {4, false, "1.5;", "t;"},
                                   {5, false, "1.5;", "a;"},
                                   {6, true, "1.5;", "n;"}}) {
        Immissione i = ConEighth(caso);
        EXPECT_TRUE(i.Nota(72));
        EXPECT_EQ(i.T(), (TestiVoce{"72;", caso.durata, caso.lettera})) << int(caso.attributo);
    }
}

TEST(InserisciPausa, TakesTheValueOfTheAttributesAndNeverTheirLetters) {
    for (const CasoValore& caso : {CasoValore{0, false, "2.25;", "p;"},
                                   {1, false, "1.5;", "p;"},
                                   {2, false, "1.5;", "p;"},
                                   {3, true, "1;", "p;"},
                                   {4, false, "1.5;", "p;"},
                                   {5, false, "1.5;", "p;"},
                                   {6, false, "1.5;", "p;"}}) {
        Immissione i = ConEighth(caso);
        i.stato.notaAttiva = 0;
        i.Pausa();
        EXPECT_EQ(i.T(), (TestiVoce{"00;", caso.durata, caso.lettera})) << int(caso.attributo);
        EXPECT_EQ(i.stato.notaAttiva, 0);
    }
}

TEST(InserisciNota, SpellsTheValueWithTheSystemsSeparatorAnd15Digits) {
    Immissione i;
    i.opzioni.separatore = ',';
    ScegliFigura(i.stato, 3);
    i.stato.attributoAttivo = attributoTerzina;
    i.Nota(60);
    EXPECT_EQ(i.voce.testoDurate, "0,333333333333333;");
}

TEST(InserisciNota, AMultiplierOf0GivesAValueOf0) {
    Immissione i;
    i.opzioni.per = 0;
    i.Nota(60);
    EXPECT_EQ(i.voce.testoDurate, "0;");
}

TEST(InserisciNota, OutsideOfTheFiveOctavesDoesNothingAtAll) {
    for (const int nota : {0, 35, 96, 32767, -32768}) {
        Immissione i;
        i.stato.soloAscolto = true;
        i.stato.attributoAttivo = attributoStaccato;
        EXPECT_FALSE(i.Nota(static_cast<std::int16_t>(nota)));
        EXPECT_EQ(i.T(), (TestiVoce{"", "", ""}));
        EXPECT_TRUE(i.stato.soloAscolto);
        EXPECT_EQ(i.stato.attributoAttivo, attributoStaccato);
    }
    Immissione i;
    EXPECT_TRUE(i.Nota(36) && i.Nota(95));
    EXPECT_EQ(i.voce.testoNote, "36;95;");
}

TEST(InserisciNota, TheAttributeGoesOutUnlessItIsKept) {
    Immissione i;
    i.stato.attributoAttivo = attributoStaccato;
    i.opzioni.conserva = true;
    i.Nota(60);
    i.Nota(62);
    EXPECT_EQ(i.stato.letteraAttributo, "s");
    i.opzioni.conserva = false;
    i.Nota(64);
    EXPECT_EQ(i.stato.letteraAttributo, "n");
    i.Nota(65);
    EXPECT_EQ(i.voce.testoAttributi, "s;s;s;n;");
    EXPECT_EQ(i.stato.attributoAttivo, senzaAttributo);
}

TEST(Legatura, ReplacesTheLastNoteByThePitchInUseForBothValues) {
    Immissione i;
    i.voce = VoceSpezzata("60;62;", "1;1;", "n;s;");
    i.stato.attributoAttivo = attributoLegatura;
    i.Nota(64);
    EXPECT_EQ(i.T(), (TestiVoce{"60;64;", "1;2;", "n;n;"}));
    EXPECT_EQ(i.stato.valorePrecedente, 1);
    EXPECT_EQ(i.stato.attributoAttivo, senzaAttributo);
}

TEST(Legatura, OfASingleNoteReplacesIt) {
    Immissione i;
    i.voce = VoceSpezzata("60;", "0,75;", "s;");
    i.stato.attributoAttivo = attributoLegatura;
    i.Nota(62);
    EXPECT_EQ(i.T(), (TestiVoce{"62;", "1.75;", "n;"}));
}

TEST(Legatura, CanBeChainedToASumThatNoFigureNames) {
    Immissione i;
    i.opzioni.conserva = true;
    i.stato.attributoAttivo = attributoLegatura;
    for (int volta = 0; volta < 5; ++volta)
        i.Nota(60);
    EXPECT_EQ(i.T(), (TestiVoce{"60;", "5;", "n;"}));
}

TEST(Legatura, MakesANoteOfARestAndARestOfANote) {
    Immissione i;
    i.voce = VoceSpezzata("60;00;", "1;0.5;", "n;p;");
    i.stato.attributoAttivo = attributoLegatura;
    i.Nota(62);
    EXPECT_EQ(i.T(), (TestiVoce{"60;62;", "1;1.5;", "n;n;"}));
    i.stato.attributoAttivo = attributoLegatura;
    i.Pausa();
    EXPECT_EQ(i.T(), (TestiVoce{"60;00;", "1;2.5;", "n;p;"}));
}

TEST(Legatura, ALastNoteThatCantBeReadIsAFaultThatChangesNothing) {
    for (const auto& [voce, numero] : {std::pair{VoceSpezzata("60;62;", "1;x;", "n;n;"), 13},
                                       {VoceSpezzata("60;", "", "n;"), 13},
                                       {VoceSpezzata("60;", "1;1;", "n;"), 5}}) {
        Immissione i;
        i.voce = voce;
        i.stato.attributoAttivo = attributoLegatura;
        EXPECT_EQ(NumeroDelGuasto([&] { i.Nota(64); }), numero);
        EXPECT_EQ(i.T(), TestiDellaVoce(voce));
        EXPECT_EQ(i.stato.attributoAttivo, attributoLegatura);
    }
}

TEST(InserisciNota, IntoAFullVoiceIsAnOverflowThatCountsNothing) {
    Immissione i;
    for (int nota = 0; nota < 32767; ++nota)
        i.voce.testoNote += "60;";
    i.stato.attributoAttivo = attributoTerzina;
    EXPECT_EQ(NumeroDelGuasto([&] { i.Nota(60); }), 6);
    EXPECT_EQ(NumeroDelGuasto([&] { i.Pausa(); }), 6);
    EXPECT_EQ(i.stato.contaTerzina, 0);
    EXPECT_EQ(i.voce.testoNote.size(), 32767U * 3);
    EXPECT_EQ(i.voce.testoDurate, "");
}

TEST(Moltiplicatore, IsTheWholeNumberInTheBox) {
    for (const auto& [testo, atteso] : {std::pair{"1", 1},
                                        {" 7 ", 7},
                                        {"100", 100},
                                        {"2.5", 2},
                                        {"3,5", 4},
                                        {"0.4", 0},
                                        {"-3", -3},
                                        {"32767", 32767},
                                        {"-32768", -32768}})
        EXPECT_EQ(Moltiplicatore(testo), atteso) << testo;
    for (const auto& [testo, numero] :
         {std::pair{"", 13}, {"x", 13}, {"1e", 13}, {"32768", 6}, {"-32769", 6}})
        EXPECT_EQ(NumeroDelGuasto([t = testo] { Moltiplicatore(t); }), numero) << testo;
}

TEST(Moltiplicatore, ABoxThatIsLeftHoldsANumberFrom0To100OrA1) {
    for (const char* testo : {"0", "1", "100", "99.9", "2,5", " 3 "})
        EXPECT_EQ(MoltiplicatoreValido(testo), testo);
    for (const char* testo : {"", " ", "x", "-1", "-0.5", "100.5", "101", "1e400"})
        EXPECT_EQ(MoltiplicatoreValido(testo), "1") << testo;
}

}  // namespace corvana::prova
