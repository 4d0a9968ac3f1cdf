// The ear trainer's face: what it says without colours, and to a screen reader.
#include <gtest/gtest.h>

#include "desktop/theme.h"
#include "tests/desktop/program_stage.h"

namespace corvana::prova {
namespace {

struct PalcoOrecchio : PalcoProgramma {
    explicit PalcoOrecchio(const char* pagina) : PalcoProgramma(QStringLiteral(CORVANA_DATA)) {
        TrovaVoce(scrivania, QString::fromLatin1(pagina)).trigger();
        AspettaFinestra(scrivania, QStringLiteral("frmInto"));
    }
    ~PalcoOrecchio() { scrivania.Termina(); }
    Cosa Di(const char* nome) { return Trova(scrivania, QString::fromLatin1(nome)); }
    QAccessibleInterface& Lettore(const char* nome) { return *Di(nome).PerLettore(); }
    bool Diventa(const char* nome, bool spuntata) {
        return Aspetta([&] { return Lettore(nome).state().checked == spuntata; });
    }
};

/// The picture as one sees it who sees no colours.
QImage Grigia(const Cosa& cosa) {
    return Fotografa(cosa).convertToFormat(QImage::Format_Grayscale8);
}

/// Points that stand out against the ground of the middle row.
int Segno(const Cosa& cosa) {
    const QImage foto = Grigia(cosa);
    const int fondo = qGray(foto.pixel(foto.width() / 4, foto.height() / 2));
    int diversi = 0;
    for (int x = foto.width() / 3; x < 2 * foto.width() / 3; ++x)
        for (int y = 3; y < foto.height() - 3; ++y)
            diversi += std::abs(qGray(foto.pixel(x, y)) - fondo) > 60;
    return diversi;
}

bool HaColore(const QImage& foto, const QColor& colore) {
    for (int x = 0; x < foto.width(); ++x)
        for (int y = 0; y < foto.height(); ++y)
            if (foto.pixelColor(x, y) == colore) return true;
    return false;
}

TEST(Orecchio, AStripBearsASignAndTellsAScreenReaderWhatItAdmits) {
    PalcoOrecchio p("mnuRint");
    for (const char* nome : {"Il3", "Il5"}) {
        EXPECT_GT(Segno(p.Di(nome)), 8) << nome;
        EXPECT_EQ(p.Lettore(nome).role(), QAccessible::CheckBox) << nome;
        EXPECT_TRUE(p.Lettore(nome).state().checkable) << nome;
    }
    EXPECT_TRUE(p.Lettore("Il3").state().checked);
    EXPECT_FALSE(p.Lettore("Il5").state().checked);
    EXPECT_EQ(p.Lettore("Il5").text(QAccessible::Name), "5");
    EXPECT_NE(p.Lettore("Il5").text(QAccessible::Description), "");
    EXPECT_NE(Grigia(p.Di("Il3")), Grigia(p.Di("Il5")));
}

TEST(Orecchio, TheStripsAreSwitchedFromTheKeyboard) {
    PalcoOrecchio p("mnuRint");
    p.Di("LblSemi4").setFocus(Qt::TabFocusReason);
    Batti(p.scrivania, Qt::Key_Down);
    EXPECT_TRUE(p.Di("Il4").hasFocus());
    Batti(p.scrivania, Qt::Key_Space);
    EXPECT_TRUE(p.Diventa("Il4", false));
    Batti(p.scrivania, Qt::Key_Right);
    Batti(p.scrivania, Qt::Key_Return);
    EXPECT_TRUE(p.Diventa("Il5", true));
    // The whole row's switch hears double clicks alone.
    Batti(p.scrivania, Qt::Key_Home);
    EXPECT_TRUE(p.Di("Il0").hasFocus());
    Batti(p.scrivania, Qt::Key_Return);
    EXPECT_TRUE(p.Diventa("Il0", true));
    EXPECT_TRUE(p.Diventa("Il13", true));
}

TEST(Orecchio, AChosenModeStandsInWordsBesideItsSign) {
    PalcoOrecchio p("Intonazione");
    const Cosa modo = p.Di("lblMod");
    const QString prima = modo.accessibleName();
    const QImage foto = Grigia(modo);
    modo.setFocus(Qt::TabFocusReason);
    Batti(p.scrivania, Qt::Key_Space);
    ASSERT_TRUE(Aspetta([&] { return modo.accessibleName() != prima; }));
    int diversi = 0;
    const QImage dopo = Grigia(modo);
    for (int x = 80; x < foto.width() - 10; ++x)
        for (int y = 8; y < foto.height() - 8; ++y)
            diversi += dopo.pixel(x, y) != foto.pixel(x, y);
    EXPECT_GT(diversi, 40) << "the words are the same";
}

TEST(Orecchio, BlackKeysThatAreNotAskedAreCrossedOut) {
    PalcoOrecchio p("Intonazione");
    const Cosa tasto = p.Di("lblT1");
    const auto croce = [&] {
        const QImage foto = Fotografa(tasto);
        return foto.pixelColor(foto.rect().center()) == tinta::sbagliato;
    };
    const bool prima = croce();
    p.Di("lblSolotb").setFocus(Qt::TabFocusReason);
    Batti(p.scrivania, Qt::Key_Space);
    EXPECT_TRUE(Aspetta([&] { return croce() != prima; }));
    EXPECT_FALSE(tasto.Fermata()) << "the button beneath is the stop";
}

TEST(Orecchio, ARightAndAWrongAnswerAreToldByTheirSigns) {
    PalcoOrecchio p("mnuRint");
    Clicca(p.scrivania, "CmdIntStart");
    ASSERT_TRUE(Aspetta([&] { return StatoDi(p.scrivania, "CmdIntStart").Caption == "Stop"; }));
    // Of the sizes only three are admitted.
    Clicca(p.scrivania, "LblSemi13");
    ASSERT_TRUE(Aspetta([&] { return p.Di("lblKo").isVisible(); }));
    EXPECT_GT(Segno(p.Di("lblKo")), 20);
    EXPECT_EQ(p.Lettore("lblKo").text(QAccessible::Name), "Risposte errate");
    EXPECT_TRUE(Aspetta(
        [&] { return p.Lettore("txtRerrate").text(QAccessible::Name) == "Risposte errate 1"; }));
    Clicca(p.scrivania, "CmdIntStart");
    EXPECT_TRUE(Aspetta([&] { return StatoDi(p.scrivania, "CmdIntStart").Caption == "Start"; }));
}

TEST(Orecchio, TheHelpIsASwitchAndTheAnswerThatItShowsBearsASign) {
    PalcoOrecchio p("mnuRint");
    EXPECT_EQ(p.Lettore("lblIntSh").role(), QAccessible::CheckBox);
    EXPECT_FALSE(p.Lettore("lblIntSh").state().checked);
    Clicca(p.scrivania, "CmdIntStart");
    ASSERT_TRUE(Aspetta([&] { return StatoDi(p.scrivania, "CmdIntStart").Caption == "Stop"; }));
    Clicca(p.scrivania, "lblIntSh");
    EXPECT_TRUE(p.Diventa("lblIntSh", true));
    QStringList svelate;
    for (const int n : {3, 4, 7}) {
        const QString nome = QStringLiteral("LblSemi%1").arg(n);
        if (Trova(p.scrivania, nome).PerLettore()->state().selected) svelate.append(nome);
    }
    ASSERT_EQ(svelate.size(), 1);
    const QImage svelata = Fotografa(Trova(p.scrivania, svelate[0]));
    EXPECT_TRUE(HaColore(svelata, tinta::giusto));
    Clicca(p.scrivania, "CmdIntStart");
    EXPECT_TRUE(Aspetta([&] { return StatoDi(p.scrivania, "CmdIntStart").Caption == "Start"; }));
}

}  // namespace
}  // namespace corvana::prova
