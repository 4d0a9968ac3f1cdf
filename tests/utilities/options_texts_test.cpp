// What the reference chart says and in which colours, written down by hand.
#include <gtest/gtest.h>

#include <map>

#include "tests/support/rig.h"
#include "utilities/options.h"

namespace corvana::prova {

namespace {

struct BancoTavole : Banco {
    frmOptions f{Tutto()};
};

using Testi = std::vector<std::string>;

template <class Serie>
Testi TestiDellaSerie(const Serie& serie) {
    Testi testi;
    for (const auto& controllo : serie)
        testi.push_back(controllo.Caption());
    return testi;
}

constexpr Colore celeste = Rgb(192, 255, 255), grigio = Rgb(192, 192, 192),
                 chiaro = Rgb(224, 224, 224), giallo = Rgb(255, 255, 192);

}  // namespace

TEST(TestiPromemoria, TheWindowItsButtonsAndItsPagesAreCalledSo) {
    BancoTavole b;
    EXPECT_EQ(b.f.Caption(), "Promemoria");
    EXPECT_EQ(b.f.cmdOK.Caption(), "Chiudi");
    EXPECT_EQ(TestiDellaSerie(b.f.cmdSel), (Testi{"Nomi Note", "Tonalità", "Intervalli"}));
    EXPECT_EQ(TestiDellaSerie(b.f.Frame1),
              (Testi{"Nomi delle note, loro durata e simboli delle relative pause ",
                     "Specchio delle tonalità ", "Intervalli "}));
}

TEST(TestiPromemoria, TheNotesHaveTheirLatinNamesAndTheirLettersBeneath) {
    BancoTavole b;
    EXPECT_EQ(TestiDellaSerie(b.f.Label36), (Testi{"Do", "Re", "Mi", "Fa", "Sol", "La", "Si", "C",
                                                   "D", "E", "F", "G", "A", "B"}));
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(b.f.Label36[i].Left(), b.f.Label36[i + 7].Left());
        EXPECT_LT(b.f.Label36[i].Top(), b.f.Label36[i + 7].Top());
    }
}

TEST(TestiPromemoria, TheSevenValuesAreNamed) {
    BancoTavole b;
    EXPECT_EQ(TestiDellaSerie(b.f.lblnn), (Testi{"Semibreve", "Minima", "Semiminima", "Croma",
                                                 "Semicroma", "Biscroma", "Semibiscroma"}));
}

TEST(TestiPromemoria, TheMirrorOfTheKeysHasItsHeadings) {
    BancoTavole b;
    EXPECT_EQ(b.f.lblModo.Caption(), "Modo");
    EXPECT_EQ(b.f.lblMa.Caption(), "Maggiore");
    EXPECT_EQ(b.f.lblMi.Caption(), "Minore");
    EXPECT_EQ(b.f.Label37.Caption(), "N° Acc.");
    EXPECT_EQ(b.f.lblNa[0].Caption(), "Nota alterata");
}

TEST(TestiPromemoria, EachRowOfTheMirrorHasItsLettersAndTheNotesThatItAlters) {
    BancoTavole b;
    EXPECT_EQ(TestiDellaSerie(b.f.lblMag),
              (Testi{"(C)", "(G)", "(D)", "(A)", "(E)", "(B)", "(F)", "(C)", "(F)", "(B)", "(E)",
                     "(A)", "(D)", "(G)", "(C)"}));
    EXPECT_EQ(TestiDellaSerie(b.f.lblMin),
              (Testi{"(A)", "(E)", "(B)", "(F)", "(C)", "(G)", "(D)", "(A)", "(D)", "(G)", "(C)",
                     "(F)", "(B)", "(E)", "(A)"}));
    EXPECT_EQ(
        TestiDellaSerie(b.f.lblNa),
        (Testi{"Nota alterata", "Fa", "Fa,Do", "Fa,Do,Sol", "Fa,Do,Sol,Re", "Fa,Do,Sol,Re,La",
               "Fa,Do,Sol,Re,La,Mi", "Fa,Do,Sol,Re,La,Mi,Si", "Si", "Si,Mi", "Si,Mi,La",
               "Si,Mi,La,Re", "Si,Mi,La,Re,Sol", "Si,Mi,La,Re,Sol,Do", "Si,Mi,La,Re,Sol,Do,Fa"}));
}

TEST(TestiPromemoria, WhatBelongsToARowLiesInIt) {
    BancoTavole b;
    for (std::size_t i = 0; i < 15; ++i) {
        EXPECT_EQ(b.f.lblMag[i].Top(), b.f.lblMin[i].Top());
        EXPECT_TRUE(i == 0 || b.f.lblNa[i].Top() == b.f.lblMag[i].Top()) << i;
        EXPECT_GE(b.f.Ton[i].Top(), b.f.lblMag[i].Top());
        EXPECT_LE(b.f.Ton[i].Top() + b.f.Ton[i].Height(),
                  b.f.lblMag[i].Top() + b.f.lblMag[i].Height());
    }
}

TEST(TestiPromemoria, TheLatinNamesOfTheKeysBearTheirAccidentals) {
    // 1 for a sharp, -1 for a flat, by row.
    const std::vector<std::tuple<int, std::string, int, std::string, int>> righe = {
        {0, "Do", 0, "La", 0},    {1, "Sol", 0, "Mi", 0},    {2, "Re", 0, "Si", 0},
        {3, "La", 0, "Fa", 1},    {4, "Mi", 0, "Do", 1},     {5, "Si", 0, "Sol", 1},
        {6, "Fa", 1, "Re", 1},    {7, "Do", 1, "La", 1},     {-1, "Fa", 0, "Re", 0},
        {-2, "Si", -1, "Sol", 0}, {-3, "Mi", -1, "Do", 0},   {-4, "La", -1, "Fa", 0},
        {-5, "Re", -1, "Si", -1}, {-6, "Sol", -1, "Mi", -1}, {-7, "Do", -1, "La", -1}};
    ASSERT_EQ(specchioTonalita.size(), righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const auto& [accidenti, maggiore, conMaggiore, minore, conMinore] = righe[i];
        const RigaSpecchio& riga = specchioTonalita.at(i);
        EXPECT_EQ(riga.accidenti, accidenti);
        EXPECT_EQ(riga.maggiore.nome, maggiore) << i;
        EXPECT_EQ(riga.maggiore.alterazione, conMaggiore) << i;
        EXPECT_EQ(riga.minore.nome, minore) << i;
        EXPECT_EQ(riga.minore.alterazione, conMinore) << i;
    }
}

TEST(TestiPromemoria, TheDegreesHaveTheirOwnBlanks) {
    BancoTavole b;
    EXPECT_EQ(b.f.Gradi.Caption(), "Gradi");
    EXPECT_EQ(
        TestiDellaSerie(b.f.Label35),
        (Testi{" I      Tonica", " II     Sopratonica", " III    Mediante", " IV    Sottodominante",
               " V     Dominante", " VI    Sopradominante", " VII   Sensibile"}));
}

TEST(TestiPromemoria, EachIntervalHasTheColourOfItsClass) {
    BancoTavole b;
    const std::map<std::string, Colore> attesi = {
        {"2 Dim", celeste},  {"3 Min", celeste}, {"3 Mag", celeste}, {"4 Gius", celeste},
        {"5 Gius", celeste}, {"6 Min", celeste}, {"6 Mag", celeste}, {"8 Gius", celeste},
        {"2 Min", grigio},   {"2 Mag", grigio},  {"3 Dim", chiaro},  {"2 Ecc", chiaro},
        {"4 Dim", chiaro},   {"3 Ecc", chiaro},  {"4 Ecc", chiaro},  {"5 Dim", chiaro},
        {"6 Dim", chiaro},   {"5 Ecc", chiaro},  {"7 Dim", chiaro},  {"6 Ecc", chiaro},
        {"7 Min", chiaro},   {"7 Mag", chiaro},  {"8 Dim", chiaro},  {"7 Ecc", chiaro},
        {"8 Ecc", chiaro}};
    std::map<std::string, Colore> trovati;
    for (const Etichetta& nome : b.f.Label4)
        trovati[nome.Caption] = nome.BackColor;
    EXPECT_EQ(trovati, attesi);
}

TEST(TestiPromemoria, TheClassIsToldByMoreThanTheColour) {
    BancoTavole b;
    const std::map<Colore, std::string> segni = {
        {celeste, "consonante"}, {grigio, "melodico"}, {chiaro, "dissonante"}};
    for (const Etichetta& nome : b.f.Label4)
        EXPECT_TRUE(nome.stile.starts_with(segni.at(nome.BackColor))) << nome.Caption();
    for (const Etichetta* legenda : {&b.f.Label32, &b.f.Label33, &b.f.Label34})
        EXPECT_TRUE(legenda->stile.starts_with(segni.at(legenda->BackColor)));
}

TEST(TestiPromemoria, TheLegendsExplainTheColours) {
    BancoTavole b;
    EXPECT_EQ(b.f.Label32.Caption(), "Intervalli consonanti");
    EXPECT_EQ(b.f.Label34.Caption(), "Consonanti se l'intervallo è melodico");
    EXPECT_EQ(b.f.Label33.Caption(), "Intervalli dissonanti");
    EXPECT_EQ(b.f.Label32.BackColor(), celeste);
    EXPECT_EQ(b.f.Label34.BackColor(), grigio);
    EXPECT_EQ(b.f.Label33.BackColor(), chiaro);
}

TEST(TestiPromemoria, TheSemitonesStandInARowWithTheirNamesAboveAndBelow) {
    BancoTavole b;
    struct Colonna {
        const char* sopra;
        const char* sotto;
        Colore numero;
    };
    const std::vector<Colonna> colonne = {
        {"", "2 Dim", celeste},       {"", "2 Min", giallo},        {"2 Mag", "3 Dim", giallo},
        {"2 Ecc", "3 Min", celeste},  {"3 Mag", "4 Dim", celeste},  {"3 Ecc", "4 Gius", celeste},
        {"4 Ecc", "5 Dim", giallo},   {"5 Gius", "6 Dim", celeste}, {"5 Ecc", "6 Min", celeste},
        {"6 Mag", "7 Dim", celeste},  {"6 Ecc", "7 Min", giallo},   {"7 Mag", "8 Dim", giallo},
        {"7 Ecc", "8 Gius", celeste}, {"8 Ecc", "", giallo}};
    EXPECT_EQ(b.f.Label31.Caption(), "Semit.");
    ASSERT_EQ(b.f.LblSemi.size(), colonne.size());
    for (std::size_t n = 0; n < colonne.size(); ++n) {
        const Etichetta& numero = b.f.LblSemi[n];
        EXPECT_EQ(numero.Caption(), std::to_string(n));
        EXPECT_EQ(numero.BackColor(), colonne[n].numero) << n;
        std::string sopra, sotto;
        for (const Etichetta& nome : b.f.Label4)
            if (nome.Left() == numero.Left())
                (nome.Top() < numero.Top() ? sopra : sotto) += nome.Caption;
        EXPECT_EQ(sopra, colonne[n].sopra) << n;
        EXPECT_EQ(sotto, colonne[n].sotto) << n;
    }
}

TEST(TestiPromemoria, TheRuleOfInversionStandsInTwoAlignedRows) {
    BancoTavole b;
    EXPECT_EQ(TestiDellaSerie(b.f.lblInter),
              (Testi{"Intervallo", "2 3 4 5 6 7 M m G E D", "Rivolto", "7 6 5 4 3 2 m M G D E"}));
    EXPECT_EQ(b.f.lblInter[1].Left(), b.f.lblInter[3].Left());
    EXPECT_EQ(b.f.lblInter[1].Width(), b.f.lblInter[3].Width());
    EXPECT_EQ(b.f.lblInter[0].Top(), b.f.lblInter[1].Top());
    EXPECT_EQ(b.f.lblInter[2].Top(), b.f.lblInter[3].Top());
}

}  // namespace corvana::prova
