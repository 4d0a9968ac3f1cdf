#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

void FaiDoppioClick(Scrivania& scrivania, const QString& nome) {
    const Cosa widget = Trova(scrivania, nome);
    QWindow* finestra = widget.window()->windowHandle();
    const QPoint dove = widget.NellaFinestra(widget.rect().center());
    QTest::mouseDClick(finestra, Qt::LeftButton, {}, dove);
}

TEST(Bottone, AClickIsDownUpClick) {
    Palco palco;
    Clicca(palco.scrivania, "bottone");
    EXPECT_EQ(palco.Diario(), (Righe{"bottone giu", "bottone su", "bottone click"}));
}

TEST(Bottone, TwoQuickClicksAreTwoClicks) {
    Palco palco;
    FaiDoppioClick(palco.scrivania, "bottone");
    EXPECT_EQ(palco.Diario(), (Righe{"bottone giu", "bottone su", "bottone click", "bottone giu",
                                     "bottone su", "bottone click"}));
}

TEST(Bottone, ADisabledOneTellsNothing) {
    Palco palco([](FormDiProva& form) { form.bottone.Enabled = false; });
    EXPECT_FALSE(Trova(palco.scrivania, "bottone").isEnabled());
    Clicca(palco.scrivania, "bottone");
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Bottone, OneInADisabledFrameIsDisabledWithIt) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.cornice.Enabled = false; });
    EXPECT_FALSE(Trova(palco.scrivania, "dentro").isEnabled());
    palco.NellaLogica([](FormDiProva& form) { form.cornice.Visible = false; });
    EXPECT_FALSE(Trova(palco.scrivania, "dentro").isVisible());
}

TEST(Bottone, ItsColourIsTheControls) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.bottone.BackColor = Rgb(10, 200, 30); });
    QWidget& bottone = Trova(palco.scrivania, "bottone");
    const QImage foto = Fotografa(bottone);
    EXPECT_EQ(foto.pixelColor(12, foto.height() / 2), QColor(10, 200, 30));
}

TEST(Bottone, IsDarkerUnderThePointer) {
    Palco palco([](FormDiProva& form) { form.bottone.BackColor = Rgb(200, 240, 120); });
    QWidget& bottone = Trova(palco.scrivania, "bottone");
    const QPoint fondo(12, bottone.height() / 2);
    EXPECT_EQ(Fotografa(bottone).pixelColor(fondo), QColor(200, 240, 120));
    Muovi(bottone, fondo);
    EXPECT_LT(Fotografa(bottone).pixelColor(fondo).green(), 240);
    Muovi(Trova(palco.scrivania, "secondo"), fondo);
    EXPECT_EQ(Fotografa(bottone).pixelColor(fondo), QColor(200, 240, 120));
}

TEST(Bottone, TheAccessKeyOfItsCaptionPushesIt) {
    Palco palco;
    Batti(palco.scrivania, Qt::Key_V, Qt::AltModifier);
    Righe diario;
    EXPECT_TRUE(Aspetta([&] {
        for (std::string& riga : palco.Diario())
            diario.push_back(std::move(riga));
        return std::count(diario.begin(), diario.end(), "bottone click") == 1;
    }));
}

TEST(Etichetta, ADoubleClickIsDownUpClickDoubleClickUp) {
    Palco palco;
    FaiDoppioClick(palco.scrivania, "toccabile");
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su", "toccabile click",
                                     "toccabile doppio", "toccabile su"}));
}

TEST(Etichetta, OneThatCanBeClickedIsAButtonToTheKeyboardAndToAScreenReader) {
    Palco palco;
    const Cosa toccabile = Trova(palco.scrivania, "toccabile");
    EXPECT_TRUE(toccabile.Fermata());
    const auto* accessibile = toccabile.PerLettore();
    ASSERT_TRUE(accessibile);
    EXPECT_EQ(accessibile->role(), QAccessible::Button);
    EXPECT_EQ(accessibile->text(QAccessible::Name), "Mostra il nome");
    toccabile.setFocus();
    Batti(palco.scrivania, Qt::Key_Space);
    EXPECT_EQ(palco.Diario(),
              (Righe{"giu 32", "toccabile giu", "su 32", "toccabile su", "toccabile click"}));
}

TEST(Etichetta, OneBecomesAButtonWhileItIsShownAndCeasesToBeOne) {
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    EXPECT_FALSE(scritta.Fermata());
    int volte = 0;
    palco.NellaLogica([&](FormDiProva& form) { form.scritta.Click = [&] { ++volte; }; });
    EXPECT_TRUE(scritta.Fermata());
    EXPECT_EQ(scritta.PerLettore()->role(), QAccessible::Button);
    scritta.setFocus(Qt::TabFocusReason);
    Batti(palco.scrivania, Qt::Key_Space);
    Muovi(scritta, scritta.rect().center());
    EXPECT_EQ(scritta.Suolo().cursor().shape(), Qt::PointingHandCursor);
    Clicca(palco.scrivania, "scritta");
    palco.NellaLogica([](FormDiProva& form) { form.scritta.Click = nullptr; });
    EXPECT_EQ(volte, 2);
    EXPECT_FALSE(scritta.Fermata());
    EXPECT_FALSE(scritta.hasFocus());
    EXPECT_NE(scritta.PerLettore()->role(), QAccessible::Button);
    Clicca(palco.scrivania, "scritta");
    palco.Diario();
    EXPECT_EQ(volte, 2);
}

void TieniInvio(Scrivania& scrivania) {
    Premi(scrivania, Qt::Key_Return);
    QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QCoreApplication::sendEvent(scrivania.Davanti()->Finestra().windowHandle(), &ripetuto);
    Lascia(scrivania, Qt::Key_Return);
}

TEST(Etichetta, EnterHeldDownIsOneClick) {
    Palco palco;
    Trova(palco.scrivania, "toccabile").setFocus();
    TieniInvio(palco.scrivania);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "toccabile giu", "giu 13 ripetuto", "su 13",
                                     "toccabile su", "toccabile click"}));
}

TEST(Bottone, EnterHeldDownIsOneClick) {
    Palco palco;
    Trova(palco.scrivania, "bottone").setFocus();
    TieniInvio(palco.scrivania);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "bottone click", "giu 13 ripetuto", "su 13"}));
}

TEST(Etichetta, APlainOneIsTextToAScreenReaderAndNoStopOfTheTabKey) {
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    const auto* accessibile = scritta.PerLettore();
    ASSERT_TRUE(accessibile);
    EXPECT_EQ(accessibile->role(), QAccessible::StaticText);
    EXPECT_EQ(accessibile->text(QAccessible::Name), "Una scritta");
    EXPECT_FALSE(scritta.Fermata());
}

TEST(Spunta, AClickTellsItsNewStateAndTheLogicCanSetItSilently) {
    Palco palco;
    auto& spunta = Trova(palco.scrivania, "spunta").Come<QCheckBox>();
    spunta.click();
    EXPECT_EQ(palco.Diario(), (Righe{"spunta click"}));
    palco.NellaLogica([](FormDiProva& form) {
        EXPECT_TRUE(form.spunta.Value());
        form.spunta.Value = false;
    });
    EXPECT_FALSE(spunta.isChecked());
    EXPECT_EQ(palco.Diario(), Righe{});
}

}  // namespace
}  // namespace corvana::prova
