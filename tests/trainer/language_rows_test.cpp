// What each row of the language files sets in the main window.
#include <gtest/gtest.h>

#include "core/language.h"
#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Nomi = std::vector<std::string>;

/// The controls whose caption or text, and those whose tool tip, an id sets.
struct Attesa {
    int id;
    const char* testo = "";
    const char* consiglio = "";
};

constexpr std::array<Attesa, 49> attese = {{
    {0, "CorvanaMainF"},
    {1, "cmdEsci"},
    {2, "Esci"},
    {3, "es"},
    {4, "mnuCorvana"},
    {5, "mnuRicTasto"},
    {6, "Intonazione", "ToolButton1"},
    {7, "mnuRint"},
    {8, "mnuRac"},
    {9, "mnuRicTo"},
    {10, "mnuComposer", "ToolButton2"},
    {11, "mnuPromemoria", "ToolButton4"},
    {21, "", "difficolt"},
    {22, "Intervallo"},
    {23, "", "Regolo"},
    {24, "", "lblMn"},
    {25, "", "conta"},
    {26, "", "er"},
    {27},
    {31, "PercEs"},
    {34, "Velocità", "Slider1"},
    {35, "lblAuto1"},
    {36, "", "lblAuto2"},
    {37, "Risorse"},
    {38, "mnuMetro", "ToolButton3"},
    {39, "Opzioni"},
    {40, "Suono1"},
    {41, "Suono2"},
    {42, "mnuOrgano"},
    {43, "mnuPiano"},
    {44, "mnuNormale"},
    {45, "mnuAutomatico", "ToolButton6"},
    {46, "mnuLingua"},
    {47, "mnuIt"},
    {48, "mnuEn"},
    {49, "mnuAiuto", "ToolButton7"},
    {50, "mnuVersione"},
    {51, "frmMetroC"},
    {52, "", "lblCloseMetro"},
    {53, "", "lblTs"},
    {56, "", "cmdSetup"},
    {68},
    {69},
    {78, "", "ToolButton5"},
    {79},
    {157},
    {167, "mnuSs"},
    {245},
    {379},
}};

std::string TestoDi(const Controllo& c) {
    for (const ProprietaBase* p : c.ListaProprieta())
        if (p->NomeProprieta() == Nome::Caption || p->NomeProprieta() == Nome::Text)
            return std::get<std::string>(p->Leggi());
    return {};
}

/// Names of the controls of the window that carry this text, in either of the two ways.
std::pair<Nomi, Nomi> Portano(const CorvanaMainF& finestra, const std::string& testo) {
    std::pair<Nomi, Nomi> trovati;
    for (const Controllo* c : finestra.Controlli()) {
        if (TestoDi(*c) == testo) trovati.first.push_back(c->Name);
        if (c->ToolTipText() == testo) trovati.second.push_back(c->Name);
    }
    return trovati;
}

/// The expected name as a list, empty also when this window has no such control.
Nomi SeEsiste(const CorvanaMainF& finestra, const char* nome) {
    return *nome && finestra.Trova(nome) ? Nomi{nome} : Nomi{};
}

}  // namespace

TEST(RigheLingua, EachIdSetsItsControlsAndNoOther) {
    for (const Attesa& attesa : attese) {
        BancoPrincipale b;
        ApplicaRiga(b.globali, std::to_string(attesa.id), "nuovo", b.finestra);
        const auto [testi, consigli] = Portano(b.finestra, "nuovo");
        EXPECT_EQ(testi, SeEsiste(b.finestra, attesa.testo)) << attesa.id;
        // The box of the percentage has no caption: its row names it in its tool tip as well.
        const char* consiglio = attesa.id == 31 ? "PercEs" : attesa.consiglio;
        EXPECT_EQ(consigli, SeEsiste(b.finestra, consiglio)) << attesa.id;
    }
}

TEST(RigheLingua, NineIdsSetTheRowsOfTheListAndLeaveItsSeparators) {
    BancoPrincipale b;
    for (int id = 12; id <= 20; ++id)
        ApplicaRiga(b.globali, std::to_string(id), std::to_string(id), b.finestra);
    const Righe attese_ = {"12", "13", "14", "15", b.finestra.difficolt.List()[4],
                           "16", "17", "18", "19", b.finestra.difficolt.List()[9],
                           "20"};
    EXPECT_EQ(b.finestra.difficolt.List(), attese_);
    EXPECT_EQ(b.finestra.difficolt.List()[4].front(), '-');
    EXPECT_EQ(b.finestra.difficolt.List()[9].front(), '-');
}

TEST(RigheLingua, TheStringsAreFilled) {
    using T = TestiLingua;
    const std::vector<std::pair<int, std::string T::*>> stringhe = {{28, &T::TxtRisposteEsatte},
                                                                    {29, &T::TxtRisposteErrate},
                                                                    {30, &T::TxtRisposteDate},
                                                                    {31, &T::TxtPercentuale},
                                                                    {32, &T::TxtTempoImpiegato},
                                                                    {33, &T::TxtNoteMostrate},
                                                                    {34, &T::TxtVelocita},
                                                                    {54, &T::TipX1},
                                                                    {55, &T::TipX2},
                                                                    {57, &T::msgSenzaSuono},
                                                                    {380, &T::TipContralto},
                                                                    {381, &T::TipTenore},
                                                                    {382, &T::TipBasso}};
    for (const auto& coppia : stringhe) {
        const int id = coppia.first;
        BancoPrincipale b;
        ApplicaRiga(b.globali, std::to_string(id), "nuovo", b.finestra);
        for (const auto& [altro, altra] : stringhe)
            EXPECT_EQ(b.globali.testi.*altra, altro == id ? "nuovo" : "") << id << ", " << altro;
    }
}

TEST(RigheLingua, AnIdOutsideOfTheWindowsSetIsIgnored) {
    for (const char* id : {"-1", "58", "70", "77", "156", "166", "168", "383", "32767"}) {
        BancoPrincipale b;
        ApplicaRiga(b.globali, id, "nuovo", b.finestra);
        const auto [testi, consigli] = Portano(b.finestra, "nuovo");
        EXPECT_TRUE(testi.empty() && consigli.empty()) << id;
    }
}

}  // namespace corvana::prova
