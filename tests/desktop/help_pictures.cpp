// Takes the pictures of the help from the real windows. Usage:
// corvana_help_pictures FOLDER DATA it|en
#include <QApplication>

#include "tests/desktop/help_composer.h"
#include "tests/desktop/help_drills.h"
#include "tests/desktop/memory_home.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

constexpr const char* risposte[] = {"pdo", "pre", "pmi", "pfa", "psol", "pla", "psi"};

/// Number of the note whose name stands on the staff, 0 for Do.
int NomeMostrato(Fotografo& f) {
    const QString nome = f.Di("lblnn").accessibleName();
    for (int i = 0; i < 7; ++i)
        if (f.Testo(risposte[i]).compare(nome, Qt::CaseInsensitive) == 0) return i;
    throw std::runtime_error("no name stands on the staff");
}

/// Presses the button of that number, and waits for the result, the `quante`th of the run.
void Rispondi(Fotografo& f, int quale, int quante) {
    f.Premi(risposte[quale]);
    const QString fine = QStringLiteral(" %1").arg(quante);
    Deve(Aspetta([&] { return f.Di("Ridate").accessibleName().endsWith(fine); }));
}

void Esercizio(Fotografo& f) {
    f.Scatta("range", "img", "difficolt");
    f.Premi("lblMn");
    f.Premi("Start");
    Deve(Aspetta([&] { return f.Di("pdo").isEnabled() && !f.Di("Regolo").isVisible(); }));
    for (int giuste = 1; giuste < 8; ++giuste)
        Rispondi(f, NomeMostrato(f), giuste);
    Rispondi(f, (NomeMostrato(f) + 1) % 7, 8);
    f.Scatta("drill", "img", "psi");
    f.Premi("Start");
    Deve(Aspetta([&] { return f.Di("frmRisultati").isVisible(); }));
    f.Scatta("results", "frmRisultati", "frmRisultati");
    f.Scatta("main");
}

void Automatico(Fotografo& f) {
    f.Scegli("mnuAutomatico");
    Deve(Aspetta([&] { return f.Di("Slider1").isVisible(); }));
    f.Scatta("automatic", "Shape5", "Shape6");
    f.Scegli("mnuNormale");
    Deve(Aspetta([&] { return !f.Di("Slider1").isVisible(); }));
}

void Metronomo(Fotografo& f) {
    f.Scegli("mnuMetro");
    Deve(Aspetta([&] { return f.Di("frmMetro").isVisible(); }));
    f.Premi("cmdSSmetro");
    Deve(Aspetta([&] { return f.Stato("lblPuls0").BackColor == Rgb(255, 0, 0); }));
    f.Scatta("metronome", "frmMetro", "frmMetro");
    f.Premi("cmdSSmetro");
    Deve(Aspetta([&] { return f.Di("cmdSetup").isEnabled(); }));
    f.ScattaSopra("pattern", "frmConfMetro", [&] { f.Premi("cmdSetup"); });
}

void Promemoria(Fotografo& f) {
    f.Scegli("mnuPromemoria");
    f.Attendi("frmOptions");
    f.Scatta("chart-notes");
    f.Premi("cmdSel1");
    Deve(Aspetta([&] { return f.Di("Frame12").isVisible(); }));
    f.Premi("Ton3");
    Deve(Aspetta([&] { return f.Di("Img3").isVisible(); }));
    f.Scatta("chart-keys");
    f.Premi("cmdSel2");
    Deve(Aspetta([&] { return f.Di("Frame13").isVisible(); }));
    f.ScattaSopra("chart-intervals", "frmOptions", [] {});
}

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const QTemporaryDir stato;
    Macchina macchina = MacchinaMuta(QString::fromLocal8Bit(argv[2]), stato);
    FileInMemoria file;
    DaiCasa(file, macchina, QString::fromLocal8Bit(argv[2]));
    RiempiSupporto(file);
    Scrivania& scrivania = applicazione.LaScrivania();
    scrivania.Avvia([&] { LogicaDelProgramma(applicazione, macchina); });
    Fotografo f(scrivania, argv[1]);
    f.Attendi("CorvanaMainF");
    Deve(Aspetta([&] { return f.Di("Start").isEnabled(); }));
    const bool inglese = QByteArray(argv[3]) == "en";
    f.Scegli(inglese ? "mnuEn" : "mnuIt");
    Deve(Aspetta([&] { return f.Testo("cmdEsci") == (inglese ? "Exit" : "Esci"); }));
    Esercizio(f);
    Automatico(f);
    Metronomo(f);
    f.ScattaSopra("instruments", "frmStrum", [&] { f.Scegli("mnuSs"); });
    f.ScattaSopra("midi", "frmMidiTest", [&] { f.Scegli("mnuMidiTest"); });
    Promemoria(f);
    EserciziOrecchio(f);
    FinestraComposizione(f);
    scrivania.Termina();
    return 0;
}
