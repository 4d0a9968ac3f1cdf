// Every window reads its language when it is loaded, if the file is there.
#include <gtest/gtest.h>

#include "composer/composer.h"
#include "eartrainer/into.h"
#include "metronome/conf_metro.h"
#include "tests/program/program_rig.h"
#include "utilities/about.h"
#include "utilities/midi_test.h"
#include "utilities/options.h"

namespace corvana::prova {

namespace {

struct BancoCaricato : BancoProgramma {
    /// Loads the window while this row is all that the language file holds; none: without a file.
    void Carica(Form& form, const std::string& riga) {
        globali.PercorsoLingua = "/programma/lang.csv";
        if (!riga.empty()) file.contenuti[globali.PercorsoLingua] = riga + '\n';
        form.Form_Load();
        EXPECT_TRUE(riquadri.messaggi.empty());
    }
};

std::string Scritta(const Controllo& controllo) {
    for (const ProprietaBase* proprieta : controllo.ListaProprieta())
        if (proprieta->NomeProprieta() == &Valori::Caption)
            return std::get<std::string>(proprieta->Leggi());
    return {};
}

}  // namespace

TEST(LinguaAlCaricamento, TheMainWindowReadsIt) {
    BancoCaricato b;
    b.Carica(b.finestra, "1;CorvanaMainF;letto");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "letto");
}

TEST(LinguaAlCaricamento, ThePatternWindowReadsIt) {
    BancoCaricato b;
    frmConfMetro finestra{b.Tutto()};
    b.Carica(finestra, "71;frmConfMetro;letto");
    EXPECT_EQ(finestra.Label1.Caption(), "letto");
}

TEST(LinguaAlCaricamento, TheMidiTestReadsIt) {
    BancoCaricato b;
    frmMidiTest finestra{b.Tutto()};
    b.Carica(finestra, "76;frmMidiTest;letto");
    EXPECT_EQ(finestra.Label1.Caption(), "letto");
}

TEST(LinguaAlCaricamento, TheAboutBoxReadsItBeforeItShowsTheVersion) {
    BancoCaricato b;
    frmAbout finestra{b.Tutto()};
    b.Carica(finestra, "79;frmAbout;letto");
    EXPECT_TRUE(finestra.lblVersion.Caption().ends_with(" - letto"));
}

TEST(LinguaAlCaricamento, TheReferenceChartReadsIt) {
    BancoCaricato b;
    frmOptions finestra{b.Tutto()};
    b.Carica(finestra, "84;frmOptions;letto");
    EXPECT_EQ(finestra.cmdOK.Caption(), "letto");
}

TEST(LinguaAlCaricamento, TheMelodyWindowReadsIt) {
    BancoCaricato b;
    frmComposer finestra{b.Tutto(), {[] { return ""; }, [] { return ""; }, {}}};
    b.Carica(finestra, "277;frmComposer;letto");
    EXPECT_EQ(finestra.inserimento.cmdInsPausa.Caption(), "letto");
}

TEST(LinguaAlCaricamento, TheEarTrainerReadsIt) {
    BancoCaricato b;
    const auto niente = [] { return std::string(); };
    frmInto finestra{b.Tutto(), {niente, niente, niente, {}}};
    b.Carica(finestra, "169;frmInto;letto");
    EXPECT_EQ(finestra.telaio.cmdEsci.Caption(), "letto");
}

TEST(LinguaAlCaricamento, AChangeInTheMainWindowReachesTheOthersAtTheirNextLoadOnly) {
    struct Caso {
        const char *voce, *controllo, *riga;
    };
    for (const auto& [voce, controllo, riga] :
         {Caso{"cmdSetup", "Label1", "71;frmConfMetro;"},
          {"mnuMidiTest", "Label1", "76;frmMidiTest;"},
          {"mnuPromemoria", "cmdOK", "84;frmOptions;"},
          {"mnuRac", "cmdEsci", "169;frmInto;"},
          {"mnuComposer", "cmdInsPausa", "277;frmComposer;"}}) {
        BancoProgramma b;
        // The ear trainer stays open while its prompt is this one, also when both are empty.
        const std::string invito = "182;frmInto;invito\n";
        b.file.contenuti["/programma/langit.csv"] = invito + riga + "prima\n";
        b.file.contenuti["/programma/langen.csv"] = invito + riga + "dopo\n";
        const auto scritta = [&, nome = controllo] {
            return Scritta(*b.finestre.Davanti()->Trova(nome));
        };
        b.Clicca(3, "mnuMetro");
        b.Clicca(4, voce);
        b.Quando(5, [&] {
            EXPECT_EQ(scritta(), "prima") << riga;
            b.finestra.mnuEn_Click();
            EXPECT_EQ(scritta(), "prima") << riga;
        });
        b.Chiudi(6);
        b.Clicca(7, voce);
        b.Quando(8, [&] { EXPECT_EQ(scritta(), "dopo") << riga; });
        b.Vai(9);
    }
}

TEST(LinguaAlCaricamento, WithoutItsFileTheTextsOfTheDesignStayAndNothingIsTold) {
    BancoCaricato b;
    frmConfMetro sequenza{b.Tutto()};
    frmMidiTest prova{b.Tutto()};
    for (Form* form : std::initializer_list<Form*>{&b.finestra, &sequenza, &prova})
        b.Carica(*form, "");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(sequenza.Label1.Caption(), "Suoni");
    EXPECT_EQ(prova.Label1.Caption(), "Strumento");
}

}  // namespace corvana::prova
