// The texts of each language, in the letters that they are painted in, fit their controls.
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <fstream>
#include <iterator>

#include "core/language.h"
#include "desktop/aspect.h"
#include "desktop/theme.h"
#include "metronome/conf_metro.h"
#include "metronome/conf_metro_rows.h"
#include "tests/program/program_rig.h"
#include "trainer/main_rows.h"
#include "utilities/about.h"
#include "utilities/midi_test.h"
#include "utilities/options.h"
#include "utilities/utility_rows.h"

namespace corvana::prova {
namespace {

// In designed pixels.
constexpr double bordoRiga = 30;  ///< of a list, what its rows can't use
constexpr double aria = 1;        ///< of a line, above and below its letters

struct BancoTesti : BancoProgramma {
    explicit BancoTesti(const std::string& lingua) {
        std::ifstream letto(CORVANA_DATA "/" + lingua, std::ios::binary);
        file.contenuti["/" + lingua] = {std::istreambuf_iterator<char>(letto), {}};
        globali.PercorsoLingua = "/" + lingua;
    }
};

QStringList Parole(const std::string& stile) {
    return InQt(stile).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QSizeF Misura(const Controllo& c) {
    return QSizeF(c.Width, c.Height) / twipsPerPixel;
}

void ControllaTesto(const Controllo& c, const std::string& testo) {
    if (testo.empty()) return;
    const QSizeF posto = Misura(c);
    const QRectF disegnato =
        QFontMetricsF(Carattere(Parole(c.stile), 1))
            .boundingRect(QRectF(QPointF(), posto), Qt::TextWordWrap, InQt(testo));
    EXPECT_LE(disegnato.width(), posto.width()) << c.Name << ": " << testo;
    EXPECT_LE(disegnato.height(), posto.height() + aria) << c.Name << ": " << testo;
}

void ControllaRighe(const Lista& lista) {
    const QFontMetricsF lettere(Carattere(Parole(lista.stile), 1));
    for (const std::string& riga : lista.List())
        EXPECT_LE(lettere.horizontalAdvance(InQt(riga)), Misura(lista).width() - bordoRiga) << riga;
}

void ControllaFinestra(const Form& finestra) {
    for (const Controllo* c : finestra.Controlli()) {
        if (const auto* scritta = dynamic_cast<const ConCaption*>(c); scritta && c->Width > 0) {
            if (!Parole(c->stile).contains(QLatin1String("colonne")))
                ControllaTesto(*c, scritta->Caption);
        } else if (const auto* casella = dynamic_cast<const Casella*>(c);
                   casella && c->stile == "spiegazione") {
            ControllaTesto(*c, casella->Text);
        } else if (const auto* lista = dynamic_cast<const Lista*>(c)) {
            ControllaRighe(*lista);
        }
    }
}

class TestiNeiControlli : public testing::TestWithParam<std::string> {};

TEST_P(TestiNeiControlli, FitInTheMainWindowWithTheLargestNumbers) {
    BancoTesti b(GetParam());
    CorvanaMainF& f = b.finestra;
    UpdateString(b.Tutto(), f, BersagliPrincipali());
    const TestiLingua& testi = b.globali.testi;
    f.esercizio.punteggio.Lresatte.Caption = testi.TxtRisposteEsatte + "10000";
    f.esercizio.punteggio.Lrerrate.Caption = testi.TxtRisposteErrate + "10000";
    f.esercizio.punteggio.Lnmostrate.Caption = testi.TxtPercentuale + "100.00%";
    f.esercizio.punteggio.Tempoimp.Caption = testi.TxtTempoImpiegato + "59:59 mm:ss";
    f.automatico.Velocità.Caption = testi.TxtVelocita + "140";
    for (const std::string& inizio : {testi.TxtRisposteDate, testi.TxtNoteMostrate}) {
        f.esercizio.punteggio.Ridate.Caption = inizio + "20000";
        ControllaFinestra(f);
    }
}

TEST_P(TestiNeiControlli, FitInThePatternWindow) {
    BancoTesti b(GetParam());
    frmConfMetro finestra{b.Tutto()};
    UpdateString(b.Tutto(), finestra, BersagliConfMetro());
    ControllaFinestra(finestra);
}

TEST_P(TestiNeiControlli, FitInTheMidiTest) {
    BancoTesti b(GetParam());
    frmMidiTest finestra{b.Tutto()};
    UpdateString(b.Tutto(), finestra, BersagliMidiTest());
    ControllaFinestra(finestra);
}

TEST_P(TestiNeiControlli, FitInTheReferenceChart) {
    BancoTesti b(GetParam());
    frmOptions finestra{b.Tutto()};
    UpdateString(b.Tutto(), finestra, BersagliOptions());
    ControllaFinestra(finestra);
}

TEST_P(TestiNeiControlli, FitInTheAboutBox) {
    BancoTesti b(GetParam());
    frmAbout finestra{b.Tutto()};
    finestra.Form_Load();
    ControllaFinestra(finestra);
}

INSTANTIATE_TEST_SUITE_P(InOgniLingua, TestiNeiControlli,
                         testing::Values("langit.csv", "langen.csv"));

}  // namespace
}  // namespace corvana::prova
