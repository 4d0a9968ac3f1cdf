#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTest>
#include <QWindow>
#include <future>

#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

/// Counts how often the widget is painted.
class Pitture final : public QObject {
public:
    explicit Pitture(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() == QEvent::Paint) ++quante;
        return false;
    }
    int quante = 0;
};

TEST(Scrivania, AWindowShowsItsTitleAtItsDesignedSize) {
    Palco palco;
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    EXPECT_EQ(finestra.windowTitle(), "Prova");
    EXPECT_EQ(finestra.centralWidget()->size(), QSize(780, 320));
    palco.NellaLogica([](FormDiProva& form) { form.Caption = "Altra"; });
    EXPECT_EQ(finestra.windowTitle(), "Altra");
}

TEST(Scrivania, AWindowInWhichNothingHasTheFocusIsNotPaintedAgainWhenItGetsTheKeyboard) {
    Palco palco;
    VistaFinestra& finestra = *palco.scrivania.Davanti();
    Pitture pitture(*finestra.Controllo(0)->Widget());
    finestra.Controllo(0)->Widget()->update();
    ASSERT_TRUE(Aspetta([&] { return pitture.quante == 1; }));
    for (const auto tipo : {QEvent::FocusIn, QEvent::FocusOut}) {
        QFocusEvent fuoco(tipo, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(finestra.Finestra().centralWidget(), &fuoco);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(pitture.quante, 1);
}

TEST(Scrivania, ClosingAWindowOnlyAsksTheLogic) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.chiudibile = false; });
    palco.scrivania.Davanti()->Finestra().close();
    EXPECT_EQ(palco.Diario(), (Righe{"unload"}));
    EXPECT_TRUE(palco.scrivania.Davanti()->Finestra().isVisible());
}

TEST(Scrivania, ThePointerSaysThatTheWindowIsBusy) {
    Palco palco([](FormDiProva& form) { form.MousePointer = puntatoreAttesa; });
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    EXPECT_EQ(finestra.cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(Trova(palco.scrivania, "scritta").Suolo().cursor().shape(), Qt::WaitCursor);
    palco.NellaLogica([](FormDiProva& form) { form.MousePointer = puntatoreNormale; });
    EXPECT_EQ(finestra.cursor().shape(), Qt::ArrowCursor);
    palco.NellaLogica([](FormDiProva& form) { form.MousePointer = puntatoreAttesa; });
    EXPECT_EQ(finestra.cursor().shape(), Qt::WaitCursor);
}

TEST(Scrivania, AnAcceptedCloseEndsTheLogic) {
    Palco palco;
    palco.scrivania.Davanti()->Finestra().close();
    EXPECT_TRUE(Aspetta([&] { return palco.scrivania.Finita(); }));
    EXPECT_FALSE(palco.scrivania.Davanti());
}

TEST(Scrivania, AModalWindowLocksTheOneBeneathAndGivesItBack) {
    Palco palco;
    QWindow* sotto = palco.scrivania.Davanti()->Finestra().windowHandle();
    palco.Ordina([](FormDiProva& form) {
        form.finestre.MostraModale(form.sopra);
        form.scritta.Caption = "tornato";
    });
    QMainWindow& sopra = AspettaFinestra(palco.scrivania, "FormSopra").Finestra();
    EXPECT_TRUE(sopra.isModal());
    EXPECT_EQ(sopra.windowHandle()->transientParent(), sotto);
    Clicca(palco.scrivania, "ok");
    AspettaFinestra(palco.scrivania, "FormDiProva");
    EXPECT_TRUE(
        Aspetta([&] { return Trova(palco.scrivania, "scritta").accessibleName() == "tornato"; }));
}

TEST(Scrivania, TenChangesCostOneRepaint) {
    struct Conta : QObject {
        int dipinti = 0;
        bool eventFilter(QObject*, QEvent* evento) override {
            if (evento->type() == QEvent::Paint) ++dipinti;
            return false;
        }
    };
    Palco palco;
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    Conta conta;
    scritta.Suolo().installEventFilter(&conta);
    int giro = 0;
    // The platform may yet ask for the whole window of its own accord, but not for ever.
    EXPECT_TRUE(Aspetta([&] {
        conta.dipinti = 0;
        const std::string nome = std::to_string(++giro);
        palco.NellaLogica([nome](FormDiProva& form) {
            for (int i = 0; i < 10; ++i)
                form.scritta.Caption = nome + " " + std::to_string(i);
        });
        return Aspetta([&] { return conta.dipinti > 0; }) && conta.dipinti == 1;
    }));
    EXPECT_EQ(scritta.accessibleName().toStdString(), std::to_string(giro) + " 9");
}

TEST(Scrivania, TheFocusGoesWhereTheLogicWantsIt) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.secondo.SetFocus(); });
    EXPECT_TRUE(Trova(palco.scrivania, "secondo").hasFocus());
}

TEST(Scrivania, TheTabKeyGoesInTheOrderOfTheControlsAndSkipsPlainLabels) {
    Palco palco;
    Trova(palco.scrivania, "toccabile").setFocus();
    for (const char* prossimo : {"bottone", "secondo", "casella", "lista", "combo", "barra",
                                 "ritta", "spunta", "dentro"}) {
        Batti(palco.scrivania, Qt::Key_Tab);
        EXPECT_TRUE(Trova(palco.scrivania, prossimo).hasFocus()) << prossimo;
    }
}

TEST(Scrivania, ARoundedFormHasNoFrameOfTheSystems) {
    Palco palco([](FormDiProva& form) { form.sopra.stile = "arrotondata"; });
    palco.Ordina([](FormDiProva& form) { form.finestre.MostraModale(form.sopra); });
    QMainWindow& sopra = AspettaFinestra(palco.scrivania, "FormSopra").Finestra();
    EXPECT_TRUE(sopra.windowFlags() & Qt::FramelessWindowHint);
    const QImage foto = Fotografa(sopra);
    EXPECT_EQ(foto.pixelColor(0, foto.height() - 1).alpha(), 0) << "the corner isn't cut";
    EXPECT_EQ(foto.pixelColor(foto.width() / 2, foto.height() - 20).alpha(), 255);
}

TEST(Scrivania, AnExceptionOfTheLogicIsTheProcesssFailure) {
    Scrivania scrivania;
    testing::internal::CaptureStderr();
    EXPECT_EQ(scrivania.OspitaLogica([] { throw std::runtime_error("rotto"); }), 1);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("rotto"), std::string::npos);
    Scrivania altra;
    EXPECT_EQ(altra.OspitaLogica([] {}), 0);
}

TEST(Scrivania, TheEndOfTheProgramEndsTheLogicWhateverItsWindowsAnswer) {
    Palco palco([](FormDiProva& form) { form.chiudibile = false; });
    palco.Ordina([](FormDiProva& form) { form.finestre.MostraModale(form.sopra); });
    AspettaFinestra(palco.scrivania, "FormSopra");
    palco.scrivania.ChiediFine();
    EXPECT_TRUE(Aspetta([&] { return palco.scrivania.Finita(); }));
    EXPECT_FALSE(palco.scrivania.Davanti());
}

TEST(Scrivania, TheEndOfTheProgramEndsALongWait) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) {
        form.scritta.Caption = "aspetta";
        form.pompa->Attendi(1e6);
    });
    ASSERT_TRUE(
        Aspetta([&] { return Trova(palco.scrivania, "scritta").accessibleName() == "aspetta"; }));
    palco.scrivania.ChiediFine();
    EXPECT_TRUE(Aspetta([&] { return palco.scrivania.Finita(); }));
}

TEST(Scrivania, TheEndOfTheProgramAnswersTheBoxThatIsUp) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) { form.riquadri.Domanda("Davvero?"); });
    ASSERT_TRUE(Aspetta([&] { return palco.scrivania.Riquadro() != nullptr; }));
    palco.scrivania.ChiediFine();
    EXPECT_TRUE(Aspetta([&] { return palco.scrivania.Finita(); }));
    EXPECT_TRUE(Aspetta([&] { return palco.scrivania.Riquadro() == nullptr; }));
}

TEST(Scrivania, WithoutAScreenTheLogicEndsAsWell) {
    Palco palco;
    palco.Ordina([](FormDiProva& form) { form.riquadri.MsgBox("uno"); });
    EXPECT_TRUE(palco.scrivania.TerminaAlBuio(std::chrono::minutes(1)));
}

TEST(Scrivania, ALogicThatTakesNoNoteOfTheEndIsGivenUp) {
    std::promise<void> lascia;
    Scrivania scrivania;
    scrivania.Avvia([&] { lascia.get_future().wait(); });
    EXPECT_FALSE(scrivania.TerminaAlBuio(std::chrono::milliseconds(1)));
    lascia.set_value();
}

TEST(Scrivania, ABoxThatOpensAfterTheEndWasAskedForHoldsNothingUp) {
    Palco palco;
    std::promise<void> chiesta;
    palco.Ordina([chiesta = chiesta.get_future().share()](FormDiProva& form) {
        chiesta.wait();
        form.riquadri.MsgBox("troppo tardi");
    });
    palco.scrivania.ChiediFine();
    chiesta.set_value();
    EXPECT_TRUE(Aspetta([&] { return palco.scrivania.Finita(); }));
}

}  // namespace
}  // namespace corvana::prova
