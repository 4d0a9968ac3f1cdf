// The menu tree and what its entries do.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Nomi = std::vector<std::string>;

struct Voce {
    const char* nome;
    const char* padre;
    const char* testo;  ///< empty for a separator
};

constexpr std::array<Voce, 41> albero = {{
    {"f1", "", "&File"},
    {"Esci", "f1", "Esci"},
    {"es", "", "&Esercizi"},
    {"mnuCorvana", "es", "Lettura delle note"},
    {"Sep3", "es", ""},
    {"Intonazione", "es", "Intonazione"},
    {"step4", "es", ""},
    {"mnuRint", "es", "Riconoscimento intervallo"},
    {"SeparatoreN", "es", ""},
    {"mnuRac", "es", "Riconoscimento tipo accordo"},
    {"step5", "es", ""},
    {"mnuRicTo", "es", "Riconoscimento Tonalità"},
    {"sep4", "es", ""},
    {"mnuRicTasto", "es", "Riconoscimento Tasti"},
    {"Risorse", "", "&Risorse"},
    {"mnuComposer", "Risorse", "Composizione Melodie/Armonie"},
    {"step5b", "Risorse", ""},
    {"mnuMetro", "Risorse", "Metronomo"},
    {"Step6", "Risorse", ""},
    {"mnuPromemoria", "Risorse", "Promemoria"},
    {"separatore3", "Risorse", ""},
    {"mnuMidiTest", "Risorse", "MIDI Test ..."},
    {"Opzioni", "", "&Opzioni"},
    {"Nominote1", "Opzioni", "Do,Re,Mi..."},
    {"Nominote2", "Opzioni", "C,D,E..."},
    {"separatore1", "Opzioni", ""},
    {"Suono1", "Opzioni", "Suono Generico"},
    {"Suono2", "Opzioni", "Suono Nota"},
    {"mnuOrgano", "Suono2", "Organo"},
    {"mnuPiano", "Suono2", "Pianoforte"},
    {"mnuSs", "Suono2", "Scegli"},
    {"separatore2", "Opzioni", ""},
    {"mnuNormale", "Opzioni", "Normale"},
    {"mnuAutomatico", "Opzioni", "Automatico"},
    {"sep10", "Opzioni", ""},
    {"mnuLingua", "Opzioni", "Lingua"},
    {"mnuIt", "mnuLingua", "Italiano"},
    {"mnuEn", "mnuLingua", "Inglese"},
    {"Help", "", "&Help"},
    {"mnuAiuto", "Help", "Aiuto"},
    {"mnuVersione", "Help", "Versione"},
}};

/// Clicks the entries one a second from 3 on and ends.
struct BancoMenu : BancoPrincipale {
    void Scegli(const Nomi& voci) {
        double t = 3;
        for (const std::string& voce : voci)
            Clicca(t++, voce);
        Fine(t);
        EXPECT_TRUE(Avvia());
    }
};

}  // namespace

TEST(Menu, HasItsTreeInOrderWithItsCaptions) {
    const BancoPrincipale b;
    std::vector<const VoceMenu*> voci;
    for (const Controllo* c : b.finestra.Controlli())
        if (c->tipo == Genere::VoceMenu) voci.push_back(dynamic_cast<const VoceMenu*>(c));
    std::size_t i = 0;
    for (const Voce& attesa : albero) {
        ASSERT_LT(i, voci.size());
        EXPECT_EQ(voci[i]->Name, attesa.nome);
        EXPECT_EQ(voci[i]->Padre()->Name, *attesa.padre ? attesa.padre : "CorvanaMainF");
        EXPECT_EQ(voci[i]->Caption(), attesa.testo) << attesa.nome;
        ++i;
    }
    EXPECT_EQ(voci.size(), i);
}

TEST(Menu, EachExerciseOpensTheEarTrainerOnItsPageWithItsHelp) {
    const std::vector<std::tuple<std::string, int, int>> voci = {{"Intonazione", 3, 0},
                                                                 {"mnuRint", 5, 1},
                                                                 {"mnuRac", 7, 2},
                                                                 {"mnuRicTasto", 99, 3},
                                                                 {"mnuRicTo", 99, 4}};
    for (const auto& [voce, contesto, pagina] : voci) {
        BancoMenu b;
        b.globali.ContestoInto = 99;
        b.Scegli({voce});
        EXPECT_EQ(b.aperte, Nomi{"frmInto"}) << voce;
        EXPECT_EQ(b.globali.ContestoInto, contesto) << voce;
        BandiereInto pagine{};
        pagine.at(static_cast<std::size_t>(pagina)) = true;
        EXPECT_EQ(b.globali.PaginaInto, pagine) << voce;
    }
}

TEST(Menu, TheOtherEntriesOpenTheirWindows) {
    BancoMenu b;
    b.Scegli({"mnuComposer", "mnuMetro", "mnuPromemoria", "mnuMidiTest", "mnuSs", "mnuAiuto",
              "mnuVersione"});
    EXPECT_EQ(b.aperte, (Nomi{"frmComposer", "metronomo", "frmOptions", "frmMidiTest", "frmStrum",
                              "aiuto", "frmAbout"}));
}

TEST(Menu, TheEntryOfTheTrainerItselfAndSeparatorsDoNothing) {
    BancoMenu b;
    b.Scegli({"mnuCorvana", "Sep3", "separatore1", "mnuLingua", "es", "f1"});
    EXPECT_TRUE(b.aperte.empty());
    EXPECT_EQ(b.finestra.esercizio.Start.Caption(), "Start");
}

TEST(Menu, OrganAndPianoChangeTheProgramOfTheFirstChannelAlone) {
    BancoMenu b;
    b.Scegli({"mnuPiano", "mnuOrgano", "mnuPiano"});
    const auto cambi = b.uscita.ConStato(0xC0);
    EXPECT_EQ(cambi, (std::vector<std::pair<int, int>>{{16, 0}, {0, 0}, {16, 0}, {0, 0}}));
    EXPECT_EQ(b.uscita.ConStato(0xC1).size(), 1U);
    EXPECT_EQ(b.globali.StrumentoGlobale, 0);
}

TEST(Menu, TheModesShowAndHideWhatBelongsToThem) {
    BancoMenu b;
    b.Quando(3.5, [&] {
        const CorvanaMainF& f = b.finestra;
        EXPECT_EQ(f.stato.Modo, "automatico");
        EXPECT_TRUE(f.menu.mnuAutomatico.Checked() && !f.menu.mnuNormale.Checked());
        EXPECT_TRUE(f.automatico.Slider1.Visible() && f.automatico.Velocità.Visible() &&
                    f.automatico.lblAuto1.Visible() && f.automatico.lblAuto2.Visible() &&
                    f.automatico.Shape5.Visible() && f.automatico.Shape6.Visible());
        EXPECT_FALSE(f.risposte.pdo.Enabled() || f.risposte.psi.Enabled());
        EXPECT_EQ(f.automatico.Velocità.Caption(), "30");
        EXPECT_EQ(b.specchio.fuochi.back(), "Start");
    });
    b.Scegli({"mnuAutomatico", "mnuNormale"});
    const CorvanaMainF& f = b.finestra;
    EXPECT_EQ(f.stato.Modo, "normale");
    EXPECT_TRUE(f.menu.mnuNormale.Checked() && !f.menu.mnuAutomatico.Checked());
    EXPECT_FALSE(f.automatico.Slider1.Visible() || f.automatico.Velocità.Visible() ||
                 f.automatico.lblAuto1.Visible() || f.automatico.lblAuto2.Visible() ||
                 f.automatico.Shape5.Visible() || f.automatico.Shape6.Visible());
    EXPECT_TRUE(f.risposte.pdo.Enabled() && f.risposte.psi.Enabled());
}

TEST(Menu, TheSlidersChangeGivesStartTheFocusAndItsScrollDoesnt) {
    BancoPrincipale b;
    b.PonStato("43;53;16;30;a");
    std::size_t prima = 0, dopo = 0;
    b.Quando(2.9, [&] {
        b.globali.testi.TxtVelocita = "al minuto ";
        prima = b.specchio.fuochi.size();
    });
    b.Fa(3, Fatto::Scroll, "Slider1", 60);
    b.Quando(3.5, [&] { dopo = b.specchio.fuochi.size(); });
    b.Fa(4, Fatto::Change, "Slider1", 75);
    b.Fine(5);
    b.Avvia();
    EXPECT_EQ(dopo, prima);
    EXPECT_EQ(b.specchio.fuochi.size(), prima + 1);
    EXPECT_EQ(b.finestra.automatico.Velocità.Caption(), "al minuto 75");
    EXPECT_DOUBLE_EQ(b.finestra.stato.SecondiNota, 0.8);
}

TEST(Menu, DuringARunNothingButTheHelpCanBeChosen) {
    BancoPrincipale b;
    b.Clicca(3, "Start");
    b.Quando(4, [&] {
        for (const Voce& voce : albero)
            b.coda.Aggiungi(b.Fatta({}, voce.nome));
    });
    b.Fine(5);
    b.Avvia();
    EXPECT_EQ(b.aperte, (Nomi{"aiuto", "frmAbout"}));
    EXPECT_TRUE(b.finestra.esercizio.InCorso);
    EXPECT_EQ(b.finestra.stato.Modo, "normale");
}

TEST(Menu, AWindowThatThisBuildDoesntHaveHasNoEntryToOpenIt) {
    Banco b;
    CorvanaMainF finestra(b.Tutto(), {});
    b.Fine(3);
    b.SvolgiCopione([&] {
        b.finestre.Mostra(finestra);
        b.finestre.FinoAllUltima();
    });
    for (const char* nome :
         {"Intonazione", "mnuRint", "mnuRac", "mnuRicTo", "mnuRicTasto", "mnuComposer", "mnuMetro",
          "mnuPromemoria", "mnuMidiTest", "mnuSs", "mnuAiuto", "mnuVersione", "ToolButton1",
          "ToolButton2", "ToolButton3", "ToolButton4", "ToolButton5", "ToolButton7"})
        EXPECT_FALSE(finestra.Trova(nome)->Enabled()) << nome;
    EXPECT_TRUE(finestra.barra.ToolButton[5].Enabled());
    EXPECT_TRUE(finestra.menu.mnuNormale.Enabled());
}

}  // namespace corvana::prova
