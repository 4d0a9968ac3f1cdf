#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

#include "desktop/text_box_view.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

char32_t SoloCifre(char32_t c) {
    return c >= '0' && c <= '9' ? c : 0;
}
char32_t Maiuscolo(char32_t c) {
    return c >= 'a' && c <= 'z' ? c - 32 : c;
}

QLineEdit& CasellaDi(Palco& palco) {
    auto& casella = dynamic_cast<QLineEdit&>(Trova(palco.scrivania, "casella"));
    casella.setFocus();
    return casella;
}

TEST(Filtrato, EachCharacterIsTakenReplacedOrDropped) {
    EXPECT_EQ(Filtrato("a1b2", SoloCifre), "12");
    EXPECT_EQ(Filtrato("re", Maiuscolo), "RE");
    EXPECT_EQ(Filtrato("re", nullptr), "re");
    EXPECT_EQ(Filtrato(QString::fromUtf8("è𝄞"), Maiuscolo), QString::fromUtf8("è𝄞"));
}

TEST(Casella, TypingChangesTheTextThere) {
    Palco palco;
    CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_A);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 65", "casella change", "su 65"}));
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.casella.Text(), "a"); });
}

TEST(Casella, TheFilterWorksAtTheKeystrokeAndNotAtPasting) {
    Palco palco([](FormDiProva& form) { form.casella.Filtro = SoloCifre; });
    QLineEdit& casella = CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_A);
    Batti(palco.scrivania, Qt::Key_7);
    EXPECT_EQ(casella.text(), "7");
    QGuiApplication::clipboard()->setText("xy");
    casella.paste();
    EXPECT_EQ(casella.text(), "7xy");
}

TEST(Casella, AFilterCanTakeAnotherCharacterInstead) {
    Palco palco([](FormDiProva& form) { form.casella.Filtro = Maiuscolo; });
    QLineEdit& casella = CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_D);
    EXPECT_EQ(casella.text(), "D");
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.casella.Text(), "D"); });
}

TEST(Casella, NoMoreCharactersThanTheLimitAreTaken) {
    Palco palco([](FormDiProva& form) { form.casella.MaxLength = 2; });
    QLineEdit& casella = CasellaDi(palco);
    for (int i = 0; i < 4; ++i)
        Batti(palco.scrivania, Qt::Key_1);
    EXPECT_EQ(casella.text(), "11");
}

TEST(Casella, ALockedOneShowsAndTakesNothing) {
    Palco palco([](FormDiProva& form) {
        form.casella.Locked = true;
        form.casella.Text = "12";
    });
    QLineEdit& casella = CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_3);
    EXPECT_EQ(casella.text(), "12");
    palco.NellaLogica([](FormDiProva& form) { form.casella.Text = "50.00%"; });
    EXPECT_EQ(casella.text(), "50.00%");
    EXPECT_EQ(palco.Diario(), (Righe{"giu 51", "su 51"}));
}

}  // namespace
}  // namespace corvana::prova
