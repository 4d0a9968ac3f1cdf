// Notes on the staff, their names, and how they are announced.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"
#include "trainer/shown_notes.h"

namespace corvana::prova {

namespace {

using Note = std::vector<int>;
using Nomi = std::vector<std::string>;

struct BancoPentagramma : BancoPrincipale {
    BancoPentagramma() {
        globali.PercorsoNote = "/programma/note/";
        suono.ApriMidi(-1);
        Nascondinote(finestra);
    }
    /// Announces that position as the note that stands.
    void Annuncia(int posizione) {
        finestra.stato.NotaCorrente = static_cast<std::uint8_t>(posizione);
        finestra.esercizio.AnnunciaNota();
    }
    int UltimoMidi() const { return (suono.UltimoMessaggio >> 8) & 0xFF; }
};

}  // namespace

TEST(Pentagramma, AtRestAllMasksAreVisibleAndNoHeadIs) {
    BancoPentagramma b;
    int maschere = 0, teste = 0;
    for (const Figura& nota : b.finestra.pentagramma.n)
        (nota.Visible() ? maschere : teste) += 1;
    EXPECT_EQ(maschere, 22);
    EXPECT_EQ(teste, 24);
    EXPECT_TRUE(b.NoteInVista().empty());
}

TEST(Pentagramma, EachPositionShowsByItsOwnControlAndNothingElseChanges) {
    for (const Posizione& p : Posizioni()) {
        BancoPentagramma b;
        VisualizzaNota(b.finestra, static_cast<std::uint8_t>(p.numero));
        EXPECT_EQ(b.NoteInVista(), Note{p.numero});
    }
}

TEST(Pentagramma, NumbersThatAreNoPositionChangeNothing) {
    BancoPentagramma b;
    for (int numero = 0; numero <= 255; ++numero)
        if (!CercaPosizione(numero)) VisualizzaNota(b.finestra, static_cast<std::uint8_t>(numero));
    EXPECT_TRUE(b.NoteInVista().empty());
}

TEST(Pentagramma, TwoNotesMayStandTogether) {
    BancoPentagramma b;
    VisualizzaNota(b.finestra, 40);
    VisualizzaNota(b.finestra, 58);
    EXPECT_EQ(b.NoteInVista(), (Note{40, 58}));
}

TEST(Pentagramma, HidingTakesAwayNotesOfEveryKind) {
    BancoPentagramma b;
    for (const Posizione& p : Posizioni())
        VisualizzaNota(b.finestra, static_cast<std::uint8_t>(p.numero));
    EXPECT_EQ(b.NoteInVista().size(), 46U);
    Nascondinote(b.finestra);
    EXPECT_TRUE(b.NoteInVista().empty());
}

TEST(NomeDellaNota, IsInPlaceTheMomentTheNoteAppearsVisibleOrNot) {
    BancoPentagramma b;
    EXPECT_FALSE(b.finestra.pentagramma.lblnn.Visible());
    for (const Posizione& p : Posizioni()) {
        b.Annuncia(p.numero);
        EXPECT_FALSE(b.finestra.pentagramma.lblnn.Caption().empty()) << p.numero;
    }
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "Si");
}

TEST(NomeDellaNota, IsInPlaceBesideTheNoteBeforeTheNoteSounds) {
    BancoPrincipale b;
    Nomi durante;
    b.riquadri.durante = [&](const std::string&) {
        EXPECT_TRUE(b.finestra.pentagramma.lblnn.Visible());
        EXPECT_EQ(b.NoteInVista(), Note{43});
        durante.push_back(b.finestra.pentagramma.lblnn.Caption());
    };
    b.Clicca(3, "lblMn");
    b.Quando(3.5, [&] { b.uscita.esitoShortMsg = 67; });
    b.Clicca(4, "Start");
    b.Fine(5);
    b.Avvia();
    EXPECT_EQ(durante, (Nomi{"Si", "Si"})) << "while the boxes of the failed messages are up";
}

TEST(NomeDellaNota, TheLowestThreeAreNamedAndSoundedByTheirLowCodes) {
    BancoPentagramma b;
    const std::vector<std::tuple<int, std::string, int>> attese = {
        {11, "Sol", 31}, {12, "La", 33}, {13, "Si", 35}};
    for (const auto& [posizione, nome, midi] : attese) {
        b.Annuncia(posizione);
        EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), nome);
        EXPECT_EQ(b.UltimoMidi(), midi);
    }
}

TEST(NomeDellaNota, InAngloNamingN13ReadsBAndSoundsAt35) {
    BancoPentagramma b;
    b.globali.NomiAnglo = true;
    b.Annuncia(13);
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "B");
    EXPECT_EQ(b.UltimoMidi(), 35);
}

TEST(NomeDellaNota, TheHelpButtonShowsAndHidesIt) {
    BancoPentagramma b;
    b.finestra.pentagramma.lblMn_Click();
    EXPECT_EQ(b.finestra.pentagramma.lblMn.Caption(), "");
    EXPECT_TRUE(b.finestra.pentagramma.lblnn.Visible());
    b.finestra.pentagramma.lblMn_Click();
    EXPECT_EQ(b.finestra.pentagramma.lblMn.Caption(), "?");
    EXPECT_FALSE(b.finestra.pentagramma.lblnn.Visible());
}

TEST(NomeDellaNota, TheChoiceLastsIntoLaterRuns) {
    BancoPrincipale b;
    b.Clicca(3, "lblMn");
    b.Clicca(4, "Start");
    b.Clicca(5, "Start");
    b.Clicca(6, "Start");
    b.Fine(7);
    b.Avvia();
    EXPECT_TRUE(b.finestra.pentagramma.lblnn.Visible());
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "Si");
}

TEST(NomiDelleNote, ChangeTheCaptionsOfTheAnswersAndTheChecks) {
    BancoPentagramma b;
    const auto captions = [&] {
        CorvanaMainF& f = b.finestra;
        return Nomi{f.risposte.pdo.Caption(), f.risposte.pre.Caption(),  f.risposte.pmi.Caption(),
                    f.risposte.pfa.Caption(), f.risposte.psol.Caption(), f.risposte.pla.Caption(),
                    f.risposte.psi.Caption()};
    };
    b.finestra.Nominote2_Click();
    EXPECT_TRUE(b.globali.NomiAnglo);
    EXPECT_FALSE(b.finestra.menu.Nominote1.Checked());
    EXPECT_TRUE(b.finestra.menu.Nominote2.Checked());
    EXPECT_EQ(captions(), (Nomi{"C", "D", "E", "F", "G", "A", "B"}));
    b.finestra.Nominote1_Click();
    EXPECT_FALSE(b.globali.NomiAnglo);
    EXPECT_TRUE(b.finestra.menu.Nominote1.Checked());
    EXPECT_FALSE(b.finestra.menu.Nominote2.Checked());
    EXPECT_EQ(captions(), (Nomi{"DO", "RE", "MI", "FA", "SOL", "LA", "SI"}));
}

TEST(NomiDelleNote, TheNameThatStandsChangesWithTheNextNoteOnly) {
    BancoPentagramma b;
    b.Annuncia(44);
    const std::string aiuto = b.finestra.automatico.lblAuto1.Caption();
    b.finestra.Nominote2_Click();
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "Do");
    EXPECT_EQ(b.finestra.automatico.lblAuto1.Caption(), aiuto);
    b.Annuncia(45);
    EXPECT_EQ(b.finestra.pentagramma.lblnn.Caption(), "D");
}

TEST(SuonoDellaNota, WithTheNoteSoundEachNoteReplacesTheOneBefore) {
    BancoPentagramma b;
    b.Annuncia(44);
    b.Annuncia(45);
    EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 62}}));
    EXPECT_TRUE(b.uscita.onde.empty());
}

TEST(SuonoDellaNota, WithThePlainCueTheWaveIsPlayedAndNoNote) {
    BancoPentagramma b;
    b.finestra.menu.Suono1_Click();
    EXPECT_FALSE(b.finestra.stato.SuonoNota);
    EXPECT_TRUE(b.finestra.menu.Suono1.Checked());
    b.Annuncia(44);
    ASSERT_EQ(b.uscita.onde.size(), 1U);
    EXPECT_EQ(b.uscita.onde[0].percorso, "/programma/note/rok.wav");
    EXPECT_EQ(b.uscita.onde[0].flags, 0x20003U);
    EXPECT_TRUE(b.uscita.messaggi.empty());
}

TEST(SuonoDellaNota, OpeningItsSubmenuSelectsTheNoteSound) {
    BancoPrincipale b;
    b.Clicca(3, "Suono1");
    b.Quando(3.5, [&] { EXPECT_FALSE(b.finestra.stato.SuonoNota); });
    b.Clicca(4, "Suono2");
    b.Fine(5);
    b.Avvia();
    EXPECT_TRUE(b.finestra.stato.SuonoNota);
    EXPECT_FALSE(b.finestra.menu.Suono1.Checked());
}

}  // namespace corvana::prova
