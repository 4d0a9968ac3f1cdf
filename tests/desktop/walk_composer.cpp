#include <QListWidget>

#include "tests/desktop/walk.h"

namespace corvana::prova {

namespace {

QString Detto(const char* stato) {
    return QStringLiteral("frmComposer-") + QLatin1String(stato);
}

int Accesi(Passeggiata& g) {
    int accesi = 0;
    for (int tasto = 0; tasto < 60; ++tasto)
        accesi += g.Stato(qPrintable(QStringLiteral("lb%1").arg(tasto))).BackStyle == fondoOpaco;
    return accesi;
}

void ScriviQualcosa(Passeggiata& g) {
    for (const char* figura : {"cmdSimbNote4", "cmdSimbNote3", "cmdSimbNote5"}) {
        g.Premi(figura);
        g.Premi("cmdInsPausa");
        const std::string prima = g.Stato("lblNt").Caption;
        g.Premi("cmdInsNota");
        g.Attendi([&] { return g.Stato("lblNt").Caption != prima; });
        g.Attendi([&] { return Accesi(g) == 0; });
    }
    g.Premi("ckConsAtt");
    g.Premi("cmdAttrNota3");
    g.Premi("Label4");
}

void ApriMelodia(Passeggiata& g, const QString& inizio, const char* nome) {
    g.Scegli("mnuApri");
    auto& lista = g.Di("List1").Come<QListWidget>();
    // The rows of the last time show until they are read anew, with none of them chosen.
    g.Attendi(
        [&] { return g.Di("Fr2").isVisible() && lista.currentRow() < 0 && lista.count() > 1; });
    const auto righe = lista.findItems(inizio, Qt::MatchStartsWith);
    if (!righe.isEmpty()) lista.setCurrentItem(righe.front());
    g.Respira();
    g.Mostra(Detto(nome));
    g.Premi("cmdEseguiFile");
}

/// The questions around a melody that isn't saved yet.
void MostraRiquadri(Passeggiata& g) {
    g.MostraRiquadro([&] { g.Premi("ToolButton5"); }, QStringLiteral("box-input"));
    g.Premi("ToolButton5");
    g.Rispondi(QStringLiteral("a/b"));
    g.MostraRiquadro([] {}, QStringLiteral("box-message"));
    g.MostraRiquadro([&] { g.Premi("cmdCm"); }, QStringLiteral("box-question"));
    g.MostraTendina("cmbDrive", Detto("roots"));
    g.Premi("cmdChiudi");
}

/// The picker over the window: as it opens, and while it plays in another voice.
void ScegliStrumenti(Passeggiata& g) {
    g.Premi("pictCi");
    g.Attendi("frmStrum");
    g.Mostra(Detto("voices"));
    g.Premi("VoceAttiva1");
    g.Premi("cmdPlaySstru");
    g.Attendi([&] { return g.Stato("cmdPlaySstru").Caption == "Stop"; });
    g.Respira();
    g.Mostra(Detto("voices-playing"));
    g.Premi("cmdPlaySstru");
    g.Attendi([&] { return g.Stato("cmdPlaySstru").Caption == "Play"; });
    g.Premi("cmdEsci");
    g.Attendi("frmComposer");
}

/// The import, from a medium that is the one the machine has.
void Importa(Passeggiata& g) {
    g.Scegli("mnuCopyFromA");
    g.Attendi("frmCopyFromA");
    g.Respira();
    auto& lista = g.Di("List1").Come<QListWidget>();
    for (const int riga : {1, 2, 4})
        if (riga < lista.count()) lista.item(riga)->setSelected(true);
    g.Respira();
    g.Mostra(Detto("import"));
    g.Premi("cmdChiudi");
    g.Attendi("frmComposer");
}

void Ferma(Passeggiata& g) {
    g.Premi("cmdPlay");
    g.Attendi([&] { return g.Stato("cmdPlay").Caption == "Play"; });
}

/// The bookmarks that a melody brings, one of them chosen, and a paste that waits.
void MostraRiferimenti(Passeggiata& g) {
    ApriMelodia(g, QStringLiteral("O du"), "files-other");
    g.Attendi([&] { return g.Di("frBookMark").isVisible(); });
    Ferma(g);
    g.Premi("cmdChiudi");
    g.Di("lstBookMark").Come<QListWidget>().setCurrentRow(1);
    g.Premi("cmdPaste");
    g.Attendi([&] { return g.Di("lblIncolla").isVisible(); });
    g.Respira();
    g.Mostra(Detto("bookmarks"));
    g.Premi("lblIncolla");
}

}  // namespace

void PasseggiaComposer(Passeggiata& g) {
    g.Scegli("mnuComposer");
    g.Attendi("frmComposer");
    g.Mostra(Detto("empty"));
    g.MostraMenu(Detto("menu"));
    g.MostraPremuto("cmdPlay", Detto("pressed"));
    ScriviQualcosa(g);
    g.Mostra(Detto("entering"));
    MostraRiquadri(g);
    g.Premi("cmdAttrNota3");
    g.Premi("cmdReset");
    ApriMelodia(g, QStringLiteral("Salmo"), "files");
    g.Attendi([&] { return Accesi(g) > 3 && g.Stato("lblNe").Caption == "3"; });
    g.Mostra(Detto("playing"));
    Ferma(g);
    g.Premi("cmdChiudi");
    g.Mostra(Detto("loaded"));
    ScegliStrumenti(g);
    Importa(g);
    g.Premi("VoceAttiva1");
    g.Premi("lblTs");
    g.Premi("lblStep1");
    g.Attendi([&] { return g.Di("frmModifica").isVisible(); });
    g.Attendi([&] { return g.Stato("cmdPlay").Caption == "Play"; });
    g.Premi("lblTs");
    g.Mostra(Detto("stepping"));
    for (const char* lista : {"cmbDurata", "cmbPer", "cmbAttributi", "Pulsazioni"})
        g.MostraTendina(lista, Detto(lista));
    MostraRiferimenti(g);
    g.Chiudi();
}

}  // namespace corvana::prova
