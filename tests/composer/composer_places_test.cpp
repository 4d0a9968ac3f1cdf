// Where the melody window's controls lie: all in what they belong to, and none on another.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

constexpr int twipsDiPixel = 15;

struct BancoPosti : Banco {
    frmComposer finestra{Tutto(), {[] { return ""; }, [] { return ""; }, {}}};

    const Controllo& Di(const std::string& nome) const { return *finestra.Trova(nome); }
};

struct Area {
    int sinistra, sopra, destra, sotto;

    explicit Area(const Controllo& c)
        : sinistra(c.Left()),
          sopra(c.Top()),
          destra(c.Left() + c.Width()),
          sotto(c.Top() + c.Height()) {}
    bool Tocca(const Area& altra) const {
        return sinistra < altra.destra && altra.sinistra < destra && sopra < altra.sotto &&
               altra.sopra < sotto;
    }
    bool Contiene(const Area& altra) const {
        return sinistra <= altra.sinistra && altra.destra <= destra && sopra <= altra.sopra &&
               altra.sotto <= sotto;
    }
};

bool Comincia(const Controllo& c, const char* inizio) {
    return c.Name.starts_with(inizio);
}

bool DiMenu(const Controllo& c) {
    return c.tipo == Genere::VoceMenu || c.tipo == Genere::MenuContestuale;
}

/// Placed by others: the keys on their picture, the cursor among its lines.
bool AltroveDisposto(const Controllo& c) {
    return c.Padre() && (c.Padre()->Name == "tastiera" || c.Padre()->Name == "Regolo");
}

std::vector<const Controllo*> Disposti(const frmComposer& finestra) {
    std::vector<const Controllo*> disposti;
    for (const Controllo* c : finestra.Controlli())
        if (c != &finestra && !DiMenu(*c) && !AltroveDisposto(*c)) disposti.push_back(c);
    return disposti;
}

/// Grounds lie beneath others, the cursor on its line, and the list of melodies over the palette.
bool PuoStareSu(const Controllo& c) {
    return Comincia(c, "Shape") || c.Name == "Cursore" || c.Name == "Fr2";
}

/// A check box and the words beside it, on which it is ticked as well.
bool CasellaConParole(const Controllo& casella, const Controllo& parole) {
    return casella.tipo == Genere::Spunta && parole.Name == casella.Name + "Lb";
}

}  // namespace

TEST(PostiComposer, TheWindowIsNoLargerThanASmallScreen) {
    BancoPosti b;
    EXPECT_LE(b.finestra.Width(), 1180 * twipsDiPixel);
    EXPECT_LE(b.finestra.Height(), 650 * twipsDiPixel);  // and its menus
}

TEST(PostiComposer, EveryControlHasAPlaceInWhatItLiesIn) {
    BancoPosti b;
    int visti = 0;
    for (const Controllo* c : Disposti(b.finestra)) {
        const Controllo& padre = c->Padre() ? *c->Padre() : b.finestra;
        ++visti;
        EXPECT_GT(c->Width(), 0) << c->Name;
        EXPECT_GT(c->Height(), 0) << c->Name;
        EXPECT_GE(c->Left(), 0) << c->Name;
        EXPECT_GE(c->Top(), 0) << c->Name;
        EXPECT_LE(c->Left() + c->Width(), padre.Width()) << c->Name;
        EXPECT_LE(c->Top() + c->Height(), padre.Height()) << c->Name;
    }
    EXPECT_GT(visti, 130);
}

TEST(PostiComposer, NoControlLiesOnAnother) {
    BancoPosti b;
    const auto disposti = Disposti(b.finestra);
    for (std::size_t i = 0; i < disposti.size(); ++i)
        for (std::size_t j = i + 1; j < disposti.size(); ++j) {
            const Controllo &uno = *disposti[i], &altro = *disposti[j];
            if (uno.Padre() != altro.Padre() || PuoStareSu(uno) || PuoStareSu(altro)) continue;
            if (CasellaConParole(uno, altro)) continue;
            EXPECT_FALSE(Area(uno).Tocca(Area(altro))) << uno.Name << " " << altro.Name;
        }
}

TEST(PostiComposer, AControlLiesOnItsWholeGroundOrNotOnItAtAll) {
    BancoPosti b;
    for (const Controllo* fondo : Disposti(b.finestra)) {
        if (!Comincia(*fondo, "Shape")) continue;
        for (const Controllo* c : Disposti(b.finestra))
            if (c != fondo && c->Padre() == nullptr && Area(*c).Tocca(Area(*fondo))) {
                EXPECT_TRUE(Area(*fondo).Contiene(Area(*c))) << c->Name << " on " << fondo->Name;
                // What comes later lies over what came before.
                EXPECT_GT(c->Numero(), fondo->Numero()) << c->Name;
            }
    }
}

TEST(PostiComposer, AVoiceHasARowInItsColourWithAllThatIsItsOwn) {
    BancoPosti b;
    const std::array<std::string, 4> sigle = {"", "C", "T", "B"}, volumi = {"S", "C", "T", "B"};
    int sotto = 0;
    for (std::size_t voce = 0; voce < 4; ++voce) {
        const std::string n = std::to_string(voce);
        const Controllo& riga = b.Di("Shape" + std::to_string(voce + 1));
        EXPECT_EQ(riga.BackColor(), b.finestra.mix.lblInstr[voce].BackColor());
        EXPECT_GE(riga.Top(), sotto);
        sotto = riga.Top() + riga.Height();
        std::vector<std::string> suoi = {"VoceAttiva" + n,
                                         "lblInstr" + n,
                                         "LblNoteString" + sigle.at(voce),
                                         "lblNini" + sigle.at(voce),
                                         "lblNfine" + sigle.at(voce),
                                         "Vol" + volumi.at(voce),
                                         "lblVol" + volumi.at(voce),
                                         "lblMuteC" + n};
        for (std::size_t freccia = 0; freccia < 4; ++freccia)
            suoi.push_back("lblid" + std::to_string(4 * voce + freccia));
        for (const std::string& nome : suoi)
            EXPECT_TRUE(Area(riga).Contiene(Area(b.Di(nome)))) << nome;
    }
}

TEST(PostiComposer, AnArrowStandsOnTheSideToWhichItMovesItsBoxsNumber) {
    BancoPosti b;
    const std::array<std::string, 4> sigle = {"", "C", "T", "B"};
    for (std::size_t freccia = 0; freccia < 16; ++freccia) {
        const bool ultima = freccia % 4 > 1, avanti = freccia % 2 == 1;
        const Controllo& casella = b.Di((ultima ? "lblNfine" : "lblNini") + sigle.at(freccia / 4));
        const auto& c = dynamic_cast<const Etichetta&>(b.Di("lblid" + std::to_string(freccia)));
        const int daQui = c.Left() - casella.Left();
        EXPECT_EQ(daQui > 0, avanti) << c.Name;
        EXPECT_LT(std::abs(daQui), casella.Width() + c.Width()) << c.Name;
        EXPECT_EQ(c.Caption(), avanti ? ">" : "<") << c.Name;
    }
}

TEST(PostiComposer, NothingThatOpensCoversTheVoices) {
    BancoPosti b;
    for (const char* nome : {"Fr2", "frBookMark", "frMetro", "frmModifica"})
        for (const char* riga : {"Shape0", "Shape1", "Shape2", "Shape3", "Shape4"})
            EXPECT_FALSE(Area(b.Di(nome)).Tocca(Area(b.Di(riga)))) << nome << " " << riga;
}

TEST(PostiComposer, TheListOfMelodiesCoversThePaletteAndIsMadeAfterIt) {
    BancoPosti b;
    EXPECT_TRUE(Area(b.Di("Fr2")).Contiene(Area(b.Di("Shape7"))));
    for (const char* nome : {"PausaPer", "cmdInsNota", "cmdReset", "ckConsAtt", "cmdSimbNote6"})
        EXPECT_GT(b.Di("Fr2").Numero(), b.Di(nome).Numero()) << nome;
}

TEST(PostiComposer, TheCursorBeginsAtTheLeftEndOfItsLineAndBothAreAsLongAsToldByThePlay) {
    BancoPosti b;
    EXPECT_EQ(b.Di("lblRigaCur").Left(), 2190);
    EXPECT_EQ(b.Di("lblRigaCur").Width(), 1770);
    EXPECT_EQ(b.Di("Cursore").Left(), 2190);
}

TEST(PostiComposer, TheTempoStandsUprightAndTheVolumesLie) {
    BancoPosti b;
    for (const char* nome : {"Slider1", "InizioPuls"})
        EXPECT_GT(b.Di(nome).Height(), b.Di(nome).Width()) << nome;
    for (const char* nome : {"VolS", "VolC", "VolT", "VolB", "VolumeMetro"})
        EXPECT_LT(b.Di(nome).Height(), b.Di(nome).Width()) << nome;
}

TEST(PostiComposer, AMenuEntryHasItsNameBeforeALanguageIsRead) {
    BancoPosti b;
    std::set<std::string> senza;
    for (const Controllo* c : b.finestra.Controlli())
        if (const auto* voce = dynamic_cast<const VoceMenu*>(c); voce && voce->Caption().empty())
            senza.insert(voce->Name);
    EXPECT_EQ(senza, std::set<std::string>{});
}

}  // namespace corvana::prova
