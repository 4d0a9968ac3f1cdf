#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "desktop/text_box_view.h"
#include "desktop/theme.h"
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
    auto& casella = Trova(palco.scrivania, "casella").Come<QLineEdit>();
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

TEST(Casella, ALockedOneHasTheLargestLettersThatItsTextFitsIn) {
    for (const char* testo : {"50.00%", "a long text", "a longer text"}) {
        Palco palco([&](FormDiProva& form) {
            form.casella.Locked = true;
            form.casella.Text = testo;
        });
        QLineEdit& casella = CasellaDi(palco);
        QFont font = casella.font();
        const auto lungo = [&] { return QFontMetricsF(font).horizontalAdvance(casella.text()); };
        EXPECT_LT(lungo(), casella.width() - 20) << testo;
        if (font.pixelSize() == Carattere({}, 1).pixelSize()) continue;
        font.setPixelSize(font.pixelSize() + 1);
        EXPECT_GT(lungo(), casella.width() - 20) << testo;
    }
}

TEST(Casella, TheLettersOfALockedOneNeverGetTooSmallToBeRead) {
    Palco palco([](FormDiProva& form) {
        form.casella.Locked = true;
        form.casella.Text = "a text that is much longer than its box could ever hold";
    });
    for (const int volte : {1, 2}) {
        Ingrandisci(*palco.scrivania.Davanti(), volte);
        EXPECT_EQ(CasellaDi(palco).font().pixelSize(), 11 * volte);
    }
}

TEST(Casella, EnterIsToldBetweenItsPressAndItsRelease) {
    Palco palco;
    CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_Return);
    Batti(palco.scrivania, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(palco.Diario(),
              (Righe{"giu 13", "casella invio", "su 13", "giu 13", "casella invio", "su 13"}));
}

TEST(Casella, AClickOnAButtonTakesTheFocusBeforeItIsAClick) {
    Palco palco;
    CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_A);
    Clicca(palco.scrivania, "bottone");
    EXPECT_EQ(palco.Diario(), (Righe{"giu 65", "casella change", "su 65", "casella lasciata",
                                     "bottone giu", "bottone su", "bottone click"}));
}

TEST(Casella, TheTabKeyAndTheLogicTakeTheFocusToo) {
    Palco palco;
    CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_Tab);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 9", "casella lasciata", "su 9"}));
    CasellaDi(palco);
    palco.NellaLogica([](FormDiProva& form) { form.secondo.SetFocus(); });
    EXPECT_EQ(palco.Diario(), (Righe{"casella lasciata"}));
}

TEST(Casella, ALabelThatIsClickedLeavesItTheFocus) {
    Palco palco;
    CasellaDi(palco);
    Clicca(palco.scrivania, "toccabile");
    EXPECT_EQ(palco.Diario(), (Righe{"toccabile giu", "toccabile su", "toccabile click"}));
}

TEST(Casella, ItsCursorIsOneSharpLine) {
    Palco palco([](FormDiProva& form) { form.casella.Text = "12 "; });
    const QImage foto = Fotografa(CasellaDi(palco));
    const auto luce = [&](int x) { return foto.pixelColor(x, foto.height() / 2).lightness(); };
    int cursore = 60;
    while (cursore > 0 && luce(cursore) > 240)
        --cursore;
    EXPECT_LT(luce(cursore), 80);
    EXPECT_GT(luce(cursore - 1), 240);
}

TEST(Casella, OneThatIsDisabledOrHiddenHasLostTheFocus) {
    for (const bool nascosta : {false, true}) {
        Palco palco;
        CasellaDi(palco);
        palco.NellaLogica([=](FormDiProva& form) {
            nascosta ? form.casella.Visible = false : form.casella.Enabled = false;
        });
        EXPECT_EQ(palco.Diario(), (Righe{"casella lasciata"})) << nascosta;
    }
}

TEST(Casella, AMenuABoxAndAnotherWindowOnlyBorrowTheFocus) {
    Palco palco;
    CasellaDi(palco);
    Batti(palco.scrivania, Qt::Key_F10);
    ASSERT_TRUE(Aspetta([] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    // The bar, which has the keyboard by now, gives it back.
    EXPECT_FALSE(Trova(palco.scrivania, "casella").hasFocus());
    Batti(palco.scrivania, Qt::Key_Escape);
    palco.Ordina([](FormDiProva& form) { form.riquadri.MsgBox("ecco"); });
    ASSERT_TRUE(Aspetta([&] { return palco.scrivania.Riquadro() != nullptr; }));
    palco.scrivania.Riquadro()->accept();
    palco.Ordina([](FormDiProva& form) { form.finestre.MostraModale(form.sopra); });
    AspettaFinestra(palco.scrivania, "FormSopra");
    Clicca(palco.scrivania, "ok");
    AspettaFinestra(palco.scrivania, "FormDiProva");
    const Righe diario = palco.Diario();
    EXPECT_EQ(std::count(diario.begin(), diario.end(), "casella lasciata"), 0);
    EXPECT_TRUE(Trova(palco.scrivania, "casella").hasFocus());
}

TEST(Casella, TheFocusThatWasTakenWhileTheWindowWasntActiveIsLostWhenItIsAgain) {
    Palco palco;
    CasellaDi(palco);
    QWidget altra;
    altra.show();
    altra.activateWindow();
    ASSERT_TRUE(Aspetta([&] { return altra.isActiveWindow(); }));
    palco.NellaLogica([](FormDiProva& form) { form.secondo.SetFocus(); });
    EXPECT_EQ(palco.Diario(), Righe{});
    palco.scrivania.Davanti()->Finestra().activateWindow();
    AspettaFinestra(palco.scrivania, "FormDiProva");
    EXPECT_EQ(palco.Diario(), (Righe{"casella lasciata"}));
}

/// The menu that the right button opens on it.
QMenu& MenuDi(QWidget& widget) {
    const QPoint dove = widget.rect().center();
    QContextMenuEvent chiesto(QContextMenuEvent::Mouse, dove, widget.mapToGlobal(dove));
    QApplication::sendEvent(&widget, &chiesto);
    if (!Aspetta([] { return QApplication::activePopupWidget() != nullptr; }))
        throw std::logic_error("no menu opened");
    return dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
}

/// Without the keys behind them; it is then closed.
QStringList Voci(QMenu& menu) {
    QStringList voci;
    for (const QAction* voce : menu.actions())
        if (!voce->isSeparator()) voci << voce->text().section('\t', 0, 0);
    menu.close();
    Aspetta([] { return QApplication::activePopupWidget() == nullptr; });
    return voci;
}

TEST(MenuDelTesto, ItSpeaksTheLanguageThatIsChosen) {
    Palco palco;
    QLineEdit& casella = CasellaDi(palco);
    EXPECT_EQ(Voci(MenuDi(casella)), (QStringList{"&Annulla", "&Ripeti", "&Taglia", "&Copia",
                                                  "&Incolla", "&Elimina", "&Seleziona tutto"}));
    ParoleSchermo inglesi;
    inglesi.parAnnullaModifica = "1";
    inglesi.parRipeti = "2";
    inglesi.parTaglia = "3";
    inglesi.parCopia = "4";
    inglesi.parIncolla = "5";
    inglesi.parElimina = "6";
    inglesi.parSelezionaTutto = "7";
    palco.scrivania.Schermo().CambiaLingua(inglesi, "");
    palco.NellaLogica({});
    EXPECT_EQ(Voci(MenuDi(casella)), (QStringList{"1", "2", "3", "4", "5", "6", "7"}));
}

TEST(MenuDelTesto, WhatItPastesIsToldToTheProgram) {
    Palco palco;
    QLineEdit& casella = CasellaDi(palco);
    QGuiApplication::clipboard()->setText("42");
    QMenu& menu = MenuDi(casella);
    for (QAction* voce : menu.actions())
        if (voce->text().startsWith("&Incolla")) voce->trigger();
    menu.close();
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.casella.Text(), "42"); });
}

}  // namespace
}  // namespace corvana::prova
