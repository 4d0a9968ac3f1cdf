#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QMenu>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "desktop/help_window.h"
#include "desktop/theme.h"
#include "tests/desktop/dosed_clock.h"
#include "tests/desktop/program_stage.h"

namespace corvana::prova {
namespace {

const QString dati = QStringLiteral(CORVANA_DATA);
const QString italiano = dati + QStringLiteral("/corvana.chm");
const QString inglese = dati + QStringLiteral("/corvanaen.chm");

QStringList Pagine(const QString& volume) {
    return QDir(dati + QStringLiteral("/help/") + volume).entryList({QStringLiteral("*.html")});
}

/// The names of the pictures, or the targets of the links, of the page that is shown.
QStringList Rimandi(const QTextDocument& pagina, bool figure) {
    QStringList nomi;
    for (QTextBlock blocco = pagina.begin(); blocco.isValid(); blocco = blocco.next())
        for (auto i = blocco.begin(); !i.atEnd(); ++i) {
            const QTextCharFormat formato = i.fragment().charFormat();
            if (figure && formato.isImageFormat()) nomi << formato.toImageFormat().name();
            if (!figure && formato.isAnchor()) nomi << formato.anchorHref();
        }
    return nomi;
}

struct Aiuto {
    int chiusure = 0;
    ParoleSchermo parole;
    FinestraAiuto finestra{parole, [this] { ++chiusure; }};
};

struct Tempo {
    OrologioADosi orologio;
};

/// The whole program, with the help's pages beside it. Nobody waits for its opening signal.
struct ProgrammaConAiuto : Tempo, PalcoProgramma {
    ProgrammaConAiuto() : PalcoProgramma(dati, [this](Macchina& m) { m.orologio = &orologio; }) {}

    /// Waits for that page of the help.
    bool Mostra(const char* pagina) {
        return Aspetta([&] {
            const FinestraAiuto* aiuto = scrivania.Aiuto();
            return aiuto && aiuto->isActiveWindow() && aiuto->Pagina() == QLatin1String(pagina);
        });
    }
    void TornaDavanti() { scrivania.Davanti()->Finestra().activateWindow(); }
};

TEST(FinestraAiuto, ItShowsThePageOfTheContext) {
    Aiuto a;
    for (const int contesto : {2, 8, 40}) {
        a.finestra.Mostra(italiano, contesto);
        EXPECT_EQ(a.finestra.Pagina(), QString::number(contesto) + ".html");
        EXPECT_TRUE(a.finestra.isVisible());
    }
    EXPECT_EQ(a.finestra.windowTitle(), "Strumenti e uscite MIDI – Corvana");
}

TEST(FinestraAiuto, AnUnknownContextShowsTheFirstPage) {
    Aiuto a;
    for (const int contesto : {0, 1, 77, -3}) {
        a.finestra.Mostra(inglese, 2);
        a.finestra.Mostra(inglese, contesto);
        EXPECT_EQ(a.finestra.Pagina(), "index.html") << contesto;
    }
}

TEST(FinestraAiuto, WithoutItsPagesItSaysWhereTheyShouldBeInTheLanguage) {
    const QTemporaryDir vuota;
    Aiuto a;
    a.finestra.Mostra(vuota.filePath("corvana.chm"), 2);
    EXPECT_TRUE(a.finestra.isVisible());
    EXPECT_EQ(a.finestra.Pagina(), "");
    EXPECT_TRUE(a.finestra.Testo().toPlainText().contains("non si trovano"));
    EXPECT_TRUE(a.finestra.Testo().toPlainText().contains(vuota.path()));
    a.parole.parAiutoManca = "They aren't in:";
    a.finestra.Mostra(vuota.filePath("corvanaen.chm"), 2);
    EXPECT_TRUE(a.finestra.Testo().toPlainText().contains("They aren't in:"));
    a.finestra.Mostra(italiano, 2);
    EXPECT_EQ(a.finestra.Pagina(), "2.html");
}

TEST(FinestraAiuto, TheButtonsLeadBackAndToTheContents) {
    Aiuto a;
    a.finestra.Mostra(inglese, 2);
    const auto bottone = [&](const char* testo) {
        for (QAction* azione : a.finestra.findChildren<QAction*>())
            if (azione->text().contains(QLatin1String(testo))) return azione;
        throw std::logic_error("no such button");
    };
    EXPECT_FALSE(bottone("Indietro")->isEnabled());
    bottone("Indice")->trigger();
    EXPECT_EQ(a.finestra.Pagina(), "index.html");
    bottone("Indietro")->trigger();
    EXPECT_EQ(a.finestra.Pagina(), "2.html");
    bottone("Avanti")->trigger();
    EXPECT_EQ(a.finestra.Pagina(), "index.html");
}

TEST(FinestraAiuto, BackNeverLeadsToTheOtherLanguage) {
    Aiuto a;
    a.finestra.Mostra(italiano, 2);
    a.finestra.Mostra(inglese, 2);
    a.finestra.Testo().backward();
    EXPECT_TRUE(a.finestra.Testo().source().path().contains("/corvanaen/"));
}

TEST(FinestraAiuto, EscClosesIt) {
    Aiuto a;
    a.finestra.Mostra(italiano, 2);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&a.finestra, 60'000));
    QTest::keyClick(a.finestra.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(a.finestra.isVisible());
    EXPECT_EQ(a.chiusure, 1);
}

TEST(FinestraAiuto, EveryPictureAndLinkOfEveryPageIsFound) {
    Aiuto a;
    a.finestra.Mostra(italiano, 0);
    for (const char* volume : {"corvana", "corvanaen"})
        for (const QString& pagina : Pagine(volume)) {
            const QDir cartella(dati + "/help/" + volume);
            QTextBrowser& testo = a.finestra.Testo();
            testo.setSource(QUrl::fromLocalFile(cartella.filePath(pagina)));
            const auto figure = Rimandi(*testo.document(), true);
            EXPECT_FALSE(figure.isEmpty()) << pagina.toStdString();
            for (const QString& nome : figure)
                EXPECT_FALSE(testo.loadResource(QTextDocument::ImageResource, nome).isNull())
                    << nome.toStdString();
            for (const QString& nome : Rimandi(*testo.document(), false))
                EXPECT_TRUE(cartella.exists(nome)) << nome.toStdString();
        }
}

TEST(FinestraAiuto, PicturesFitTheWindowAndTheStyleSheetCounts) {
    Aiuto a;
    a.finestra.Mostra(italiano, 2);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&a.finestra, 60'000));
    const QTextBrowser& testo = a.finestra.Testo();
    EXPECT_LE(testo.document()->idealWidth(), testo.viewport()->width());
    const QTextBlock sottotitolo = testo.document()->begin().next();
    const QTextCharFormat lettere = sottotitolo.begin().fragment().charFormat();
    EXPECT_EQ(lettere.foreground().color(), tinta::inchiostroTenue);
}

TEST(FinestraAiuto, InANarrowWindowAPictureIsNoBroaderThanTheText) {
    Aiuto a;
    a.finestra.resize(450, 600);
    a.finestra.Mostra(italiano, 1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&a.finestra, 60'000));
    const QTextBrowser& testo = a.finestra.Testo();
    EXPECT_LE(testo.document()->idealWidth(), testo.viewport()->width());
}

TEST(AiutoNelProgramma, F1OpensThePageAndTheDrillGoesOnBesideIt) {
    ProgrammaConAiuto p;
    Scrivania& s = p.scrivania;
    Clicca(s, "Start");
    ASSERT_TRUE(Aspetta([&] { return !Trova(s, "Regolo").isVisible(); }));
    Batti(s, Qt::Key_F1);
    ASSERT_TRUE(p.Mostra("2.html"));
    EXPECT_EQ(s.Aiuto()->windowModality(), Qt::NonModal);
    Clicca(s, "pdo");
    EXPECT_TRUE(Aspetta([&] { return p.Risposte() == 1; }));
    p.TornaDavanti();
    AspettaFinestra(s, "CorvanaMainF");
    Batti(s, Qt::Key_F);
    EXPECT_TRUE(Aspetta([&] { return p.Risposte() == 2; }));
    EXPECT_TRUE(s.Aiuto()->isVisible());
}

TEST(AiutoNelProgramma, AnAutomaticDrillChangesItsNotesWhileItIsRead) {
    ProgrammaConAiuto p;
    Scrivania& s = p.scrivania;
    TrovaVoce(s, "mnuAutomatico").trigger();
    ASSERT_TRUE(Aspetta([&] { return Trova(s, "Slider1").isVisible(); }));
    Clicca(s, "Start");
    ASSERT_TRUE(Aspetta([&] { return !Trova(s, "Regolo").isVisible(); }));
    TrovaVoce(s, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    const int prima = p.Risposte();
    p.orologio.Concedi(10);
    EXPECT_TRUE(Aspetta([&] { return p.Risposte() > prima; }));
    EXPECT_TRUE(s.Aiuto()->isActiveWindow());
}

TEST(AiutoNelProgramma, TheSameWindowChangesItsPageWithTheContext) {
    ProgrammaConAiuto p;
    TrovaVoce(p.scrivania, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    const FinestraAiuto* aiuto = p.scrivania.Aiuto();
    TrovaVoce(p.scrivania, "mnuMetro").trigger();
    TrovaVoce(p.scrivania, "mnuAiuto").trigger();
    EXPECT_TRUE(p.Mostra("8.html"));
    EXPECT_EQ(p.scrivania.Aiuto(), aiuto);
}

TEST(AiutoNelProgramma, AModalWindowBlocksTheMainOneButNotTheHelp) {
    ProgrammaConAiuto p;
    Scrivania& s = p.scrivania;
    QWidget& principale = s.Davanti()->Finestra();
    auto& start = Trova(s, "Start").Come<QAbstractButton>();
    const QPoint dove = start.mapTo(&principale, start.rect().center());
    // Open before the modal window, and asked for again from it.
    Batti(s, Qt::Key_F1);
    ASSERT_TRUE(p.Mostra("2.html"));
    TrovaVoce(s, "mnuMidiTest").trigger();
    AspettaFinestra(s, "frmMidiTest");
    Batti(s, Qt::Key_F1);
    ASSERT_TRUE(p.Mostra("40.html"));
    QTest::mousePress(principale.windowHandle(), Qt::LeftButton, {}, dove);
    EXPECT_FALSE(start.isDown());
    QTest::mouseRelease(principale.windowHandle(), Qt::LeftButton, {}, dove);
    QTest::keyClick(s.Aiuto()->windowHandle(), Qt::Key_Home, Qt::AltModifier);
    EXPECT_TRUE(p.Mostra("index.html"));
    QTest::keyClick(s.Aiuto()->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(s.Aiuto()->isVisible());
    // Closing it gives the keyboard back to the window in front.
    AspettaFinestra(s, "frmMidiTest");
}

TEST(AiutoNelProgramma, AChangeOfLanguageTurnsThePageThatIsReadToTheSameInTheOther) {
    ProgrammaConAiuto p;
    Scrivania& s = p.scrivania;
    TrovaVoce(s, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    s.Aiuto()->Testo().setSource(s.Aiuto()->Testo().source().resolved(QUrl("40.html")));
    EXPECT_TRUE(s.Aiuto()->windowTitle().startsWith("Strumenti e uscite MIDI"));
    TrovaVoce(s, "mnuEn").trigger();
    EXPECT_TRUE(
        Aspetta([&] { return s.Aiuto()->windowTitle().startsWith("Instruments and MIDI"); }));
    EXPECT_EQ(s.Aiuto()->Pagina(), "40.html");
    EXPECT_FALSE(s.Aiuto()->Testo().isBackwardAvailable());
    QStringList bottoni;
    for (const QAction* azione : s.Aiuto()->findChildren<QAction*>())
        if (!azione->text().isEmpty()) bottoni << azione->text();
    EXPECT_EQ(bottoni, QStringList({"‹ Back", "Forward ›", "Contents"}));
}

TEST(AiutoNelProgramma, AChangeOfLanguageDoesntOpenWhatIsClosed) {
    ProgrammaConAiuto p;
    Scrivania& s = p.scrivania;
    TrovaVoce(s, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    s.Aiuto()->close();
    TrovaVoce(s, "mnuEn").trigger();
    ASSERT_TRUE(Aspetta([&] { return TrovaVoce(s, "Esci").text() == "Exit"; }));
    EXPECT_FALSE(s.Aiuto()->isVisible());
    TrovaVoce(s, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    EXPECT_TRUE(s.Aiuto()->windowTitle().startsWith("Note reading"));
}

TEST(AiutoNelProgramma, TheMenuOfAPageSpeaksTheLanguageThatIsChosen) {
    ProgrammaConAiuto p;
    Scrivania& s = p.scrivania;
    TrovaVoce(s, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    const auto voci = [&] {
        QStringList testi;
        const std::unique_ptr<QMenu> menu(s.Aiuto()->Testo().createStandardContextMenu());
        for (const QAction* voce : menu->actions())
            if (!voce->isSeparator()) testi << voce->text().section('\t', 0, 0);
        return testi;
    };
    EXPECT_EQ(voci(), (QStringList{"&Copia", "Copia i&ndirizzo", "&Seleziona tutto"}));
    TrovaVoce(s, "mnuEn").trigger();
    ASSERT_TRUE(Aspetta([&] { return TrovaVoce(s, "Esci").text() == "Exit"; }));
    EXPECT_EQ(voci(), (QStringList{"&Copy", "Copy &link", "&Select all"}));
}

TEST(AiutoNelProgramma, ItClosesWithTheProgram) {
    ProgrammaConAiuto p;
    TrovaVoce(p.scrivania, "mnuAiuto").trigger();
    ASSERT_TRUE(p.Mostra("2.html"));
    p.scrivania.Davanti()->Finestra().close();
    EXPECT_TRUE(Aspetta([&] { return p.scrivania.Finita(); }));
    EXPECT_EQ(p.scrivania.Aiuto(), nullptr);
}

}  // namespace
}  // namespace corvana::prova
