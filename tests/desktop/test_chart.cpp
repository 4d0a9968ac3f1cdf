// The reference chart in a real window.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <vector>

#include "core/real_files.h"
#include "forms/real_clock.h"
#include "sound/recorder.h"
#include "tests/desktop/screen.h"
#include "utilities/options.h"

namespace corvana::prova {
namespace {

/// A desktop with the chart alone on it, in Italian; the logic runs on its own thread.
class PalcoTavole {
public:
    PalcoTavole() {
        scrivania.Avvia([this] { Logica(); });
        AspettaFinestra(scrivania, QStringLiteral("frmOptions"));
    }
    PalcoTavole(const PalcoTavole&) = delete;
    PalcoTavole& operator=(const PalcoTavole&) = delete;
    ~PalcoTavole() { scrivania.Termina(); }

    Scrivania scrivania;

    Cosa Di(const QString& nome) { return Trova(scrivania, nome); }
    void ApriPagina(int pagina) {
        Clicca(scrivania, QStringLiteral("cmdSel%1").arg(pagina - 1));
        const QString cornice = QStringLiteral("Frame1%1").arg(pagina);
        EXPECT_TRUE(Aspetta([&] { return Di(cornice).isVisible(); }));
    }

private:
    void Logica() {
        OrologioReale orologio;
        Pompa pompa(orologio, scrivania.Coda());
        Finestre finestre(pompa, scrivania.Riquadri(), &scrivania.Schermo());
        Registratore uscita([&pompa] { return pompa.Adesso(); });
        Suono suono(uscita, pompa, scrivania.Riquadri());
        FileReali file;
        Impostazioni impostazioni(file, scrivania.Riquadri(), {});
        CasualeFisso casuale;
        Globali globali;
        globali.PercorsoLingua = CORVANA_DATA "/langit.csv";
        frmOptions form(
            {globali, pompa, finestre, scrivania.Riquadri(), suono, impostazioni, file, casuale});
        finestre.Mostra(form);
        finestre.FinoAllUltima();
    }
};

/// How many points of the picture are about as dark as ink, within `dove` of shares of its size.
int Inchiostro(const QImage& foto, const QRectF& dove = {0, 0, 1, 1}) {
    const QRect parte(qRound(dove.x() * foto.width()), qRound(dove.y() * foto.height()),
                      qRound(dove.width() * foto.width()), qRound(dove.height() * foto.height()));
    int punti = 0;
    for (int y = parte.top(); y <= parte.bottom() && y < foto.height(); ++y)
        for (int x = parte.left(); x <= parte.right() && x < foto.width(); ++x)
            punti += qGray(foto.pixel(x, y)) < 96 ? 1 : 0;
    return punti;
}

TEST(Tavole, EachValueHasItsNoteAndItsRestInItsColumn) {
    PalcoTavole palco;
    const QImage valori = Fotografa(palco.Di("Image1"));
    // Note and rest, as far as the lines leave it: the five lines make as much ink in each column.
    for (int colonna = 0; colonna < 7; ++colonna) {
        const QRectF note(colonna / 7.0 + 0.01, 0.05, 1 / 7.0 - 0.02, 0.35);
        const QRectF pause(colonna / 7.0 + 0.01, 0.45, 1 / 7.0 - 0.02, 0.25);
        const int linee = 5 * qRound(valori.width() * note.width());
        EXPECT_GT(Inchiostro(valori, note), linee + 30) << colonna;
        EXPECT_GT(Inchiostro(valori, pause), linee + 30) << colonna;
    }
}

/// Where the lines of the two staves lie in the picture, from the top.
std::vector<double> Linee(const QImage& foto) {
    std::vector<double> linee;
    const int x = foto.width() * 17 / 20;
    for (int y = 0; y < foto.height(); ++y) {
        if (qGray(foto.pixel(x, y)) >= 96) continue;
        const int prima = y;
        while (y + 1 < foto.height() && qGray(foto.pixel(x, y + 1)) < 96)
            ++y;
        linee.push_back((prima + y + 1) / 2.0);
    }
    return linee;
}

/// What the second picture has beyond the first one, from one height to another.
QRect Aggiunto(const QImage& senza, const QImage& con, double da, double a) {
    QRect aggiunto;
    for (int y = qRound(da); y < qRound(a); ++y)
        for (int x = 0; x < con.width(); ++x)
            if (qGray(senza.pixel(x, y)) - qGray(con.pixel(x, y)) > 100)
                aggiunto |= QRect(x, y, 1, 1);
    return aggiunto;
}

/// The step of the accidental that `con` has beyond `senza`, on the staff whose lowest line is the
/// picture's line of that number. A sharp's middle tells it, a flat's belly lies around it.
double PassoAggiunto(const QImage& senza, const QImage& con, std::size_t bassa, bool diesis) {
    const auto linee = Linee(con);
    const double spazio = linee.at(1) - linee.at(0), fondo = linee.at(bassa);
    const QRect segno = Aggiunto(senza, con, fondo - 6.8 * spazio, fondo + 1.8 * spazio);
    const double y =
        diesis ? segno.y() + segno.height() / 2.0 : segno.y() + segno.height() - 0.62 * spazio;
    return (fondo - y) * 2 / spazio;
}

TEST(Tavole, EachSignatureAddsItsAccidentalAtItsPlaceInBothStaves) {
    // Steps above the lowest line, the treble staff's and the bass staff's.
    const std::vector<std::pair<int, int>> diesis = {{8, 6}, {5, 3}, {9, 7}, {6, 4},
                                                     {3, 1}, {7, 5}, {4, 2}};
    const std::vector<std::pair<int, int>> bemolli = {{4, 2}, {7, 5}, {3, 1}, {6, 4},
                                                      {2, 0}, {5, 3}, {1, -1}};
    PalcoTavole palco;
    palco.ApriPagina(2);
    const QImage nessuno = Fotografa(palco.Di("Img1"));
    ASSERT_EQ(Linee(nessuno).size(), 10U);
    for (const auto& [passi, primaRiga] : {std::pair{diesis, 2}, {bemolli, 9}}) {
        QImage prima = nessuno;
        for (std::size_t i = 0; i < passi.size(); ++i) {
            const int riga = primaRiga + static_cast<int>(i);
            Clicca(palco.scrivania, QStringLiteral("Ton%1").arg(riga));
            const QString img = QStringLiteral("Img%1").arg(riga);
            ASSERT_TRUE(Aspetta([&] { return palco.Di(img).isVisible(); }));
            const QImage foto = Fotografa(palco.Di(img));
            EXPECT_NEAR(PassoAggiunto(prima, foto, 4, primaRiga == 2), passi[i].first, 0.4) << riga;
            EXPECT_NEAR(PassoAggiunto(prima, foto, 9, primaRiga == 2), passi[i].second, 0.4)
                << riga;
            prima = foto;
        }
    }
}

TEST(Tavole, OnlyOnePictureLiesOverTheDegreesPlace) {
    PalcoTavole palco;
    palco.ApriPagina(2);
    Clicca(palco.scrivania, "Ton16");
    ASSERT_TRUE(Aspetta([&] { return palco.Di("Gradi").isVisible(); }));
    for (int riga = 1; riga <= 15; ++riga)
        EXPECT_FALSE(palco.Di(QStringLiteral("Img%1").arg(riga)).isVisible()) << riga;
    EXPECT_TRUE(palco.Di("Label350").isVisible());
}

TEST(Tavole, AScreenReaderHearsWhichKeyAButtonIsForAndWhetherItIsDown) {
    PalcoTavole palco;
    palco.ApriPagina(2);
    const Cosa quarto = palco.Di("Ton4");
    EXPECT_EQ(quarto.accessibleName(), "Maggiore (A) Minore (F) Fa,Do,Sol");
    EXPECT_FALSE(quarto.PerLettore()->state().checked);
    Clicca(palco.scrivania, "Ton4");
    ASSERT_TRUE(Aspetta([&] { return palco.Di("Img4").isVisible(); }));
    EXPECT_TRUE(quarto.PerLettore()->state().checked);
    EXPECT_FALSE(palco.Di("Ton1").PerLettore()->state().checked);
    EXPECT_EQ(quarto.accessibleName(), "Maggiore (A) Minore (F) Fa,Do,Sol");
    EXPECT_EQ(palco.Di("Img4").accessibleName(), QStringLiteral("La – Fa♯"));
    EXPECT_EQ(palco.Di("Ton16").accessibleName(), "Mostra/Nascondi i gradi della scala");
}

TEST(Tavole, AClickOnTheChosenPagesButtonLeavesItDown) {
    PalcoTavole palco;
    const auto giu = [&](const char* nome) {
        return palco.Di(QString::fromLatin1(nome)).Come<QAbstractButton>().isChecked();
    };
    palco.ApriPagina(2);
    // The page is to be seen a moment before its button is down.
    ASSERT_TRUE(Aspetta([&] { return giu("cmdSel1"); }));
    EXPECT_FALSE(giu("cmdSel0"));
    Clicca(palco.scrivania, "cmdSel1");
    // What comes later shows that the logic has had it.
    Clicca(palco.scrivania, "Ton2");
    ASSERT_TRUE(Aspetta([&] { return palco.Di("Img2").isVisible(); }));
    EXPECT_TRUE(giu("cmdSel1"));
    EXPECT_FALSE(giu("cmdSel2"));
}

TEST(Tavole, AnIntervalIsToldWithItsClass) {
    PalcoTavole palco;
    palco.ApriPagina(3);
    EXPECT_EQ(palco.Di("Label40").accessibleName(), "5 Gius Intervalli consonanti");
    EXPECT_EQ(palco.Di("Label418").accessibleName(),
              QStringLiteral("2 Min Consonanti se l'intervallo è melodico"));
    EXPECT_EQ(palco.Di("Label46").accessibleName(), "8 Ecc Intervalli dissonanti");
}

TEST(Tavole, TheFrameAroundAnIntervalTellsItsClassWithoutColour) {
    PalcoTavole palco;
    palco.ApriPagina(3);
    // Along the upper edge: thick and whole, thick with gaps, thin.
    const auto bordo = [&](const char* nome) {
        const QImage foto = Fotografa(palco.Di(QString::fromLatin1(nome)));
        int scuri = 0, seconda = 0;
        for (int x = 10; x < foto.width() - 10; ++x) {
            scuri += qGray(foto.pixel(x, 0)) < 150 ? 1 : 0;
            seconda += qGray(foto.pixel(x, 1)) < 150 ? 1 : 0;
        }
        const int lunga = foto.width() - 20;
        return std::pair{scuri * 100 / lunga, seconda * 100 / lunga};
    };
    EXPECT_EQ(bordo("Label32"), (std::pair{100, 100}));
    EXPECT_EQ(bordo("Label33").second, 0);
    EXPECT_GT(bordo("Label34").second, 30);
    EXPECT_LT(bordo("Label34").second, 85);
}

TEST(Tavole, EveryStopOfASecondPageIsReachedWithTheKeyboardAndPressed) {
    PalcoTavole palco;
    Batti(palco.scrivania, Qt::Key_Tab);
    palco.Di("cmdSel1").setFocus(Qt::TabFocusReason);
    Batti(palco.scrivania, Qt::Key_Space);
    ASSERT_TRUE(Aspetta([&] { return palco.Di("Frame12").isVisible(); }));
    palco.Di("cmdSel2").setFocus(Qt::TabFocusReason);
    for (int riga = 1; riga <= 16; ++riga) {
        Batti(palco.scrivania, Qt::Key_Tab);
        const QString ton = QStringLiteral("Ton%1").arg(riga);
        ASSERT_TRUE(palco.Di(ton).hasFocus()) << riga;
    }
    Batti(palco.scrivania, Qt::Key_Space);
    EXPECT_TRUE(Aspetta([&] { return palco.Di("Gradi").isVisible(); }));
}

}  // namespace
}  // namespace corvana::prova
