#include "tests/desktop/composer_screenshots.h"

#include <QAction>
#include <QListWidget>
#include <utility>

namespace corvana::prova {

namespace {

class Seduta {
public:
    Seduta(Scrivania& scrivania, const std::function<void(const QString&)>& scatta)
        : scrivania_(scrivania), scatta_(scatta) {}

    void Scatta(const char* nome) {
        scatta_(QStringLiteral("frmComposer-") + QString::fromLatin1(nome));
    }
    void Premi(const QString& nome) {
        Clicca(scrivania_, nome);
        Respira();
    }
    void Scegli(const char* voce) {
        TrovaVoce(scrivania_, QString::fromLatin1(voce)).trigger();
        Respira();
    }
    const Aspetto& Stato(const QString& nome) { return StatoDi(scrivania_, nome); }
    Cosa Di(const char* nome) { return Trova(scrivania_, QString::fromLatin1(nome)); }
    /// Lets the logic answer and what it says come to the screen.
    void Respira() {
        int passate = 0;
        Aspetta([&] { return ++passate > 5; });
    }
    int Accesi() {
        int accesi = 0;
        for (int tasto = 0; tasto < 60; ++tasto)
            accesi += Stato(QStringLiteral("lb%1").arg(tasto)).BackStyle == fondoOpaco ? 1 : 0;
        return accesi;
    }

private:
    Scrivania& scrivania_;
    const std::function<void(const QString&)>& scatta_;
};

void ScriviQualcosa(Seduta& s) {
    for (const char* figura : {"cmdSimbNote4", "cmdSimbNote3", "cmdSimbNote5"}) {
        s.Premi(QString::fromLatin1(figura));
        s.Premi(QStringLiteral("cmdInsPausa"));
        const std::string prima = s.Stato(QStringLiteral("lblNt")).Caption;
        s.Premi(QStringLiteral("cmdInsNota"));
        Aspetta([&] { return s.Stato(QStringLiteral("lblNt")).Caption != prima; });
        Aspetta([&] { return s.Accesi() == 0; });
    }
    s.Premi(QStringLiteral("ckConsAtt"));
    s.Premi(QStringLiteral("cmdAttrNota3"));
    s.Premi(QStringLiteral("Label4"));
}

void ApriMelodia(Seduta& s, const QString& inizio, const char* nome) {
    s.Scegli("mnuApri");
    auto& lista = s.Di("List1").Come<QListWidget>();
    // The rows of the last time show until they are read anew, with none of them chosen.
    Aspetta([&] { return s.Di("Fr2").isVisible() && lista.currentRow() < 0 && lista.count() > 1; });
    const auto righe = lista.findItems(inizio, Qt::MatchStartsWith);
    if (!righe.isEmpty()) lista.setCurrentItem(righe.front());
    s.Respira();
    s.Scatta(nome);
    s.Premi(QStringLiteral("cmdEseguiFile"));
}

/// The picker over the window: as it opens, and while it plays in another voice.
void ScegliStrumenti(Seduta& s, Scrivania& scrivania) {
    s.Premi(QStringLiteral("pictCi"));
    AspettaFinestra(scrivania, QStringLiteral("frmStrum"));
    s.Scatta("voices");
    s.Premi(QStringLiteral("VoceAttiva1"));
    s.Premi(QStringLiteral("cmdPlaySstru"));
    Aspetta([&] { return s.Stato(QStringLiteral("cmdPlaySstru")).Caption == "Stop"; });
    s.Respira();
    s.Scatta("voices-playing");
    s.Premi(QStringLiteral("cmdPlaySstru"));
    Aspetta([&] { return s.Stato(QStringLiteral("cmdPlaySstru")).Caption == "Play"; });
    s.Premi(QStringLiteral("cmdEsci"));
    AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
}

/// The import, from a medium that is the one the machine has.
void Importa(Seduta& s, Scrivania& scrivania) {
    s.Scegli("mnuCopyFromA");
    AspettaFinestra(scrivania, QStringLiteral("frmCopyFromA"));
    s.Respira();
    auto& lista = s.Di("List1").Come<QListWidget>();
    for (const int riga : {1, 2, 4})
        if (riga < lista.count()) lista.item(riga)->setSelected(true);
    s.Respira();
    s.Scatta("import");
    s.Premi(QStringLiteral("cmdChiudi"));
    AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
}

void Ferma(Seduta& s) {
    s.Premi(QStringLiteral("cmdPlay"));
    Aspetta([&] { return s.Stato(QStringLiteral("cmdPlay")).Caption == "Play"; });
}

/// The bookmarks that a melody brings, one of them chosen, and a paste that waits.
void MostraRiferimenti(Seduta& s) {
    ApriMelodia(s, QStringLiteral("O du"), "files-other");
    Aspetta([&] { return s.Di("frBookMark").isVisible(); });
    Ferma(s);
    s.Premi(QStringLiteral("cmdChiudi"));
    s.Di("lstBookMark").Come<QListWidget>().setCurrentRow(1);
    s.Premi(QStringLiteral("cmdPaste"));
    Aspetta([&] { return s.Di("lblIncolla").isVisible(); });
    s.Respira();
    s.Scatta("bookmarks");
    s.Premi(QStringLiteral("lblIncolla"));
}

}  // namespace

void FotografaComposer(Scrivania& scrivania, const std::function<void(const QString&)>& scatta) {
    Seduta s(scrivania, scatta);
    s.Scegli("mnuComposer");
    AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
    s.Scatta("empty");
    ScriviQualcosa(s);
    s.Scatta("entering");
    s.Premi(QStringLiteral("cmdAttrNota3"));
    s.Premi(QStringLiteral("cmdReset"));
    ApriMelodia(s, QStringLiteral("Salmo"), "files");
    Aspetta([&] { return s.Accesi() > 3 && s.Stato(QStringLiteral("lblNe")).Caption == "3"; });
    s.Scatta("playing");
    Ferma(s);
    s.Premi(QStringLiteral("cmdChiudi"));
    s.Scatta("loaded");
    ScegliStrumenti(s, scrivania);
    Importa(s, scrivania);
    s.Premi(QStringLiteral("VoceAttiva1"));
    s.Premi(QStringLiteral("lblTs"));
    s.Premi(QStringLiteral("lblStep1"));
    Aspetta([&] { return s.Di("frmModifica").isVisible(); });
    Aspetta([&] { return s.Stato(QStringLiteral("cmdPlay")).Caption == "Play"; });
    s.Premi(QStringLiteral("lblTs"));
    s.Scatta("stepping");
    MostraRiferimenti(s);
    scrivania.Davanti()->Finestra().close();
    AspettaFinestra(scrivania, QStringLiteral("CorvanaMainF"));
}

}  // namespace corvana::prova
