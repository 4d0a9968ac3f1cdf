#include "tests/desktop/walk.h"

namespace corvana::prova {

namespace {

struct Pagina {
    const char *voce, *cornice, *start;
    /// What shows the answers; of the chords they are shown from the start.
    const char* aiuto;
};

constexpr Pagina pagine[] = {{"mnuNotA", "frmInto2", "IntoStart", "lblIntoSh"},
                             {"mnuRint", "FrmIntervalli", "CmdIntStart", "lblIntSh"},
                             {"mnuRicTa", "frmRacc", "ComdRacStart", nullptr},
                             {"mnuRicTasto", "frmRicTasto", "cmdRicTasto", nullptr},
                             {"mnuRicTo", "frmTo", "cmdT", "lblTsh"}};

/// A range on the keyboard, where the page begins with none.
void ScegliEstensione(Passeggiata& g, const Pagina& pagina) {
    if (g.Di(pagina.start).isVisible()) return;
    for (const char* tasto : {"lb12", "lb36"})
        g.Premi(tasto);
    g.Attendi([&] { return g.Di(pagina.start).isVisible(); });
}

/// In a run, first as it begins, then with an answer wrong and the right one shown.
void Corri(Passeggiata& g, const Pagina& pagina, const QString& nome) {
    g.Premi(pagina.start);
    g.AttendiScritta(pagina.start, "Stop");
    g.Mostra(nome + QStringLiteral("-running"));
    if (pagina.aiuto) {
        g.Premi(pagina.aiuto);
        g.AttendiScritta(pagina.aiuto, "");
        g.Mostra(nome + QStringLiteral("-help"));
        g.Premi(pagina.aiuto);
        g.AttendiScritta(pagina.aiuto, "?");
    }
    g.Premi(pagina.start);
    g.AttendiScritta(pagina.start, "Start");
    g.Mostra(nome + QStringLiteral("-stopped"));
}

}  // namespace

/// The ear trainer's pages, one after the other in the open window.
void PasseggiaOrecchio(Passeggiata& g) {
    g.Scegli("mnuRac");
    g.Attendi("frmInto");
    for (const Pagina& pagina : pagine) {
        g.Scegli(pagina.voce);
        g.Attendi([&] { return g.Stato(pagina.cornice).Visible; });
        const QString nome = QStringLiteral("frmInto-") + QLatin1String(pagina.cornice);
        g.Mostra(nome);
        if (&pagina == pagine) g.MostraMenu(QStringLiteral("frmInto-menu"));
        if (pagina.cornice != QLatin1String("frmRicTasto")) ScegliEstensione(g, pagina);
        Corri(g, pagina, nome);
    }
    g.Chiudi();
}

}  // namespace corvana::prova
