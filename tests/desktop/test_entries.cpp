// Every entry of every menu, chosen in the real windows, does what it says.
#include <QMenu>

#include "tests/desktop/entries.h"

namespace corvana::prova {
namespace {

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

}  // namespace
}  // namespace corvana::prova
