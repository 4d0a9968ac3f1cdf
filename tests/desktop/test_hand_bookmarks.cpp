// A range typed into its boxes, made a bookmark, played and pasted, all with the mouse and the
// keyboard in the real window.
#include <gtest/gtest.h>

#include <QListWidget>

#include "tests/core/temporary_folder.h"
#include "tests/desktop/melody_hand.h"

namespace corvana::prova {
namespace {

struct PalcoRiferimenti : PalcoMelodia {
    explicit PalcoRiferimenti(const std::string& cartella) : PalcoMelodia(cartella) {
        for (const GestoMouse& gesto : GestiDi({"60;62;64;65;", "1;0.5;1;1;", "n;n;n;n;"}))
            Fai(gesto);
    }
    QListWidget& Elenco() { return Di("lstBookMark").Come<QListWidget>(); }
    QString Riga(int riga) { return Elenco().item(riga)->text(); }
};

TEST(RiferimentiAMano, ATypedRangeIsBookmarkedPlayedByADoubleClickPastedAndSaved) {
    const CartellaProvvisoria cartella;
    PalcoRiferimenti p(cartella.Di(""));
    p.ScriviIn("lblNini", "2");
    p.ScriviIn("lblNfine", "3");
    p.Tocca("cmdAddBm");
    p.Rispondi("mezzo");
    ASSERT_EQ(p.Elenco().count(), 2);
    EXPECT_EQ(p.Riga(0), QStringLiteral("1 ÷ 4 ÷Tutta la melodia"));
    EXPECT_EQ(p.Riga(1), QStringLiteral("2 ÷ 3 ÷ mezzo"));
    p.ScriviIn("lblNini", "1");
    p.ToccaRigaDueVolte("2 ÷ 3 ÷ mezzo", "lstBookMark");
    EXPECT_EQ(p.Testo("lblNini"), QStringLiteral("2"));
    EXPECT_EQ(p.Testo("lblNfine"), QStringLiteral("3"));
    EXPECT_EQ(p.Dice("LblNoteString"), "Do;Re;Mi;");
    p.Tocca("cmdPaste");
    EXPECT_TRUE(p.Di("lblIncolla").isVisible());
    p.Tocca("lblIncolla");
    EXPECT_FALSE(p.Di("lblIncolla").isVisible());
    p.Tocca("cmdPaste");
    p.Tocca("cmdPaste");
    EXPECT_FALSE(p.Di("lblIncolla").isVisible());
    p.SalvaConNome("pasted");
    const LetturaMel letta = LeggiMel(Contenuto(cartella.Di("pasted.mel")), '.');
    EXPECT_EQ(letta.soprano[0], "60;62;64;65;62;64;");
    EXPECT_EQ(letta.riferimenti,
              (std::vector<std::string>{"1 ÷ 6 ÷Tutta la melodia", "2 ÷ 3 ÷ mezzo"}));
}

TEST(RiferimentiAMano, TheirButtonsAreReachedWithTheKeyboardAndHaveNames) {
    const CartellaProvvisoria cartella;
    PalcoRiferimenti p(cartella.Di(""));
    p.Tocca("cmdAddBm");
    p.Rispondi("a");
    for (const char* nome : {"lstBookMark", "cmdPlayBm", "cmdModBm", "cmdRenameBm", "cmdMbUd0",
                             "cmdMbUd1", "cmdDelBm", "cmdHideBm"}) {
        p.VaiA(nome);
        EXPECT_FALSE(p.Di(nome).accessibleName().isEmpty()) << nome;
        EXPECT_FALSE(p.Di(nome).toolTip().isEmpty()) << nome;
    }
    p.Batti(Qt::Key_Space);
    EXPECT_FALSE(p.Di("frBookMark").isVisible());
}

}  // namespace
}  // namespace corvana::prova
