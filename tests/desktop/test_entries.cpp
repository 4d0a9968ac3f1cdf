// Every entry of every menu, chosen in the real windows, does what it says; and every window opens
// its page of the help, in both languages.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QTextBrowser>
#include <set>

#include "tests/desktop/visit.h"

namespace corvana::prova {
namespace {

/// What is to be seen when the entry was chosen, and how things are put back.
struct Scelta {
    std::string voce;
    std::function<bool()> fatto;
    std::function<void()> dopo = {};
};

/// The entries that can be chosen, of all menus of the window in front.
std::set<std::string> VociDi(Scrivania& scrivania) {
    std::set<std::string> voci;
    const QMainWindow& finestra = scrivania.Davanti()->Finestra();
    for (const QAction* azione : finestra.findChildren<QAction*>())
        if (!azione->isSeparator() && !azione->menu() && !azione->objectName().isEmpty())
            voci.insert(azione->objectName().toStdString());
    return voci;
}

struct Voci : ::testing::Test {
    Visita v;

    /// Chooses each; those are all that there are, but for `altre`.
    void Prova(const std::vector<Scelta>& scelte, const std::set<std::string>& altre) {
        std::set<std::string> provate = altre;
        for (const Scelta& scelta : scelte) {
            v.Scegli(scelta.voce);
            EXPECT_TRUE(scelta.fatto()) << scelta.voce;
            if (scelta.dopo) scelta.dopo();
            provate.insert(scelta.voce);
        }
        EXPECT_EQ(VociDi(v.scrivania), provate);
    }

    Scelta Apre(const std::string& voce, const std::string& finestra, const std::string& sotto,
                const std::string& cornice = {}) {
        return {voce,
                [=, this] { return Davanti() == finestra && (cornice.empty() || Vede(cornice)); },
                [=, this] { v.TornaA(sotto); }};
    }
    /// The last that is told is that channel's instrument.
    Scelta Strumento(const std::string& voce, std::uint32_t programma, std::uint32_t canale = 0) {
        return {voce, [=, this] {
                    const auto& mandati = v.suonato->messaggi;
                    return !mandati.empty() &&
                           mandati.back().messaggio == (0xC0U | canale | programma << 8U);
                }};
    }
    /// It is ticked, and the other one isn't.
    Scelta Spunta(const std::string& voce, const std::string& altra) {
        return {voce, [=, this] { return Spuntata(voce) && !Spuntata(altra); }};
    }
    /// A box that says so comes up; it is refused.
    Scelta Chiede(const std::string& voce, const QString& testo) {
        return {voce, [=, this] { return Riquadro().contains(testo); },
                [this] {
                    v.scrivania.Riquadro()->reject();
                    v.Calma();
                    v.scrivania.Davanti()->Finestra().activateWindow();
                    v.Calma();
                }};
    }

    std::string Davanti() { return v.scrivania.Davanti()->Finestra().objectName().toStdString(); }
    bool Vede(const std::string& nome) { return v.Di(nome).isVisible(); }
    bool Spuntata(const std::string& voce) {
        return TrovaVoce(v.scrivania, QString::fromStdString(voce)).isChecked();
    }
    QString Scritta(const std::string& bottone) {
        return v.Di(bottone).Come<QAbstractButton>().text();
    }
    QString Riquadro() {
        QString testi;
        if (const QDialog* riquadro = v.scrivania.Riquadro())
            for (const QLabel* scritta : riquadro->findChildren<QLabel*>())
                testi += scritta->text();
        return testi;
    }
    std::string Pagina() {
        const FinestraAiuto* aiuto = v.scrivania.Aiuto();
        return aiuto && aiuto->isVisible() ? aiuto->Pagina().toStdString() : "";
    }
};

TEST_F(Voci, OfTheMainWindow) {
    const std::string qui = "CorvanaMainF";
    const std::string titolo = v.scrivania.Davanti()->Finestra().windowTitle().toStdString();
    const auto intitolata = [&] {
        return v.scrivania.Davanti()->Finestra().windowTitle().toStdString();
    };
    Prova({{"mnuCorvana", [&] { return Davanti() == qui && v.Di("Start").isEnabled(); }},
           Apre("Intonazione", "frmInto", qui, "frmInto2"),
           Apre("mnuRint", "frmInto", qui, "FrmIntervalli"),
           // In this order no page is hidden by the one that was shown before.
           Apre("mnuRicTo", "frmInto", qui, "frmTo"),
           Apre("mnuRicTasto", "frmInto", qui, "frmRicTasto"),
           Apre("mnuRac", "frmInto", qui, "frmRacc"),
           Apre("mnuComposer", "frmComposer", qui),
           Apre("mnuPromemoria", "frmOptions", qui),
           Apre("mnuMidiTest", "frmMidiTest", qui),
           Apre("mnuSs", "frmStrum", qui),
           Apre("mnuVersione", "frmAbout", qui),
           {"mnuMetro", [&] { return Vede("frmMetro"); }},
           {"Nominote2", [&] { return Scritta("pdo") == "C" && Spuntata("Nominote2"); }},
           {"Nominote1", [&] { return Scritta("pdo") == "DO" && Spuntata("Nominote1"); }},
           {"Suono1", [&] { return Spuntata("Suono1"); }},
           Strumento("mnuPiano", 0),
           Strumento("mnuOrgano", 16),
           {"mnuAutomatico", [&] { return Vede("Slider1") && Spuntata("mnuAutomatico"); }},
           {"mnuNormale", [&] { return !Vede("Slider1") && Spuntata("mnuNormale"); }},
           {"mnuEn", [&] { return intitolata() != titolo && Scritta("pdo") == "C"; }},
           {"mnuIt", [&] { return intitolata() == titolo && Scritta("pdo") == "DO"; }},
           {"mnuAiuto", [&] { return Pagina() == "8.html"; }}},
          {"Esci"});
}

TEST_F(Voci, TheMenuOfTheSoundsSwitchesTheNoteOnAsItOpens) {
    v.Scegli("Suono1");
    EXPECT_TRUE(Spuntata("Suono1"));
    QMenu& menu = *TrovaVoce(v.scrivania, "Suono2").menu();
    menu.popup(QPoint());
    v.Calma();
    menu.close();
    EXPECT_FALSE(Spuntata("Suono1"));
}

TEST_F(Voci, ExitEndsTheProgram) {
    TrovaVoce(v.scrivania, "Esci").trigger();
    EXPECT_TRUE(Aspetta([&] { return v.scrivania.Finita(); }));
}

TEST_F(Voci, OfTheEarTrainer) {
    v.Scegli("Intonazione");
    v.Attendi("frmInto");
    const auto mostra = [this](const char* voce, const char* cornice) {
        return Scelta{voce, [=, this] { return Vede(cornice); }};
    };
    Prova({mostra("mnuRint", "FrmIntervalli"), mostra("mnuRicTa", "frmRacc"),
           mostra("mnuRicTasto", "frmRicTasto"), mostra("mnuRicTo", "frmTo"),
           mostra("mnuNotA", "frmInto2"), Strumento("mnuOrgano", 16), Strumento("mnuPiano", 0),
           Spunta("mnuNotAnglo", "mnuNotLat"), Spunta("mnuNotLat", "mnuNotAnglo"),
           Apre("mnuSs", "frmStrum", "frmInto")},
          {});
}

TEST_F(Voci, OfTheMelodyWindowAndItsContextMenu) {
    v.Scegli("mnuComposer");
    v.Attendi("frmComposer");
    v.Tocca("cmdInsNota");
    const auto apre = [this](const char* voce) {
        return Scelta{voce, [this] { return Vede("Fr2"); }, [this] { v.Tocca("cmdChiudi"); }};
    };
    const auto salvaConNome = QStringLiteral("Nome della melodia");
    const auto supporto = QStringLiteral("supporto");
    const std::string qui = "frmComposer";
    constexpr std::uint32_t ultima = 3;  // of the four voices' channels
    Prova({apre("mnuApri"),
           apre("mnuApriCont"),
           Chiede("mnuSalva", salvaConNome),
           Chiede("mnuSalvaCont", salvaConNome),
           Chiede("mnuSaveAs", salvaConNome),
           Chiede("mnuSaveAsCont", salvaConNome),
           Chiede("mnuSalvaA", salvaConNome),
           Chiede("mnucSalvaA", salvaConNome),
           Apre("mnuCopyFromA", "frmCopyFromA", qui),
           Apre("mnucCopyFromA", "frmCopyFromA", qui),
           Strumento("mnuOrgano", 16, ultima),
           Strumento("mnuPiano", 0, ultima),
           Strumento("mnuOrganoCont", 16, ultima),
           Strumento("mnuPianoCont", 0, ultima),
           Apre("mnuSs", "frmStrum", qui),
           Apre("mnuSsCont", "frmStrum", qui),
           Spunta("mnuNotAnglo", "mnuNotLat"),
           Spunta("mnuNotLat", "mnuNotAnglo"),
           {"mnuPlayRitardo", [this] { return !v.suonato->ConStato(0x90).empty(); }},
           Chiede("mnuChiudi", QStringLiteral("senza salvarla"))},
          {});
}

/// The page that F1 opens in the window in front.
struct Pagine : Voci {
    void Guarda(const char* finestra, const char* pagina) {
        v.Attendi(finestra);
        v.Batti(Qt::Key_F1);
        EXPECT_EQ(Pagina(), pagina) << finestra;
        if (!v.scrivania.Aiuto()) return;
        const QTextBrowser& testo = v.scrivania.Aiuto()->Testo();
        EXPECT_EQ(testo.source().path().contains("/corvanaen/"), inglese);
        EXPECT_FALSE(testo.documentTitle().isEmpty());
        constexpr int pienaPagina = 600;  // letters: no page is a stub
        EXPECT_GT(testo.toPlainText().size(), pienaPagina) << pagina;
        v.scrivania.Aiuto()->close();
        v.Calma();
        v.scrivania.Davanti()->Finestra().activateWindow();
        v.Attendi(finestra);
    }
    void GuardaTutte();
    bool inglese = false;
};

void Pagine::GuardaTutte() {
    const auto apri = [this](const char* voce, const char* finestra, const char* pagina) {
        v.Scegli(voce);
        Guarda(finestra, pagina);
        v.TornaA("CorvanaMainF");
    };
    Guarda("CorvanaMainF", "2.html");
    v.Scegli("mnuRac");
    for (const auto& [voce, pagina] : {std::pair{"mnuRicTa", "7.html"},
                                       {"mnuRint", "5.html"},
                                       {"mnuNotA", "3.html"},
                                       {"mnuRicTasto", "20.html"},
                                       {"mnuRicTo", "30.html"}}) {
        v.Attendi("frmInto");
        v.Scegli(voce);
        Guarda("frmInto", pagina);
    }
    v.TornaA("CorvanaMainF");
    apri("mnuPromemoria", "frmOptions", "50.html");
    apri("mnuComposer", "frmComposer", "60.html");
    apri("mnuSs", "frmStrum", "40.html");
    apri("mnuMidiTest", "frmMidiTest", "40.html");
    apri("mnuVersione", "frmAbout", "index.html");
    v.Scegli("mnuMetro");
    Guarda("CorvanaMainF", "8.html");
    v.Tocca("cmdSetup");
    Guarda("frmConfMetro", "8.html");
    v.TornaA("CorvanaMainF");
    v.Tocca("lblCloseMetro");
    Guarda("CorvanaMainF", "2.html");
}

TEST_F(Pagine, EachWindowOpensItsOwnInTheLanguageThatIsChosen) {
    GuardaTutte();
    v.Scegli("mnuEn");
    inglese = true;
    GuardaTutte();
}

}  // namespace
}  // namespace corvana::prova
