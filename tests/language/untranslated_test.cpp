// What an English learner still reads as it was designed: names and signs that both languages
// share.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

#include "composer/composer_rows.h"
#include "composer/copy_from_a.h"
#include "core/language.h"
#include "metronome/conf_metro.h"
#include "metronome/conf_metro_rows.h"
#include "tests/language/expected_rows.h"
#include "tests/program/program_rig.h"
#include "trainer/main_rows.h"
#include "utilities/about.h"
#include "utilities/midi_test.h"
#include "utilities/options.h"
#include "utilities/utility_rows.h"

namespace corvana::prova {

namespace {

const Luoghi comuni = {"&File",     "&Help",       "MIDI Test ...",
                       "MIDI Test", "Do,Re,Mi...", "C,D,E...",
                       "Help",      "Start",       " Start / Stop ",
                       "Stop",      "BPM",         "Volume",
                       "Test",      "Corvana",     "O K",
                       "Off",       "x1",          "a b c ...",
                       "a",         "b",           "c"};
/// The face doesn't show these as they stand: their names and keys are chosen apart.
const Luoghi scelti = {"pdo", "pre", "pmi", "pfa", "psol", "pla", "psi", "lblAuto2"};

/// Of the reference chart: names of notes and quality that are the same in both languages, and
/// headings that have no row.
const Luoghi dellaTavola = {"Do",    "Re",    "Mi",    "Fa",    "Sol",     "La",    "Si",
                            "C",     "D",     "E",     "F",     "G",       "A",     "B",
                            "(C)",   "(D)",   "(E)",   "(F)",   "(G)",     "(A)",   "(B)",
                            "2 Dim", "3 Dim", "4 Dim", "5 Dim", "6 Dim",   "7 Dim", "8 Dim",
                            "2 Min", "3 Min", "6 Min", "7 Min", "N° Acc.", "Semit."};

struct BancoInglese : BancoProgramma {
    BancoInglese() {
        std::ifstream letto(CORVANA_DATA_SOURCE "/langen.csv", std::ios::binary);
        globali.PercorsoLingua = "/langen.csv";
        file.contenuti["/langen.csv"] = {std::istreambuf_iterator<char>(letto), {}};
    }
};

/// All captions, texts and tool tips of the window that hold a letter.
Luoghi TestiDi(const Form& finestra) {
    Luoghi testi;
    for (const Controllo* controllo : finestra.Controlli()) {
        if (scelti.contains(controllo->Name)) continue;
        for (const ProprietaBase* proprieta : controllo->ListaProprieta()) {
            const auto valore = proprieta->Leggi();
            const auto* testo = std::get_if<std::string>(&valore);
            if (testo &&
                std::ranges::any_of(*testo, [](unsigned char c) { return std::isalpha(c); }))
                testi.insert(*testo);
        }
    }
    return testi;
}

void ControllaInglese(BancoInglese& b, Form& finestra, Bersagli bersagli, const Luoghi& sue = {}) {
    const Luoghi italiani = TestiDi(finestra);
    UpdateString(b.Tutto(), finestra, bersagli);
    for (const std::string& testo : TestiDi(finestra))
        EXPECT_TRUE(!italiani.contains(testo) || comuni.contains(testo) || sue.contains(testo))
            << finestra.Name << ": " << testo;
}

}  // namespace

TEST(TestiTradotti, NothingItalianIsLeftInTheMainWindow) {
    BancoInglese b;
    ControllaInglese(b, b.finestra, BersagliPrincipali());
}

TEST(TestiTradotti, NothingItalianIsLeftInTheSmallWindows) {
    BancoInglese b;
    frmConfMetro sequenza{b.Tutto()};
    frmMidiTest prova{b.Tutto()};
    frmAbout informazioni{b.Tutto()};
    ControllaInglese(b, sequenza, BersagliConfMetro());
    ControllaInglese(b, prova, BersagliMidiTest());
    ControllaInglese(b, informazioni, BersagliAbout());
}

/// It has no rows: what it says needs none, or comes from the main window's and the composer's.
TEST(TestiTradotti, NothingItalianIsLeftInThePickerOverTheMelodyWindow) {
    BancoInglese b;
    b.file.contenuti["/programma/langit.csv"] = b.file.contenuti["/langen.csv"];
    Luoghi testi;
    b.Clicca(3, "mnuComposer");
    b.Clicca(4, "mnuSs");
    b.Quando(5, [&] { testi = TestiDi(*b.finestre.Davanti()); });
    EXPECT_TRUE(b.Vai(6));
    EXPECT_EQ(testi, (Luoghi{"Corvana", "O K", "Test", "Play", "S", "A", "T", "B", " Soprano ",
                             " Alto ", " Tenor ", " Bass "}));
}

/// The word on the button that closes is one of those that have no row: a cross stands for it.
TEST(TestiTradotti, NothingItalianIsLeftInTheImportWindow) {
    BancoInglese b;
    const Form composer{"frmComposer"};
    frmCopyFromA importa{b.Tutto(), composer, [] {}};
    ControllaInglese(b, importa, BersagliCopyFromA(), {"Chiudi"});
}

TEST(TestiTradotti, NothingItalianIsLeftInTheReferenceChart) {
    BancoInglese b;
    frmOptions promemoria{b.Tutto()};
    ControllaInglese(b, promemoria, BersagliOptions(), dellaTavola);
}

}  // namespace corvana::prova
