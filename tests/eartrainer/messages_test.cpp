// All that each drill sends from the opening of the window to its closing, with its instants. The
// window closes at 30, and nothing is left out.
#include <gtest/gtest.h>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

struct Lista : BancoInto {
    explicit Lista(PaginaInto pagina) : BancoInto({pagina}) {}

    /// Closes at 30 and compares all messages with `prima`, what the page sends as it is entered,
    /// `poi`, and the main window's instrument at the end.
    void Esigi(Suonati prima, const Suonati& poi) {
        Chiudi(30);
        EXPECT_FALSE(Vai(31));
        prima.insert(prima.end(), poi.begin(), poi.end());
        prima.emplace_back("30.0 program 40");
        EXPECT_EQ(Messaggi(), prima);
        EXPECT_EQ(uscita.reset, std::vector{30.0});
    }
    /// The intervals page in its mode " / : ", " \ ", " : " or " / ", by the clicks on it.
    void EsigiIntervalli(int clic, const Suonati& poi) {
        for (int i = 0; i < clic; ++i)
            Clicca(0.5, "lblModo");
        for (const int semitoni : {4, 7})
            Estrai(semitoni, 14);
        Clicca(1, "CmdIntStart");
        Clicca(10, "lblRipInt");
        Clicca(15, "LblSemi5");
        Clicca(16, "LblSemi4");
        Clicca(25, "CmdIntStart");
        Esigi({"0.0 off 36"}, poi);
    }
};

}  // namespace

TEST(Messaggi, OfPitchWithTheReference) {
    Lista b(PaginaInto::Intonazione);
    for (const int tasto : {4, 11})
        b.Estrai(tasto, 13);
    b.Clicca(1, "IntoStart");
    b.Clicca(10, "lblRipInto");
    b.Tasto(15, 30);
    b.Tasto(16, 28);
    b.Clicca(25, "IntoStart");
    b.Esigi(
        {"0.0 off 0", "0.0 off 0", "0.0 program 0"},
        {"1.0 on 69 90", "2.2 off 69", "2.3 off 36", "2.3 on 64 100", "3.2 off 64", "10.0 on 69 90",
         "11.2 off 69", "11.3 off 64", "11.3 on 64 100", "12.2 off 64", "16.0 on 69 90",
         "17.2 off 69", "17.3 off 64", "17.3 on 71 100", "18.2 off 71", "25.0 off 71"});
}

TEST(Messaggi, OfPitchWithoutTheReference) {
    Lista b(PaginaInto::Intonazione);
    for (const int tasto : {4, 11})
        b.Estrai(tasto, 13);
    b.Clicca(0.5, "lblMod");
    b.Clicca(1, "IntoStart");
    b.Clicca(10, "lblRipInto");
    b.Tasto(15, 30);
    b.Tasto(16, 28);
    b.Clicca(25, "IntoStart");
    b.Esigi({"0.0 off 0", "0.0 off 0", "0.0 program 0"},
            {"1.0 off 36", "1.0 on 64 100", "10.0 off 64", "10.0 on 64 100", "16.0 off 64",
             "16.0 on 71 100", "25.0 off 71"});
}

TEST(Messaggi, OfTheRangeAndTheReferenceOfPitchSetAnew) {
    Lista b(PaginaInto::Intonazione);
    b.Estrai(4, 13);
    b.Estrai(1, 21);
    b.Clicca(1, "IntoStart");
    b.Clicca(5, "IntoStart");
    b.Clicca(6, "cmdReimposta");
    double t = 7;
    for (const int tasto : {20, 40, 25, 30})
        b.Tasto(t++, tasto);
    b.Clicca(12, "IntoStart");
    b.Clicca(20, "IntoStart");
    b.Esigi({"0.0 off 0", "0.0 off 0", "0.0 program 0"},
            {"1.0 on 69 90", "2.2 off 69", "2.3 off 36", "2.3 on 64 100", "3.2 off 64",
             "5.0 off 64", "6.0 off 64", "9.0 off 64", "9.0 on 61 100", "10.0 off 61",
             "10.0 on 66 100", "12.0 on 66 90", "13.2 off 66", "13.3 off 66", "13.3 on 57 100",
             "14.2 off 57", "20.0 off 57"});
    EXPECT_EQ(b.casuale.estratti, 2);
}

TEST(Messaggi, OfIntervalsUpwards) {
    Lista(PaginaInto::Intervalli)
        .EsigiIntervalli(
            0, {"1.0 off 0",     "1.0 off 0",     "1.0 on 60 90", "1.7 off 60",    "1.8 on 64 90",
                "2.5 off 64",    "10.0 off 60",   "10.0 off 64",  "10.0 on 60 90", "10.7 off 60",
                "10.8 on 64 90", "11.5 off 64",   "16.0 off 60",  "16.0 off 64",   "16.0 on 60 90",
                "16.7 off 60",   "16.8 on 67 90", "17.5 off 67",  "25.0 off 60",   "25.0 off 67"});
}

TEST(Messaggi, OfIntervalsUpwardsAndThenTogether) {
    Lista(PaginaInto::Intervalli)
        .EsigiIntervalli(
            1, {"1.0 off 0",     "1.0 off 0",    "1.0 on 60 90",  "1.7 off 60",    "1.8 on 64 90",
                "2.5 off 64",    "3.2 on 60 90", "3.2 on 64 90",  "10.0 off 60",   "10.0 off 64",
                "10.0 on 60 90", "10.7 off 60",  "10.8 on 64 90", "11.5 off 64",   "12.2 on 60 90",
                "12.2 on 64 90", "16.0 off 60",  "16.0 off 64",   "16.0 on 60 90", "16.7 off 60",
                "16.8 on 67 90", "17.5 off 67",  "18.2 on 60 90", "18.2 on 67 90", "25.0 off 60",
                "25.0 off 67"});
}

TEST(Messaggi, OfIntervalsDownwards) {
    Lista(PaginaInto::Intervalli)
        .EsigiIntervalli(
            2, {"1.0 off 0",     "1.0 off 0",     "1.0 on 64 90", "1.7 off 64",    "1.8 on 60 90",
                "2.5 off 60",    "10.0 off 60",   "10.0 off 64",  "10.0 on 64 90", "10.7 off 64",
                "10.8 on 60 90", "11.5 off 60",   "16.0 off 60",  "16.0 off 64",   "16.0 on 67 90",
                "16.7 off 67",   "16.8 on 60 90", "17.5 off 60",  "25.0 off 60",   "25.0 off 67"});
}

TEST(Messaggi, OfIntervalsTogether) {
    Lista(PaginaInto::Intervalli)
        .EsigiIntervalli(
            3, {"1.0 off 0", "1.0 off 0", "1.0 on 60 90", "1.0 on 64 90", "10.0 off 60",
                "10.0 off 64", "10.0 on 60 90", "10.0 on 64 90", "16.0 off 60", "16.0 off 64",
                "16.0 on 60 90", "16.0 on 67 90", "25.0 off 60", "25.0 off 67"});
}

TEST(Messaggi, OfChords) {
    Lista b(PaginaInto::Accordi);
    b.Tasto(0.5, 10);
    b.Tasto(0.6, 20);
    for (const auto& [tipo, radice] : {std::pair{1, 2}, {3, 10}}) {
        b.Estrai(tipo, 4);
        b.Estrai(radice, 11);
    }
    b.Clicca(1, "ComdRacStart");
    b.Clicca(10, "lblRipta");
    b.Clicca(15, "TipoAcc0");
    b.Clicca(16, "TipoAcc1");
    b.Clicca(25, "ComdRacStart");
    b.Esigi({"0.0 off 36", "0.0 off 0", "0.0 off 0"},
            {"1.0 on 48 90", "1.0 on 52 90", "1.0 on 55 90", "10.0 on 48 90", "10.0 on 52 90",
             "10.0 on 55 90", "16.0 off 48", "16.0 off 52", "16.0 off 55", "16.3 on 56 90",
             "16.3 on 60 90", "16.3 on 64 90", "25.0 off 56", "25.0 off 60", "25.0 off 64"});
}

TEST(Messaggi, OfKeyFinding) {
    Lista b(PaginaInto::Tasti);
    for (const int bianco : {2, 4})
        b.Estrai(bianco, 7);
    b.Clicca(1, "cmdRicTasto");
    b.Tasto(15, 5);
    b.Tasto(16, 4);
    b.Clicca(25, "cmdRicTasto");
    b.Esigi({}, {"1.0 on 64 90", "16.0 off 64", "16.0 on 67 90", "25.0 off 67"});
}

TEST(Messaggi, OfTonality) {
    Lista b(PaginaInto::Tonalita);
    for (const int indice : {2, 19})
        b.Estrai(indice, 24);
    b.Clicca(1, "cmdT");
    b.Clicca(8, "lblRipeti");
    b.Clicca(15, "T0");
    b.Clicca(16, "T2");
    b.Clicca(25, "cmdT");
    Suonati figure;
    const auto nota = [&](double da, double a, int quale) {
        for (const auto& [quando, che] : {std::pair{da, " on "}, {a, " off "}}) {
            std::array<char, 32> istante{};
            std::snprintf(istante.data(), istante.size(), "%.1f", quando);
            figure.push_back(istante.data() + std::string(che) + std::to_string(quale) +
                             (quando == da ? " 127" : ""));
        }
    };
    for (const auto& [t, tonica, terza] : {std::tuple{1, 62, 66}, {8, 62, 66}, {16, 67, 70}}) {
        nota(t, t + 0.7, 69);
        nota(t + 1.4, t + 2.1, tonica);
        nota(t + 3.5, t + 4.0, tonica);
        nota(t + 4.1, t + 4.6, terza);
        nota(t + 4.7, t + 5.2, tonica + 7);
        nota(t + 5.3, t + 5.8, tonica + 12);
    }
    b.Esigi({}, figure);
}

}  // namespace corvana::prova
