// The texts of each language, in the letters that they are painted in, fit their controls.
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <fstream>
#include <iterator>

#include "composer/composer.h"
#include "composer/composer_rows.h"
#include "core/language.h"
#include "core/notation.h"
#include "desktop/aspect.h"
#include "desktop/theme.h"
#include "eartrainer/into.h"
#include "eartrainer/into_rows.h"
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

/// What is only read gets smaller letters where it must, but none that can't be read.
void ControllaCasella(const Casella& c) {
    constexpr int minima = 11;
    constexpr double bordi = 20;
    QFont font = Carattere(Parole(c.stile), 1);
    font.setPixelSize(minima);
    const double lungo = QFontMetricsF(font).horizontalAdvance(InQt(c.Text).trimmed());
    EXPECT_LE(lungo, Misura(c).width() - bordi) << c.Name << ": " << c.Text();
}

void ControllaRighe(const Lista& lista) {
    const QFontMetricsF lettere(Carattere(Parole(lista.stile), 1));
    for (const std::string& riga : lista.List())
        EXPECT_LE(lettere.horizontalAdvance(InQt(riga)), Misura(lista).width() - bordoRiga) << riga;
}

void ControllaFinestra(const Form& finestra) {
    for (const Controllo* c : finestra.Controlli()) {
        if (const auto* scritta = dynamic_cast<const ConCaption*>(c); scritta && c->Width > 0) {
            // The names of keys are said, not written, and so are those of signs.
            const QStringList parole = Parole(c->stile);
            const bool segno = parole.filter(QLatin1String("figura:")).size() > 0 ||
                               parole.filter(QLatin1String("icona:")).size() > 0;
            if (!segno && !parole.contains(QLatin1String("colonne")) &&
                !parole.contains(QLatin1String("tasto")))
                ControllaTesto(*c, scritta->Caption);
        } else if (const auto* casella = dynamic_cast<const Casella*>(c)) {
            if (c->stile == "spiegazione")
                ControllaTesto(*c, casella->Text);
            else if (casella->Locked)
                ControllaCasella(*casella);
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

/// In the letters and the place that a button with its tool tip beside its sign leaves them.
void ControllaDetto(const Controllo& c) {
    constexpr double altroDalTesto = 76;
    const double lungo = QFontMetricsF(Carattere({}, 1)).horizontalAdvance(InQt(c.ToolTipText()));
    EXPECT_LE(lungo, Misura(c).width() - altroDalTesto) << c.Name << ": " << c.ToolTipText();
}

TEST_P(TestiNeiControlli, FitInTheEarTrainerWhateverItSays) {
    BancoTesti b(GetParam());
    frmInto f{b.Tutto(), {}};
    UpdateString(b.Tutto(), f, BersagliInto());
    const TestiLingua& t = b.globali.testi;
    for (const bool anglo : {false, true}) {
        f.tonalita.ScriviNomi(anglo);
        for (Etichetta* nome :
             {&f.intonazione.lblIntoNN, &f.intervalli.lblNi, &f.intervalli.lblNs,
              &f.intervalli.IntRoot, &f.intervalli.lblRifInf, &f.intervalli.lblRifSup})
            nome->Caption = anglo ? "G#" : "Sol#";
        f.telaio.punti.txtResatte.Caption = "10000";
        f.telaio.punti.txtRerrate.Caption = "10000";
        f.telaio.punti.lblPerc.Caption = "100.00%";
        for (const auto& [etichetta, scritte] :
             {std::pair<Etichetta*, Righe>{&f.intervalli.lblFv, {t.capRifFisso, t.capRifVariabile}},
              {&f.intervalli.lblModo, {" / : "}},
              {&f.accordi.lblVt, {t.capMostraTasti, t.capNascondiTasti}},
              {&f.tasti.lblSceltaTasti, {t.capSoloBianchi, t.capTuttiTasti}},
              {&f.telaio.lblStep,
               {t.msgPrimoLimite, t.msgSecondoLimite, t.msgScegliRif, t.msgAscolta, t.msgFermato,
                t.msgInt, t.msgAcc, t.msgPremiStart,
                t.msgTastoPrima + (anglo ? "G#" : "Solb") + t.msgTastoDopo}}})
            for (const std::string& scritta : scritte) {
                etichetta->Caption = scritta;
                ControllaFinestra(f);
            }
    }
    for (const auto& [detta, consigli] :
         {std::pair<Etichetta*, Righe>{&f.intonazione.lblMod, {t.ttRifSi, t.ttRifNo}},
          {&f.intonazione.lblSolotb, {t.capSoloBianchi, t.capTuttiTasti}},
          {&f.intervalli.lblModo, {t.ttMelodico, t.ttMisto, t.ttArmonico}}})
        for (const std::string& consiglio : consigli) {
            ASSERT_FALSE(consiglio.empty());
            detta->ToolTipText = consiglio;
            ControllaDetto(*detta);
        }
}

TEST_P(TestiNeiControlli, FitInTheMelodyWindowWithTheLongestNamesAndNumbers) {
    BancoTesti b(GetParam());
    frmComposer f{b.Tutto(), {}};
    UpdateString(b.Tutto(), f, BersagliComposer());
    for (Etichetta* numero : {&f.stato.lblNe, &f.stato.lblNt, &f.pulsi.lblDebug})
        numero->Caption = "10000";
    f.play.Velocità.Caption = "250";
    f.trasposizione.lblSemitoni.Caption = "-12";
    f.stato.lblNome.Caption = "O Tannenbaum, wie grün sind deine Blätter";
    for (Etichetta* nome : {&f.stato.lblPnn, &f.stato.lblActNote, &f.modifica.lblActualNote})
        nome->Caption = "Sol#";
    for (const auto& voce : f.voci.perVoce)
        voce.nomi.Caption = "Sol#;Sol#;Sol#;Sol#;Sol#;Sol#;Sol#;Sol#;";
    for (std::int32_t programma = 0; programma < 128; ++programma) {
        f.mix.lblInstr[0].Caption = std::to_string(programma) + "-" + NomeStrumento(programma);
        ControllaTesto(f.mix.lblInstr[0], f.mix.lblInstr[0].Caption);
    }
    ControllaFinestra(f);
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
