#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

using T = TestiLingua;

constexpr auto righeInto = std::to_array<RigaAttesa>({
    {157, "frmInto", "altezza nota / Intervallo", "Ear training"},
    {158, "Esercizio", "Esercizio", "Exercise"},
    {159, "mnuNotA", "altezza nota", "Pitch"},
    {160, "mnuRint", "Riconoscimento intervallo", "Interval recognition"},
    {161, "mnuRicTa", "tipo accordo", "Chord type"},
    {162, "mnuRicTasto", "Riconoscimento tasti", "Finding piano keys"},
    {163, "mnuRicTo", "Riconoscimento tonalità", "Key recognition"},
    {164, "strumento", "Strumento", "Instrument"},
    {165, "mnuPiano mnuSs", "Pianoforte", "Piano"},
    {166, "mnuOrgano", "Organo", "Organ"},
    {168, "Opzioni", "Opzioni", "Options"},
    {169, "cmdEsci", "Esci", "Exit"},
    {170, "Label2", "Risposte esatte", "Correct answers"},
    {171, "Label1", "Risposte errate", "Wrong answers"},
    {172, "lblPerc.tip", "Percentuale", "Percentage"},
    {173, "Label6", "Modo", "Mode"},
    {174, "Label6.tip", "attivare o togliere", "on or off"},
    {175, "", "Con nota", "With a", &T::ttRifSi},
    {176, "", "Senza nota", "Without a", &T::ttRifNo},
    {177, "lblIntoNN.tip", "Nome della nota", "Name of the note"},
    {178, "lblIntoSh.tip", "Mostra/Nascondi la nota", "Show/hide the note"},
    {179, "cmdReimposta", "Reimposta", "Reset"},
    {180, "", "primo limite", "first limit", &T::msgPrimoLimite},
    {181, "", "secondo limite", "second limit", &T::msgSecondoLimite},
    {182, "", "sulla nota di riferimento", "Click the reference note", &T::msgScegliRif},
    {183, "", "Ascolta la nota", "Listen to the note", &T::msgAscolta},
    {184, "", "Fermo", "Stopped", &T::msgFermato},
    {185, "Lbdoc.tip", "Do centrale", "Middle C"},
    {186, "Label7", "Modo", "Mode"},
    {187, "Label7.tip", "cambiare il modo", "change the way"},
    {188, "", "Intervallo melodico", "Melodic interval", &T::ttMelodico},
    {189, "", "Intervallo misto", "Mixed interval", &T::ttMisto},
    {190, "", "Intervallo armonico", "Harmonic interval", &T::ttArmonico},
    // Those of the upper row, and two of the lower one: perfect octave and fourth.
    {191, "Label4(0)", "5 Gius", "5 Perf"},
    {192, "Label4(1)", "5 Ecc", "5 Aug"},
    {193, "Label4(2)", "6 Mag", "6 Maj"},
    {194, "Label4(3)", "6 Ecc", "6 Aug"},
    {195, "Label4(4)", "7 Mag", "7 Maj"},
    {196, "Label4(5)", "7 Ecc", "7 Aug"},
    {197, "Label4(6)", "8 Ecc", "8 Aug"},
    {198, "Label4(7)", "8 Gius", "8 Perf"},
    {199, "Label4(14)", "4 Gius", "4 Perf"},
    {200, "Label4(20)", "2 Mag", "2 Maj"},
    {201, "Label4(21)", "2 Ecc", "2 Aug"},
    {202, "Label4(22)", "3 Mag", "3 Maj"},
    {203, "Label4(23)", "3 Ecc", "3 Aug"},
    {204, "Label4(24)", "4 Ecc", "4 Aug"},
    {205, "", "Intervallo disponibile", "Interval in use", &T::ttIntAmmesso},
    {206, "", "Intervallo escluso", "Interval left out", &T::ttIntEscluso},
    {207, "IntRoot.tip", "riferimento degli intervalli", "for the intervals"},
    {208, "", "fisso", "Fixed", &T::capRifFisso},
    {209, "", "variabile", "Variable", &T::capRifVariabile},
    {210, "lblRifInf.tip", "riferimento più grave", "Lowest reference"},
    {211, "lblRifSup.tip", "riferimento più acuta", "Highest reference"},
    {212, "lblIntSh.tip", "soluzione", "answer"},
    {213, "lblNi.tip", "Nota più grave", "Lower note"},
    {214, "lblNs.tip", "Nota più acuta", "Higher note"},
    {215, "", "Ascolta l'intervallo", "Listen to the interval", &T::msgInt},
    {216, "", "Ascolta l'accordo", "Listen to the chord", &T::msgAcc},
    {217, "", "Premi Start", "Press Start", &T::msgPremiStart},
    {218, "TipoAcc(1)", "Mag", "Maj"},
    {219, "TipoAcc(3)", "Ecc", "Aug"},
    {220, "", "Accordo disponibile", "Chord in use", &T::ttAccAmmesso},
    {221, "", "Accordo escluso", "Chord left out", &T::ttAccEscluso},
    {222, "lblModoVt", "Modo", "Mode"},
    {223, "lblModoVt.tip", "mostrare o nascondere", "show or hide"},
    {224, "", "Mostra", "Show", &T::capMostraTasti},
    {225, "", "Nascondi", "Hide", &T::capNascondiTasti},
    {226, "", "Mostra i tasti", "Shows the piano keys", &T::ttMostraTasti},
    {227, "", "Nasconde i tasti", "Hides the piano keys", &T::ttNascondiTasti},
    {228, "cmdRes", "Reim.", "Reset"},
    {229, "cmdRes.tip", "Reimposta l'estensione", "Reset the range"},
    {230, "", "troppo acuto", "too high", &T::msgAccTroppoAlto},
    {231, "", "un tono sotto", "whole tone below", &T::msgStrettoSotto},
    {232, "", "un tono sopra", "whole tone above", &T::msgStrettoSopra},
    {233, "Label9", "Maggiore", "Major"},
    {234, "Label10", "Minore", "Minor"},
    {235, "lblRipeti lblRipInto lblRipta lblRipInt", "Ripeti", "Repeat"},
    {236, "lblTsh.tip", "Mostra/Nascondi la tonalità", "Show/hide the major or minor"},
    {237, "", "Tonalità disponibile", "key in use", &T::ttToAmmessa},
    {238, "", "Tonalità esclusa", "key left out", &T::ttToEsclusa},
    {239, "", "Solo tasti bianchi", "White keys", &T::capSoloBianchi},
    {240, "", "Tutti i tasti", "All piano keys", &T::capTuttiTasti},
    {241, "", "Fai clic su un ", "Click any ", &T::msgTastoPrima},
    {242, "", " sulla tastiera", " on the piano keyboard", &T::msgTastoDopo},
    {243, "lblSceltaTasti.tip", "difficoltà", "difficulty"},
    {244, "", "dentro l'estensione", "within the chosen range", &T::msgRifFuori},
});

}  // namespace

RigheAttese RigheInto() {
    return righeInto;
}

}  // namespace corvana::prova
