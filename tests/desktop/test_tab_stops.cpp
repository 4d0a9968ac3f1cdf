#include <gtest/gtest.h>

#include <QAccessible>
#include <QMainWindow>

#include "desktop/face.h"
#include "tests/desktop/program_stage.h"

namespace corvana::prova {
namespace {

/// Nothing lies over the control's middle.
bool Scoperto(const Cosa& cosa) {
    const QWidget& finestra = *cosa.window();
    const QPoint dove = cosa.NellaFinestra(cosa.rect().center());
    const QWidget* sopra = finestra.childAt(dove);
    QWidget& suolo = cosa.Suolo();
    if (!sopra || (sopra != &suolo && !suolo.isAncestorOf(sopra))) return false;
    if (cosa.LaVista().Widget()) return true;
    const auto& faccia = dynamic_cast<const Faccia&>(suolo);
    const Vista* incontrata = &faccia.Sotto(faccia.mapFrom(&finestra, dove));
    while (incontrata && incontrata != &cosa.LaVista())
        incontrata = incontrata->Padre();
    return incontrata;
}

/// The focus goes to the window's ground and back; the picture must tell.
bool MostraIlFuoco(const Cosa& cosa) {
    QWidget& finestra = *cosa.window();
    const QImage con = Fotografa(cosa);
    QWidget& fondo = *dynamic_cast<QMainWindow&>(finestra).centralWidget();
    fondo.setFocus();
    const QImage senza = Fotografa(cosa);
    cosa.setFocus(Qt::TabFocusReason);
    int diversi = 0;
    for (int x = 0; x < con.width(); ++x)
        for (int y = 0; y < con.height(); ++y)
            diversi += con.pixel(x, y) != senza.pixel(x, y);
    return diversi >= 40;
}

void ControllaFermata(const Cosa& fermata) {
    const std::string nome = fermata.objectName().toStdString();
    EXPECT_TRUE(fermata.isVisible()) << nome;
    EXPECT_TRUE(Scoperto(fermata)) << nome << " lies behind something";
    EXPECT_TRUE(MostraIlFuoco(fermata)) << nome << " doesn't show the focus";
    // Of those that share a stop, the one that the keyboard would press.
    const auto* dipinta = dynamic_cast<const VistaDipinta*>(&fermata.LaVista());
    const Cosa scelta(const_cast<Vista&>(dipinta ? static_cast<const Vista&>(dipinta->DovEIlFuoco())
                                                 : fermata.LaVista()));
    const auto* accessibile = scelta.PerLettore();
    ASSERT_TRUE(accessibile) << nome;
    EXPECT_FALSE(accessibile->text(QAccessible::Name).trimmed().isEmpty()) << nome;
    EXPECT_TRUE(accessibile->state().focused) << nome;
    EXPECT_EQ(accessibile->rect().size(), scelta.rect().size()) << nome;
}

/// The control that has the keyboard, or null.
Vista* ColFuoco(Scrivania& scrivania) {
    for (int numero = 0; Vista* vista = scrivania.Davanti()->Controllo(numero); ++numero)
        if (vista->HaFuoco()) return vista;
    return nullptr;
}

/// The names of all stops of the window in front, each of which is checked on the way.
QStringList Percorri(Scrivania& scrivania) {
    QStringList fermate;
    const Vista* prima = nullptr;
    for (int passi = 0; passi < 100; ++passi) {
        Batti(scrivania, Qt::Key_Tab);
        Vista* qui = ColFuoco(scrivania);
        if (!qui || qui == prima) break;
        if (!prima) prima = qui;
        fermate.append(qui->Stato().nome);
        ControllaFermata(Cosa(*qui));
    }
    return fermate;
}

void Apri(Scrivania& s, const char* voce, const char* finestra) {
    TrovaVoce(s, QString::fromLatin1(voce)).trigger();
    AspettaFinestra(s, QString::fromLatin1(finestra));
}

TEST(Fermate, InTheMainWindowAllAreSeenNamedAndShowTheFocus) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    TrovaVoce(s, "mnuAutomatico").trigger();
    TrovaVoce(s, "mnuMetro").trigger();
    ASSERT_TRUE(Aspetta(
        [&] { return Trova(s, "Slider1").isVisible() && Trova(s, "frmMetro").isVisible(); }));
    const QStringList fermate = Percorri(s);
    for (const char* nome : {"Start", "cmdEsci", "difficolt", "ToolButton3", "ToolButton7",
                             "ShToolbar", "lblMn", "Slider1", "Regolo", "lblTs", "lblX12",
                             "MetroTempoS", "MetroVol", "cmdSSmetro", "cmdSetup", "lblCloseMetro"})
        EXPECT_TRUE(fermate.contains(QLatin1String(nome))) << nome;
    for (const char* nome : {"cmdEscibg", "conta", "er", "PercEs", "luci", ""})
        EXPECT_FALSE(fermate.contains(QLatin1String(nome))) << nome;
}

TEST(Fermate, InTheMainWindowDuringADrillToo) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    Clicca(s, "Start");
    ASSERT_TRUE(Aspetta([&] { return Trova(s, "pdo").isEnabled(); }));
    const QStringList fermate = Percorri(s);
    for (const char* nome : {"Start", "pdo", "pre", "pmi", "pfa", "psol", "pla", "psi"})
        EXPECT_TRUE(fermate.contains(QLatin1String(nome))) << nome;
    EXPECT_FALSE(fermate.contains("cmdEscibg"));
    Clicca(s, "Start");
    EXPECT_TRUE(Aspetta([&] { return !Trova(s, "pdo").isEnabled(); }));
}

TEST(Fermate, InTheWindowsAboveAllAreSeenNamedAndShowTheFocus) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    const auto percorri = [&](const QStringList& attese) {
        const QStringList fermate = Percorri(s);
        for (const QString& nome : attese)
            EXPECT_TRUE(fermate.contains(nome)) << nome.toStdString();
        EXPECT_FALSE(fermate.contains("cmdEscibg"));
        s.Davanti()->Finestra().close();
        AspettaFinestra(s, "CorvanaMainF");
    };
    Apri(s, "mnuVersione", "frmAbout");
    percorri({"cmdOK"});
    Apri(s, "mnuSs", "frmStrum");
    percorri({"List1", "cmdTest", "cmdEsci"});
    Apri(s, "mnuMidiTest", "frmMidiTest");
    percorri({"LstMidiDev", "InstrS", "cmdTest", "cmdOff", "cmdChiudi"});
    Apri(s, "mnuPromemoria", "frmOptions");
    percorri({"cmdSel0", "cmdSel1", "cmdSel2", "cmdOK"});
    TrovaVoce(s, "mnuMetro").trigger();
    ASSERT_TRUE(Aspetta([&] { return Trova(s, "cmdSetup").isVisible(); }));
    Clicca(s, "cmdSetup");
    AspettaFinestra(s, "frmConfMetro");
    percorri({"lblA", "lblB1", "lblC", "InstrA", "InstrB1", "InstrC", "txtPattern", "txtTempo",
              "seqPreset", "cmdTest", "cmdOk"});
}

TEST(Fermate, InTheMelodyWindowAllAreSeenNamedAndShowTheFocus) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    Apri(s, "mnuComposer", "frmComposer");
    const QStringList fermate = Percorri(s);
    for (const char* nome : {"cmdPlay", "lblIDs0", "Slider1", "VoceAttiva3", "lblid15", "VolB",
                             "lblMuteC3", "lblTs", "lblStep0", "cmdSimbNote6", "cmdAttrNota5",
                             "cmdInsNota", "PausaPer", "cmdReset", "tastiera"})
        EXPECT_TRUE(fermate.contains(QLatin1String(nome))) << nome;
}

struct PaginaPercorsa {
    const char* voce;
    QStringList attese;
};

class FermateOrecchio : public testing::TestWithParam<PaginaPercorsa> {};

TEST_P(FermateOrecchio, AreSeenNamedAndShowTheFocusOnEveryPage) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    Apri(s, GetParam().voce, "frmInto");
    const QStringList fermate = Percorri(s);
    const QString tutte = fermate.join(QLatin1Char(' '));
    for (const QString& nome : GetParam().attese + QStringList{"img2", "cmdEsci", "ToolButton2"})
        EXPECT_TRUE(fermate.contains(nome))
            << nome.toStdString() << " not in " << tutte.toStdString();
    // What belongs together is one stop.
    for (const char* nome : {"LblSemi1", "Il13", "TipoAcc3", "T23", "lblT1", "lb24", "Lbdoc"})
        EXPECT_FALSE(fermate.contains(QLatin1String(nome))) << nome;
}

INSTANTIATE_TEST_SUITE_P(
    Pagine, FermateOrecchio,
    testing::Values(PaginaPercorsa{"Intonazione", {"Label6", "lblMod", "lblSolotb", "IntoStart"}},
                    PaginaPercorsa{"mnuRint",
                                   {"LblSemi0", "Label7", "lblModo", "lblFv", "SelIntRoot",
                                    "CmdIntStart", "lblRipInt", "lblIntSh"}},
                    PaginaPercorsa{"mnuRac", {"TipoAcc0", "lblModoVt", "lblVt", "lblRipta"}},
                    PaginaPercorsa{"mnuRicTasto", {"lblSceltaTasti", "cmdRicTasto"}},
                    PaginaPercorsa{"mnuRicTo", {"lblT(0)", "cmdT", "lblRipeti", "lblTsh"}}),
    [](const auto& pagina) { return std::string(pagina.param.voce); });

TEST(Fermate, AControlIsNamedByItsLabelInTheLanguageOfTheMoment) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    const QString italiano = Trova(s, "ShToolbar").accessibleName();
    EXPECT_EQ(italiano, "Risorse");
    TrovaVoce(s, "mnuEn").trigger();
    ASSERT_TRUE(Aspetta([&] { return Trova(s, "ShToolbar").accessibleName() != italiano; }));
    EXPECT_EQ(Trova(s, "ShToolbar").accessibleName(), "Resources");
}

TEST(Fermate, EveryMenuOfTheBarHasALetterOfItsOwn) {
    PalcoProgramma programma(QStringLiteral(CORVANA_DATA));
    Scrivania& s = programma.scrivania;
    QStringList lettere;
    for (const char* menu : {"f1", "es", "Risorse", "Opzioni", "Help"}) {
        const QString testo = TrovaVoce(s, QString::fromLatin1(menu)).text();
        const qsizetype segno = testo.indexOf(QLatin1Char('&'));
        ASSERT_GE(segno, 0) << menu;
        lettere.append(testo.mid(segno + 1, 1).toUpper());
    }
    EXPECT_EQ(QSet<QString>(lettere.begin(), lettere.end()).size(), lettere.size());
}

}  // namespace
}  // namespace corvana::prova
