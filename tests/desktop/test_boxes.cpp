#include <gtest/gtest.h>

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

QMessageBox& Messaggio(Palco& palco) {
    if (!Aspetta(
            [&] { return palco.scrivania.Riquadro() && palco.scrivania.Riquadro()->isVisible(); }))
        throw std::logic_error("no box came");
    return dynamic_cast<QMessageBox&>(*palco.scrivania.Riquadro());
}

TEST(Riquadri, AMessageHoldsTheLogicAndNotTheWindows) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) {
        form.riquadri.MsgBox("Errore\r\nuno");
        form.scritta.Caption = "dopo";
    });
    QMessageBox& riquadro = Messaggio(palco);
    EXPECT_EQ(riquadro.text(), "Errore\nuno");
    EXPECT_EQ(riquadro.windowTitle(), "Corvana");
    EXPECT_EQ(Trova(palco.scrivania, "scritta").accessibleName(), "Una scritta");
    riquadro.button(QMessageBox::Ok)->click();
    EXPECT_TRUE(
        Aspetta([&] { return Trova(palco.scrivania, "scritta").accessibleName() == "dopo"; }));
}

TEST(Riquadri, OverALargerWindowABoxHasLargerLettersAndButtons) {
    for (const int volte : {1, 2}) {
        Palco palco;
        Ingrandisci(*palco.scrivania.Davanti(), volte);
        palco.Ordina([](FormDiProva& form) { form.riquadri.MsgBox("Errore"); });
        QMessageBox& riquadro = Messaggio(palco);
        EXPECT_EQ(riquadro.font().pixelSize(), 13 * volte);
        QAbstractButton& bottone = *riquadro.button(QMessageBox::Ok);
        EXPECT_GE(bottone.height(), 32 * volte);
        EXPECT_GE(bottone.width(), 84 * volte);
        bottone.click();
    }
}

TEST(Riquadri, AQuestionIsTrueForYesAlone) {
    for (const auto tasto : {QMessageBox::Yes, QMessageBox::No}) {
        Palco palco;
        palco.Ordina([](FormDiProva& form) {
            form.scritta.Caption = form.riquadri.Domanda("Salvare?") ? "si" : "no";
        });
        Messaggio(palco).button(tasto)->click();
        const QString attesa = tasto == QMessageBox::Yes ? "si" : "no";
        EXPECT_TRUE(
            Aspetta([&] { return Trova(palco.scrivania, "scritta").accessibleName() == attesa; }));
    }
}

void ChiediNome(FormDiProva& form) {
    const auto nome = form.riquadri.InputBox("Nome?", "Voce", "canto");
    form.scritta.Caption = nome ? "[" + *nome + "]" : "niente";
}

TEST(Riquadri, AnInputBoxGivesItsTextOrNothing) {
    for (const bool accettato : {true, false}) {
        Palco palco;
        palco.Ordina(ChiediNome);
        ASSERT_TRUE(Aspetta([&] { return palco.scrivania.Riquadro() != nullptr; }));
        auto& riquadro = dynamic_cast<QInputDialog&>(*palco.scrivania.Riquadro());
        EXPECT_EQ(riquadro.textValue(), "canto");
        EXPECT_EQ(riquadro.windowTitle(), "Voce");
        riquadro.setTextValue("basso");
        accettato ? riquadro.accept() : riquadro.reject();
        const QString attesa = accettato ? "[basso]" : "niente";
        EXPECT_TRUE(
            Aspetta([&] { return Trova(palco.scrivania, "scritta").accessibleName() == attesa; }));
    }
}

ParoleSchermo ParoleInglesi() {
    ParoleSchermo parole;
    parole.parSi = "&Yes";
    parole.parNo = "&Not";
    parole.parOk = "Fine";
    parole.parAnnulla = "Cancel";
    return parole;
}

/// What stands on the buttons of the box that is up; it is then refused.
QStringList Bottoni(Palco& palco) {
    QStringList scritte;
    if (!Aspetta([&] { return palco.scrivania.Riquadro() != nullptr; })) return {};
    for (const auto* bottone : palco.scrivania.Riquadro()->findChildren<QPushButton*>())
        scritte << bottone->text();
    scritte.sort();
    palco.scrivania.Riquadro()->reject();
    Aspetta([&] { return palco.scrivania.Riquadro() == nullptr; });
    return scritte;
}

void ControllaBottoni(Palco& palco, const QStringList& siNo, const QStringList& ok,
                      const QStringList& okAnnulla) {
    palco.Ordina([](FormDiProva& form) { form.riquadri.Domanda("Salvare?"); });
    EXPECT_EQ(Bottoni(palco), siNo);
    palco.Ordina([](FormDiProva& form) { form.riquadri.MsgBox("Ecco"); });
    EXPECT_EQ(Bottoni(palco), ok);
    palco.Ordina([](FormDiProva& form) { form.riquadri.InputBox("Nome?", "Voce", ""); });
    EXPECT_EQ(Bottoni(palco), okAnnulla);
}

TEST(Riquadri, TheirButtonsSpeakItalianUntilAnotherLanguageIsChosen) {
    Palco palco;
    ControllaBottoni(palco, {"&No", QString::fromUtf8("&Sì")}, {"OK"}, {"Annulla", "OK"});
    palco.scrivania.Schermo().CambiaLingua(ParoleInglesi(), "");
    ControllaBottoni(palco, {"&Not", "&Yes"}, {"Fine"}, {"Cancel", "Fine"});
}

TEST(Riquadri, EnterAndEscapeAreNo) {
    for (const auto tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Palco palco;
        palco.Ordina([](FormDiProva& form) {
            form.scritta.Caption = form.riquadri.Domanda("Uscire?") ? "si" : "no";
        });
        QTest::keyClick(&Messaggio(palco), tasto);
        EXPECT_TRUE(Aspetta([&] {
            return Trova(palco.scrivania, "scritta").accessibleName() == "no";
        })) << tasto;
    }
}

TEST(Riquadri, TheLetterOfAButtonIsItsKey) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) {
        form.scritta.Caption = form.riquadri.Domanda("Salvare?") ? "si" : "no";
    });
    QMessageBox& riquadro = Messaggio(palco);
    QTest::keyClick(&riquadro, Qt::Key_S);
    EXPECT_TRUE(
        Aspetta([&] { return Trova(palco.scrivania, "scritta").accessibleName() == "si"; }));
}

TEST(Riquadri, AQuitWhileABoxIsOpenLetsTheLogicGo) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) { form.riquadri.MsgBox("Aspetto"); });
    Messaggio(palco);
    palco.scrivania.Termina();
    EXPECT_TRUE(palco.scrivania.Finita());
}

TEST(Riquadri, ABoxBeforeAnyWindowIsAnsweredAsWell) {
    Scrivania scrivania;
    bool risposto = false;
    scrivania.Avvia([&] { risposto = scrivania.Riquadri().Domanda("Prima?"); });
    ASSERT_TRUE(Aspetta([&] { return scrivania.Riquadro() != nullptr; }));
    dynamic_cast<QMessageBox&>(*scrivania.Riquadro()).button(QMessageBox::Yes)->click();
    ASSERT_TRUE(Aspetta([&] { return scrivania.Finita(); }));
    scrivania.Termina();
    EXPECT_TRUE(risposto);
}

}  // namespace
}  // namespace corvana::prova
