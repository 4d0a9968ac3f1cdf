// What each row really changes in the windows that exist.
#include <gtest/gtest.h>

#include "composer/composer.h"
#include "composer/copy_from_a.h"
#include "core/language.h"
#include "eartrainer/into.h"
#include "metronome/conf_metro.h"
#include "tests/language/expected_rows.h"
#include "tests/language/program_rows.h"
#include "tests/program/program_rig.h"
#include "trainer/main_rows.h"
#include "utilities/about.h"
#include "utilities/midi_test.h"
#include "utilities/options.h"

namespace corvana::prova {

namespace {

void Aggiungi(Luoghi& luoghi, const Controllo& controllo, const ProprietaBase& proprieta,
              const std::string& testo) {
    const auto valore = proprieta.Leggi();
    if (const auto* righe = std::get_if<Righe>(&valore)) {
        for (std::size_t i = 0; i < righe->size(); ++i)
            if (righe->at(i) == testo)
                luoghi.insert(controllo.Name + '[' + std::to_string(i) + ']');
    } else if (const auto* letto = std::get_if<std::string>(&valore);
               letto && letto->ends_with(testo)) {
        const bool consiglio = proprieta.NomeProprieta() == &Valori::ToolTipText;
        luoghi.insert(controllo.Name + (consiglio ? ".tip" : ""));
    }
}

/// Where in the window the text is to be read.
Luoghi Leggono(const Form& finestra, const std::string& testo) {
    Luoghi luoghi;
    for (const Controllo* controllo : finestra.Controlli())
        for (const ProprietaBase* proprieta : controllo->ListaProprieta())
            Aggiungi(luoghi, *controllo, *proprieta, testo);
    return luoghi;
}

/// Applies each row that the window may have, and looks what has changed.
void ControllaRighe(Form& finestra, Globali& globali) {
    for (const RigaAttesa& riga : RigheDi(finestra.Name)) {
        const Luoghi attesi = LuoghiDi(riga);
        const std::string testo = '<' + std::to_string(riga.id) + '>';
        ApplicaRiga(globali, std::to_string(riga.id), testo, finestra,
                    BersagliDiFinestra(finestra.Name));
        EXPECT_EQ(Leggono(finestra, testo), attesi) << riga.id;
        EXPECT_TRUE(!riga.stringa || globali.testi.*riga.stringa == testo) << riga.id;
    }
}

template <class F>
struct BancoFinestra : Banco {
    F finestra{Tutto()};
};

}  // namespace

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheMainWindowAndNoOther) {
    BancoProgramma b;
    ControllaRighe(b.finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfThePatternWindowAndNoOther) {
    BancoFinestra<frmConfMetro> b;
    ControllaRighe(b.finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheMidiTestAndNoOther) {
    BancoFinestra<frmMidiTest> b;
    ControllaRighe(b.finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheAboutBoxAndNoOther) {
    BancoFinestra<frmAbout> b;
    ControllaRighe(b.finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheReferenceChartAndNoOther) {
    BancoFinestra<frmOptions> b;
    ControllaRighe(b.finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheMelodyWindowAndNoOther) {
    Banco b;
    frmComposer finestra{b.Tutto(), {}};
    ControllaRighe(finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheImportWindowAndNoOther) {
    Banco b;
    const Form composer{"frmComposer"};
    frmCopyFromA finestra{b.Tutto(), composer, [] {}};
    ControllaRighe(finestra, b.globali);
}

TEST(RigheNelleFinestre, EachSetsItsControlsOfTheEarTrainerAndNoOther) {
    Banco b;
    frmInto finestra{b.Tutto(), {}};
    ControllaRighe(finestra, b.globali);
}

TEST(RigheNelleFinestre, TheSeparatorsOfTheRangesStay) {
    BancoProgramma b;
    for (int id = 0; id <= 57; ++id)
        ApplicaRiga(b.globali, std::to_string(id), "x", b.finestra, BersagliPrincipali());
    for (std::size_t i = 0; i < b.finestra.intervalli.difficolt.List().size(); ++i)
        EXPECT_EQ(b.finestra.intervalli.difficolt.List()[i].front(), i == 4 || i == 9 ? '-' : 'x')
            << i;
}

TEST(RigheNelleFinestre, AnIdOutsideOfTheWindowsSetChangesNothing) {
    for (const char* id : {"-1", "27", "58", "68", "69", "77", "79", "156", "157", "166", "168",
                           "245", "379", "383", "32767"}) {
        BancoProgramma b;
        ApplicaRiga(b.globali, id, "nuovo", b.finestra, BersagliPrincipali());
        EXPECT_EQ(Leggono(b.finestra, "nuovo"), Luoghi{}) << id;
    }
}

TEST(RigheNelleFinestre, AnIdOfAnotherWindowFiledUnderTheAboutBoxIsIgnored) {
    BancoFinestra<frmAbout> b;
    b.globali.PercorsoLingua = "/lang.csv";
    for (int id = 0; id <= 400; ++id)
        if (id < 79 || id > 82)
            b.file.contenuti["/lang.csv"] += std::to_string(id) + ";frmAbout;nuovo\n";
    UpdateString(b.Tutto(), b.finestra, BersagliDiFinestra("frmAbout"));
    EXPECT_EQ(Leggono(b.finestra, "nuovo"), Luoghi{});
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
