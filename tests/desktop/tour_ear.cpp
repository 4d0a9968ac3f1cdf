// The ear trainer as the tour shows it: its keyboard, and its five drills.
#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>
#include <algorithm>
#include <map>
#include <set>

#include "tests/desktop/tour.h"

namespace corvana::prova {

namespace {

/// The three highest notes of a chord above its root.
const std::map<std::pair<int, int>, int> accordi = {
    {{3, 7}, 0}, {{4, 7}, 1}, {{3, 6}, 2}, {{4, 8}, 3}};

void Punti(Giro& g, int giuste, int sbagliate) {
    EXPECT_EQ(g.Dice("txtResatte"), std::to_string(giuste));
    EXPECT_EQ(g.Dice("txtRerrate"), std::to_string(sbagliate));
}

/// The numbers of the last so many notes that were heard.
Interi Ultime(Giro& g, std::size_t quante) {
    const Interi note = g.Note();
    if (note.size() < quante) throw std::logic_error("too few notes were heard");
    return {note.end() - static_cast<std::ptrdiff_t>(quante), note.end()};
}

void ApreSullaPagina(Giro& g) {
    g.Scegli("mnuRint");
    g.Attendi("frmInto");
    EXPECT_TRUE(g.Vede("FrmIntervalli"));
    g.TornaA("CorvanaMainF");
    g.Scegli("Intonazione");
    g.Attendi("frmInto");
    EXPECT_TRUE(g.Vede("FrmIntervalli"));
    g.Scegli("mnuNotA");
    EXPECT_TRUE(g.Vede("frmInto2"));
    Punti(g, 0, 0);
}

void TastieraSulloSchermo(Giro& g) {
    g.Scegli("mnuRint");
    const Cosa tasto = g.Di("lb24");
    const QPoint dove = tasto.NellaFinestra(g.NelTasto("lb24"));
    QTest::mousePress(tasto.window()->windowHandle(), Qt::LeftButton, {}, dove);
    g.Calma();
    EXPECT_EQ(g.TastiAccesi(), Interi{24});
    QTest::mouseRelease(tasto.window()->windowHandle(), Qt::LeftButton, {}, dove);
    g.Calma();
    EXPECT_EQ(g.TastiAccesi(), Interi{});
    g.Ascolta();
    Premi(g.scrivania, Qt::Key_Z);
    g.Calma();
    Premi(g.scrivania, Qt::Key_P);
    g.Calma();
    EXPECT_EQ(g.Note(), (Interi{48, 76}));
    EXPECT_EQ(g.TastiAccesi(), (Interi{12, 40}));
    Lascia(g.scrivania, Qt::Key_Z);
    Lascia(g.scrivania, Qt::Key_P);
    g.Calma();
    EXPECT_EQ(g.TastiAccesi(), Interi{});
}

/// Range and reference set anew; the note heard is found, and one that isn't it.
void Altezze(Giro& g) {
    g.Scegli("mnuNotA");
    g.Tocca("IntoStart");
    g.Tocca("IntoStart");
    g.Tocca("cmdReimposta");
    for (const int tasto : {24, 36, 28})
        g.ToccaTasto(tasto);
    g.Ascolta();
    g.Tocca("IntoStart");
    for (int domanda = 0; domanda < 3; ++domanda) {
        const int nota = Ultime(g, 1).front();
        EXPECT_TRUE(nota >= 60 && nota <= 72) << nota;
        g.ToccaTasto(nota - 36);
    }
    Punti(g, 3, 0);
    g.ToccaTasto(Ultime(g, 1).front() - 36 == 24 ? 26 : 24);
    Punti(g, 3, 1);
    g.Tocca("IntoStart");
    g.TornaA("CorvanaMainF");
    const std::string& memoria = g.casa.casa.contenuti.at(CasaDiMemoria::impostazioni);
    EXPECT_NE(memoria.find("24;36;64"), std::string::npos) << memoria;
    g.Scegli("Intonazione");
    g.Attendi("frmInto");
}

void Intervalli(Giro& g) {
    g.Scegli("mnuRint");
    g.Ascolta();
    for (int modo = 0; modo < 4; ++modo) {
        g.Tocca("CmdIntStart");
        const Interi coppia = Ultime(g, 2);
        const int semitoni = std::abs(coppia[1] - coppia[0]);
        EXPECT_TRUE(semitoni == 3 || semitoni == 4 || semitoni == 7) << semitoni;
        g.Tocca("LblSemi" + std::to_string(semitoni));
        Punti(g, 1, 0);
        g.Tocca("LblSemi12");
        Punti(g, 1, 1);
        g.Tocca("CmdIntStart");
        g.Tocca("lblModo");
    }
    std::set<int> radici;
    g.Tocca("lblFv");
    g.AllEstremo("RifInf", false);
    g.AllEstremo("RifSup", true);
    g.Tocca("CmdIntStart");
    for (int volta = 0; volta < 6; ++volta) {
        const Interi coppia = Ultime(g, 2);
        radici.insert(std::min(coppia[0], coppia[1]));
        g.Tocca("LblSemi" + std::to_string(std::abs(coppia[1] - coppia[0])));
    }
    Punti(g, 6, 0);
    EXPECT_GT(radici.size(), 1U);
    g.Tocca("CmdIntStart");
    g.Tocca("lblFv");
}

void Accordi(Giro& g) {
    g.Scegli("mnuRicTa");
    g.ToccaTasto(12);
    g.ToccaTasto(31);
    g.Ascolta();
    g.Tocca("ComdRacStart");
    for (int domanda = 0; domanda < 4; ++domanda) {
        const Interi suonato = Ultime(g, 3);
        EXPECT_TRUE(suonato[0] >= 48 && suonato[0] <= 67) << suonato[0];
        const int tipo = accordi.at({suonato[1] - suonato[0], suonato[2] - suonato[0]});
        g.Tocca("TipoAcc" + std::to_string((tipo + 1) % 4));
        g.Tocca("TipoAcc" + std::to_string(tipo));
    }
    Punti(g, 4, 4);
    g.Tocca("ComdRacStart");
}

/// What the twelve keys of an octave may be called.
const std::vector<std::set<std::string>> nomi = {{"Do", "Si#"},   {"Do#", "Reb"}, {"Re"},
                                                 {"Re#", "Mib"},  {"Mi", "Fab"},  {"Fa", "Mi#"},
                                                 {"Fa#", "Solb"}, {"Sol"},        {"Sol#", "Lab"},
                                                 {"La"},          {"La#", "Sib"}, {"Si", "Dob"}};

std::string NomeChiesto(Giro& g) {
    const std::string prima = "Fai clic su un ";
    const std::string domanda = g.Dice("lblStep");
    return domanda.substr(prima.size(), domanda.find(" sulla tastiera") - prima.size());
}

/// The name asked for is the name of the note that is heard, in one spelling or another.
void TastiDaTrovare(Giro& g) {
    g.Scegli("mnuRicTasto");
    g.Tocca("lblSceltaTasti");
    g.Ascolta();
    g.Tocca("cmdRicTasto");
    std::set<std::string> chiesti;
    for (int domanda = 0; domanda < 12; ++domanda) {
        const int nota = Ultime(g, 1).front();
        chiesti.insert(NomeChiesto(g));
        EXPECT_TRUE(nomi.at(static_cast<std::size_t>(nota % 12)).contains(NomeChiesto(g)))
            << nota << ": " << NomeChiesto(g);
        g.ToccaTasto(nota % 12 + 12 * (domanda % 5));
    }
    Punti(g, 12, 0);
    EXPECT_TRUE(
        std::ranges::any_of(chiesti, [](const std::string& nome) { return nome.ends_with('b'); }));
    g.Tocca("cmdRicTasto");
    g.Tocca("lblSceltaTasti");
}

void Tonalita(Giro& g) {
    g.Scegli("mnuRicTo");
    g.Ascolta();
    g.Tocca("cmdT");
    for (int domanda = 0; domanda < 3; ++domanda) {
        const Interi figura = Ultime(g, 6);
        EXPECT_EQ(figura[0], 69);
        const bool minore = figura[3] - figura[1] == 3;
        g.Tocca("T" + std::to_string(figura[1] % 12 + (minore ? 12 : 0)));
    }
    Punti(g, 3, 0);
    g.Tocca("cmdT");
    g.TornaA("CorvanaMainF");
}

}  // namespace

std::vector<Tappa> TappeDellOrecchio() {
    return {{"the page that is asked for", ApreSullaPagina},
            {"the keyboard on the screen", TastieraSulloSchermo},
            {"single notes", Altezze},
            {"intervals", Intervalli},
            {"chords", Accordi},
            {"keys of the piano by their names", TastiDaTrovare},
            {"major and minor", Tonalita}};
}

}  // namespace corvana::prova
