#include <gtest/gtest.h>

#include <QPainter>
#include <QSvgRenderer>

#include "desktop/theme.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

void Sorvola(Palco& palco, const char* nome) {
    const Cosa widget = Trova(palco.scrivania, nome);
    Muovi(widget, widget.rect().center());
}

TEST(Figura, TheToolTipIsLive) {
    Palco palco;
    EXPECT_EQ(Trova(palco.scrivania, "icona").toolTip(), "Metronomo");
    palco.NellaLogica([](FormDiProva& form) { form.icona.ToolTipText = "Metronome"; });
    EXPECT_EQ(Trova(palco.scrivania, "icona").toolTip(), "Metronome");
    EXPECT_EQ(Trova(palco.scrivania, "icona").accessibleName(), "Metronome");
}

TEST(Figura, APictureThatCanBeClickedIsReachedAndPushedFromTheKeyboard) {
    Palco palco;
    const Cosa icona = Trova(palco.scrivania, "icona");
    icona.setFocus(Qt::TabFocusReason);
    const QImage conAnello = Fotografa(icona);
    Batti(palco.scrivania, Qt::Key_Return);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "icona click", "su 13"}));
    Trova(palco.scrivania, "bottone").setFocus();
    EXPECT_NE(Fotografa(icona), conAnello) << "the focus can't be seen";
}

TEST(Figura, TheMouseLeavesTheFocusWhereItIs) {
    Palco palco;
    Trova(palco.scrivania, "bottone").setFocus();
    Clicca(palco.scrivania, "icona");
    EXPECT_TRUE(Trova(palco.scrivania, "bottone").hasFocus());
    EXPECT_EQ(palco.Diario(), (Righe{"icona click"}));
}

TEST(Figura, MovesOverItAreItsOwnAndElsewhereTheWindows) {
    Palco palco;
    Sorvola(palco, "bottone");
    palco.Diario();
    Sorvola(palco, "icona");
    EXPECT_EQ(palco.DiarioIntero().back(), "icona mossa");
    Sorvola(palco, "spunta");
    EXPECT_EQ(palco.DiarioIntero().back(), "finestra mossa");
}

TEST(Figura, EveryIconOfTheProgramIsADrawingOfItsOwn) {
    for (const char* nome :
         {"orecchio", "composer", "metronomo", "promemoria", "strumenti", "modo", "aiuto", "prova",
          "corvana", "messaggio", "domanda", "intervallo", "accordo", "tonalita", "tasti"}) {
        QSvgRenderer disegno(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(nome)));
        EXPECT_TRUE(disegno.isValid()) << nome;
        EXPECT_EQ(disegno.viewBox(), QRect(0, 0, 32, 32)) << nome;
    }
}

TEST(Figura, AnIconIsSharpAtEverySizeOfTheWindow) {
    Palco palco;
    for (const double volte : {1.0, 2.0}) {
        Ingrandisci(*palco.scrivania.Davanti(), volte);
        const Cosa icona = Trova(palco.scrivania, "icona");
        const QImage foto = Fotografa(icona);
        const int lato = std::min(icona.width(), icona.height());
        QImage attesa(lato, lato, QImage::Format_ARGB32_Premultiplied);
        attesa.fill(Qt::transparent);
        QPainter p(&attesa);
        QSvgRenderer(QStringLiteral(":/icons/metronomo.svg")).render(&p);
        p.end();
        const QPoint inizio((icona.width() - lato) / 2, (icona.height() - lato) / 2);
        int opachi = 0, uguali = 0;
        for (int x = 0; x < lato; ++x)
            for (int y = 0; y < lato; ++y) {
                if (qAlpha(attesa.pixel(x, y)) != 255) continue;
                ++opachi;
                uguali += foto.pixelColor(inizio + QPoint(x, y)) == attesa.pixelColor(x, y);
            }
        ASSERT_GT(opachi, 50 * volte);
        EXPECT_GT(uguali, opachi * 9 / 10) << volte;
    }
}

TEST(Etichetta, HidingItAndColouringItIsSeen) {
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    palco.NellaLogica([](FormDiProva& form) { form.scritta.BackColor = Rgb(1, 2, 250); });
    EXPECT_EQ(Fotografa(scritta).pixelColor(99, 19), QColor(1, 2, 250));
    palco.NellaLogica([](FormDiProva& form) { form.scritta.Visible = false; });
    EXPECT_FALSE(scritta.isVisible());
}

TEST(Etichetta, ATransparentOneShowsWhatLiesBeneathWhateverItsColour) {
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    const QPoint dove = scritta.NellaFinestra({90, 15});
    const auto colore = [&] { return Fotografa(palco.scrivania).pixelColor(dove); };
    palco.NellaLogica([](FormDiProva& form) {
        form.BackColor = Rgb(9, 90, 9);
        form.scritta.BackColor = Rgb(1, 2, 250);
        form.scritta.Sfondo = Sfumatura{Rgb(250, 0, 0), Rgb(250, 0, 0)};
        form.scritta.BackStyle = fondoTrasparente;
    });
    EXPECT_EQ(colore(), QColor(9, 90, 9));
    palco.NellaLogica([](FormDiProva& form) { form.scritta.BackStyle = fondoOpaco; });
    EXPECT_EQ(colore(), QColor(250, 0, 0));
    palco.NellaLogica([](FormDiProva& form) { form.scritta.Sfondo = Sfumatura{}; });
    EXPECT_EQ(colore(), QColor(1, 2, 250));
}

bool HaColore(const QImage& foto, const QColor& colore) {
    for (int x = 0; x < foto.width(); ++x)
        for (int y = 0; y < foto.height(); ++y)
            if (foto.pixelColor(x, y) == colore) return true;
    return false;
}

TEST(Etichetta, ItsTextHasTheControlsColour) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        form.scritta.Caption = "MMMM";
        form.scritta.ForeColor = Rgb(255, 0, 0);
    });
    EXPECT_TRUE(HaColore(Fotografa(Trova(palco.scrivania, "scritta")), QColor(255, 0, 0)));
}

TEST(Etichetta, WordsInColumnsStandSideBySideAndLookLikeKeys) {
    Palco palco([](FormDiProva& form) {
        form.scritta.stile = "colonne tasti";
        form.scritta.Caption = "d  - 1";
    });
    const QImage foto = Fotografa(Trova(palco.scrivania, "scritta"));
    for (const int x : {25, 75})
        EXPECT_EQ(foto.pixelColor(x - 9, 10), tinta::carta) << x;
    EXPECT_NE(foto.pixelColor(50, 10), tinta::carta);
}

TEST(Casella, AnExplanationIsATextOfSeveralLinesThatTakesNoFocus) {
    Palco palco([](FormDiProva& form) {
        form.casella.stile = "spiegazione";
        form.casella.Text = "Bach & figli\r\nseconda riga";
    });
    const Cosa casella = Trova(palco.scrivania, "casella");
    EXPECT_FALSE(casella.Fermata());
    EXPECT_EQ(casella.accessibleName(), "Bach & figli\nseconda riga");
    palco.NellaLogica([](FormDiProva& form) { form.casella.Text = "altro"; });
    EXPECT_EQ(casella.accessibleName(), "altro");
}

TEST(Etichetta, TheHelpButtonKeepsItsSignWhileItIsOn) {
    Palco palco([](FormDiProva& form) { form.toccabile.stile = "aiuto"; });
    const Cosa aiuto = Trova(palco.scrivania, "toccabile");
    Trova(palco.scrivania, "bottone").setFocus();
    EXPECT_FALSE(HaColore(Fotografa(aiuto), tinta::accento));
    palco.NellaLogica([](FormDiProva& form) { form.toccabile.Caption = ""; });
    EXPECT_TRUE(HaColore(Fotografa(aiuto), tinta::accento));
}

/// The label as it looks when it says so.
QImage Scritta(Palco& palco, const std::string& percorso) {
    palco.NellaLogica([&](FormDiProva& form) { form.scritta.Caption = percorso; });
    return Fotografa(Trova(palco.scrivania, "scritta"));
}

TEST(Etichetta, OfAPathThatIsTooLongShowsTheEndAndOfAnyTheSignsAsTheyAre) {
    Palco palco([](FormDiProva& form) { form.scritta.stile = "percorso"; });
    const std::string lungo(200, 'x');
    EXPECT_NE(Scritta(palco, lungo + "/a/"), Scritta(palco, lungo + "/b/"));
    EXPECT_EQ(Scritta(palco, "a" + lungo + "/a/"), Scritta(palco, "b" + lungo + "/a/"));
    EXPECT_NE(Scritta(palco, "/a&b/"), Scritta(palco, "/ab/"));
}

}  // namespace
}  // namespace corvana::prova
