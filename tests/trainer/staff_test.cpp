// Notes on the staff, their names, and how they are announced.
#include <gtest/gtest.h>

#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

namespace {

using Note = std::vector<int>;
using Nomi = std::vector<std::string>;

struct BancoPentagramma : BancoPrincipale {
    BancoPentagramma() {
        globali.PercorsoNote = "/programma/note/";
        suono.ApriMidi(-1);
        finestra.Nascondinote();
    }
    /// Announces that position as the note that stands.
    void Annuncia(int posizione) {
        finestra.NotaCorrente = static_cast<std::uint8_t>(posizione);
        finestra.AnnunciaNota();
    }
    int UltimoMidi() const { return (suono.UltimoMessaggio >> 8) & 0xFF; }
};

}  // namespace

TEST(Pentagramma, AtRestAllMasksAreVisibleAndNoHeadIs) {
    BancoPentagramma b;
    int maschere = 0, teste = 0;
    for (const Figura& nota : b.finestra.n)
        (nota.Visible() ? maschere : teste) += 1;
    EXPECT_EQ(maschere, 22);
    EXPECT_EQ(teste, 24);
    EXPECT_TRUE(b.NoteInVista().empty());
}

TEST(Pentagramma, EachPositionShowsByItsOwnControlAndNothingElseChanges) {
    for (const Posizione& p : Posizioni()) {
        BancoPentagramma b;
        b.finestra.VisualizzaNota(static_cast<std::uint8_t>(p.numero));
        EXPECT_EQ(b.NoteInVista(), Note{p.numero});
    }
}

TEST(Pentagramma, NumbersThatAreNoPositionChangeNothing) {
    BancoPentagramma b;
    for (int numero = 0; numero <= 255; ++numero)
        if (!CercaPosizione(numero)) b.finestra.VisualizzaNota(static_cast<std::uint8_t>(numero));
    EXPECT_TRUE(b.NoteInVista().empty());
}

TEST(Pentagramma, TwoNotesMayStandTogether) {
    BancoPentagramma b;
    b.finestra.VisualizzaNota(40);
    b.finestra.VisualizzaNota(58);
    EXPECT_EQ(b.NoteInVista(), (Note{40, 58}));
}

TEST(Pentagramma, HidingTakesAwayNotesOfEveryKind) {
    BancoPentagramma b;
    for (const Posizione& p : Posizioni())
        b.finestra.VisualizzaNota(static_cast<std::uint8_t>(p.numero));
    EXPECT_EQ(b.NoteInVista().size(), 46U);
    b.finestra.Nascondinote();
    EXPECT_TRUE(b.NoteInVista().empty());
}

TEST(NomeDellaNota, IsInPlaceTheMomentTheNoteAppearsVisibleOrNot) {
    BancoPentagramma b;
    EXPECT_FALSE(b.finestra.lblnn.Visible());
    for (const Posizione& p : Posizioni()) {
        b.Annuncia(p.numero);
        EXPECT_FALSE(b.finestra.lblnn.Caption().empty()) << p.numero;
    }
    EXPECT_EQ(b.finestra.lblnn.Caption(), "Si");
}

TEST(NomeDellaNota, TheLowestThreeAreNamedAndSoundedByTheirLowCodes) {
    BancoPentagramma b;
    const std::vector<std::tuple<int, std::string, int>> attese = {
        {11, "Sol", 31}, {12, "La", 33}, {13, "Si", 35}};
    for (const auto& [posizione, nome, midi] : attese) {
        b.Annuncia(posizione);
        EXPECT_EQ(b.finestra.lblnn.Caption(), nome);
        EXPECT_EQ(b.UltimoMidi(), midi);
    }
}

TEST(NomeDellaNota, InAngloNamingN13ReadsBAndSoundsAt35) {
    BancoPentagramma b;
    b.globali.NomiAnglo = true;
    b.Annuncia(13);
    EXPECT_EQ(b.finestra.lblnn.Caption(), "B");
    EXPECT_EQ(b.UltimoMidi(), 35);
}

TEST(NomeDellaNota, TheHelpButtonShowsAndHidesIt) {
    BancoPentagramma b;
    b.finestra.lblMn_Click();
    EXPECT_EQ(b.finestra.lblMn.Caption(), "");
    EXPECT_TRUE(b.finestra.lblnn.Visible());
    b.finestra.lblMn_Click();
    EXPECT_EQ(b.finestra.lblMn.Caption(), "?");
    EXPECT_FALSE(b.finestra.lblnn.Visible());
}

TEST(NomeDellaNota, TheChoiceLastsIntoLaterRuns) {
    BancoPrincipale b;
    b.Clicca(3, "lblMn");
    b.Clicca(4, "Start");
    b.Clicca(5, "Start");
    b.Clicca(6, "Start");
    b.Fine(7);
    b.Avvia();
    EXPECT_TRUE(b.finestra.lblnn.Visible());
    EXPECT_EQ(b.finestra.lblnn.Caption(), "Si");
}

TEST(NomiDelleNote, ChangeTheCaptionsOfTheAnswersAndTheChecks) {
    BancoPentagramma b;
    const auto captions = [&] {
        CorvanaMainF& f = b.finestra;
        return Nomi{f.pdo.Caption(),  f.pre.Caption(), f.pmi.Caption(), f.pfa.Caption(),
                    f.psol.Caption(), f.pla.Caption(), f.psi.Caption()};
    };
    b.finestra.Nominote2_Click();
    EXPECT_TRUE(b.globali.NomiAnglo);
    EXPECT_FALSE(b.finestra.Nominote1.Checked());
    EXPECT_TRUE(b.finestra.Nominote2.Checked());
    EXPECT_EQ(captions(), (Nomi{"C", "D", "E", "F", "G", "A", "B"}));
    b.finestra.Nominote1_Click();
    EXPECT_FALSE(b.globali.NomiAnglo);
    EXPECT_TRUE(b.finestra.Nominote1.Checked());
    EXPECT_FALSE(b.finestra.Nominote2.Checked());
    EXPECT_EQ(captions(), (Nomi{"DO", "RE", "MI", "FA", "SOL", "LA", "SI"}));
}

TEST(NomiDelleNote, TheNameThatStandsChangesWithTheNextNoteOnly) {
    BancoPentagramma b;
    b.Annuncia(44);
    const std::string aiuto = b.finestra.lblAuto1.Caption();
    b.finestra.Nominote2_Click();
    EXPECT_EQ(b.finestra.lblnn.Caption(), "Do");
    EXPECT_EQ(b.finestra.lblAuto1.Caption(), aiuto);
    b.Annuncia(45);
    EXPECT_EQ(b.finestra.lblnn.Caption(), "D");
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
    b.finestra.Suono1_Click();
    EXPECT_FALSE(b.finestra.SuonoNota);
    EXPECT_TRUE(b.finestra.Suono1.Checked());
    b.Annuncia(44);
    ASSERT_EQ(b.uscita.onde.size(), 1U);
    EXPECT_EQ(b.uscita.onde[0].percorso, "/programma/note/rok.wav");
    EXPECT_EQ(b.uscita.onde[0].flags, 0x20003U);
    EXPECT_TRUE(b.uscita.messaggi.empty());
}

TEST(SuonoDellaNota, OpeningItsSubmenuSelectsTheNoteSound) {
    BancoPrincipale b;
    b.Clicca(3, "Suono1");
    b.Quando(3.5, [&] { EXPECT_FALSE(b.finestra.SuonoNota); });
    b.Clicca(4, "Suono2");
    b.Fine(5);
    b.Avvia();
    EXPECT_TRUE(b.finestra.SuonoNota);
    EXPECT_FALSE(b.finestra.Suono1.Checked());
}

}  // namespace corvana::prova
