#include "tests/desktop/help_composer.h"

#include <QListWidget>

namespace corvana::prova {

namespace {

void AspettaScritta(Fotografo& f, const char* nome, const std::string& scritta) {
    Deve(Aspetta([&] { return f.Stato(nome).Caption == scritta; }));
}

int TastiAccesi(Fotografo& f) {
    int accesi = 0;
    for (int tasto = 0; tasto < 60; ++tasto)
        accesi += f.Stato(("lb" + std::to_string(tasto)).c_str()).BackStyle == fondoOpaco ? 1 : 0;
    return accesi;
}

/// The cursor one note up. A key that comes up at once may never be seen down, and the next press
/// counts once this one has sounded.
void UnaNotaSu(Fotografo& f) {
    const std::string prima = f.Stato("lblActNote").Caption;
    f.Premi(Qt::Key_Up);
    Deve(Aspetta([&] { return f.Stato("lblActNote").Caption != prima; }));
    f.Lascia(Qt::Key_Up);
    Deve(Aspetta([&] { return TastiAccesi(f) == 0; }));
}

/// The ruler on a black key; then a short note, and a dotted one about to follow.
void Scrivi(Fotografo& f) {
    for (int volta = 0; volta < 6; ++volta)
        UnaNotaSu(f);
    f.Scatta("composer-ruler", "Regolo", "Regolo");
    f.Premi("cmdSimbNote5");
    f.Premi("cmdInsNota");
    AspettaScritta(f, "lblNt", "1");
    Deve(Aspetta([&] { return TastiAccesi(f) == 0; }));
    f.Premi("cmdSimbNote3");
    f.Premi("cmdAttrNota0");
    Deve(Aspetta([&] { return f.Stato("cmdAttrNota0").BackColor == Rgb(10, 254, 10); }));
    f.Scatta("composer-entry", "Shape7", "Shape7");
    f.Premi("cmdAttrNota0");
    f.Premi("cmdReset");
    AspettaScritta(f, "lblNt", "");
}

/// The lowest keys of the computer's two rows, held down.
void SuonaLeFile(Fotografo& f) {
    f.Premi(Qt::Key_Z);
    f.Premi(Qt::Key_Q);
    Deve(Aspetta([&] { return TastiAccesi(f) == 2; }));
    f.Scatta("composer-keys", "tastiera", "tastiera");
    f.Lascia(Qt::Key_Z);
    f.Lascia(Qt::Key_Q);
    Deve(Aspetta([&] { return TastiAccesi(f) == 0; }));
}

void Apri(Fotografo& f, const QString& inizio) {
    f.Scegli("mnuApri");
    auto& lista = f.Di("List1").Come<QListWidget>();
    // The rows of the last time show until they are read anew, with none of them chosen.
    Deve(Aspetta(
        [&] { return f.Di("Fr2").isVisible() && lista.currentRow() < 0 && lista.count() > 1; }));
    lista.setCurrentItem(lista.findItems(inizio, Qt::MatchStartsWith).at(0));
    f.Scatta("composer-files", "Fr2", "Fr2");
    f.Premi("cmdEseguiFile");
    AspettaScritta(f, "cmdPlay", "Stop");
    f.Premi("cmdChiudi");
    Deve(Aspetta([&] { return !f.Di("Fr2").isVisible(); }));
}

void Suona(Fotografo& f) {
    Apri(f, QStringLiteral("Salmo"));
    Deve(Aspetta([&] { return TastiAccesi(f) > 3 && f.Stato("lblNe").Caption == "3"; }));
    f.Scatta("composer");
    f.Scatta("composer-play", "cmdPlay", "chekLoopLb");
    f.Premi("cmdPlay");
    AspettaScritta(f, "cmdPlay", "Play");
}

/// A range of the alto, which the others accompany softly.
void ScegliVoce(Fotografo& f) {
    f.Premi("lblid5");
    Deve(Aspetta([&] { return f.Stato("lblNiniC").Text == "2"; }));
    f.Premi("lblMuteC1");
    AspettaScritta(f, "lblVolB", "40");
    f.Scatta("composer-voices", "VoceAttiva0", "LblNoteStringB");
    f.Scatta("composer-mix", "lblid0", "lblMuteC3");
    f.Premi("lblIDs1");
    f.Premi("lblIDs1");
    AspettaScritta(f, "lblSemitoni", "2");
    f.Scatta("composer-transpose", "Label5", "lblIDs1");
}

/// The picker for a voice, whose melody plays from there.
void ScegliStrumento(Fotografo& f) {
    f.Premi("pictCi");
    f.Attendi("frmStrum");
    f.Premi("VoceAttiva1");
    Deve(Aspetta([&] { return f.Stato("VoceAttiva1").BackColor == Rgb(0, 255, 0); }));
    f.Scatta("voice-instruments");
    f.Premi("cmdEsci");
    f.Attendi("frmComposer");
}

/// The melodies of a medium, two of them selected.
void Importa(Fotografo& f) {
    f.Scegli("mnuCopyFromA");
    f.Attendi("frmCopyFromA");
    auto& lista = f.Di("List1").Come<QListWidget>();
    Deve(Aspetta([&] { return lista.count() > 4; }));
    for (const int riga : {1, 4})
        lista.item(riga)->setSelected(true);
    f.Scatta("composer-import");
    f.Premi("cmdChiudi");
    f.Attendi("frmComposer");
}

void Passo(Fotografo& f) {
    f.Premi("lblTs");
    Deve(Aspetta([&] { return f.Di("frMetro").isVisible(); }));
    f.Scatta("composer-metronome", "Shape5", "frMetro");
    f.Premi("lblStep1");
    Deve(Aspetta([&] { return f.Di("frmModifica").isVisible(); }));
    Deve(Aspetta([&] { return f.Stato("cmdPlay").Caption == "Play" && TastiAccesi(f) == 0; }));
    f.Scatta("composer-step", "frmModifica", "frmModifica");
}

/// A range of the soprano that is about to be repeated, and the bookmarks that a melody brings.
void Riferimenti(Fotografo& f) {
    Apri(f, QStringLiteral("O du"));
    Deve(Aspetta([&] { return f.Di("frBookMark").isVisible(); }));
    f.Premi("cmdPlay");
    AspettaScritta(f, "cmdPlay", "Play");
    f.Di("lstBookMark").Come<QListWidget>().setCurrentRow(1);
    f.Scatta("composer-bookmarks", "frBookMark", "frBookMark");
    f.Premi("cmdPaste");
    Deve(Aspetta([&] { return f.Di("lblIncolla").isVisible(); }));
    f.Scatta("composer-paste", "lblIncolla", "cmdPaste");
    f.Premi("lblIncolla");
}

}  // namespace

void FinestraComposizione(Fotografo& f) {
    f.Scegli("mnuComposer");
    f.Attendi("frmComposer");
    Scrivi(f);
    SuonaLeFile(f);
    Suona(f);
    ScegliVoce(f);
    ScegliStrumento(f);
    Importa(f);
    Passo(f);
    Riferimenti(f);
    f.Chiudi();
}

}  // namespace corvana::prova
