#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

using T = TestiLingua;

constexpr auto righeMain = std::to_array<RigaAttesa>({
    {0, "CorvanaMainF", "Corvana - Lettura", "Corvana - Note"},
    {1, "cmdEsci", "Esci", "Exit"},
    {2, "Esci", "Esci", "Exit"},
    {3, "es", "Esercizi", "Exercises"},
    {4, "mnuCorvana", "Lettura delle note", "Note reading"},
    {5, "mnuRicTasto", "Riconoscimento tasti", "piano keys"},
    {6, "Intonazione ToolButton1.tip", "altezza", "Pitch"},
    {7, "mnuRint", "Riconoscimento intervallo", "Interval"},
    {8, "mnuRac", "accordo", "Chord"},
    {9, "mnuRicTo", "tonalità", "major/minor"},
    {10, "mnuComposer ToolButton2.tip", "melodie", "melodies"},
    {11, "mnuPromemoria ToolButton4.tip", "Promemoria", "Reference"},
    {12, "difficolt[0]", "Sol: Si - Mi", "Treble clef: B - E"},
    {13, "difficolt[1]", "Sol: Sol - Sol", "Treble clef: G - G"},
    {14, "difficolt[2]", "Sol: Fa - Do", "Treble clef: F - C"},
    {15, "difficolt[3]", "Sol: Fa - Sol", "Treble clef: F - G"},
    {16, "difficolt[5]", "Fa: Sol - La", "Bass clef: G - A"},
    {17, "difficolt[6]", "Fa: Mi - Do", "Bass clef: E - C"},
    {18, "difficolt[7]", "Fa: Do - Mi", "Bass clef: C - E"},
    {19, "difficolt[8]", "Fa: Sol - Fa", "Bass clef: G - F"},
    {20, "difficolt[10]", "ottave: Do - Si", "octaves: C - B"},
    {21, "difficolt.tip", "Z X C V, B N M , .", "Z X C V, B N M , ."},
    {22, "Intervallo", "Note dell'esercizio", "Notes to practice"},
    {23, "Regolo.tip", "due note", "two notes"},
    {24, "lblMn.tip", "Mostra/Nascondi il nome", "Show/hide the name"},
    {25, "conta.tip", "Risposte esatte (", "Correct answers ("},
    {26, "er.tip", "Risposte errate", "Wrong answers"},
    {28, "", "Risposte esatte: ", "Correct answers: ", &T::TxtRisposteEsatte},
    {29, "", "Risposte errate: ", "Wrong answers: ", &T::TxtRisposteErrate},
    {30, "", "Risposte date: ", "Answers given: ", &T::TxtRisposteDate},
    // The box of the percentage shows it until the first run, and as its tool tip.
    {31, "PercEs PercEs.tip", "Percentuale: ", "Percentage: ", &T::TxtPercentuale},
    {32, "", "Tempo impiegato: ", "Time taken: ", &T::TxtTempoImpiegato},
    {33, "", "Note mostrate: ", "Notes shown: ", &T::TxtNoteMostrate},
    {34, "Velocità Slider1.tip", "Note al minuto: ", "Notes per minute: ", &T::TxtVelocita},
    {35, "lblAuto1", "Do - Re - Mi - Fa - Sol - La - Si", "C - D - E - F - G - A - B"},
    {36, "lblAuto2.tip", "tastierino", "keypad"},
    {37, "Risorse", "Risorse", "Resources"},
    {38, "mnuMetro ToolButton3.tip", "Metronomo", "Metronome"},
    {39, "Opzioni", "Opzioni", "Options"},
    {40, "Suono1", "Suono generico", "Generic sound"},
    {41, "Suono2", "Suono della nota", "Sound of the note"},
    {42, "mnuOrgano", "Organo", "Organ"},
    {43, "mnuPiano", "Pianoforte", "Piano"},
    {44, "mnuNormale", "Normale", "Normal"},
    {45, "mnuAutomatico ToolButton6.tip", "Automatico", "Automatic"},
    {46, "mnuLingua", "Lingua", "Language"},
    {47, "mnuIt", "Italiano", "Italian"},
    {48, "mnuEn", "Inglese", "English"},
    {49, "mnuAiuto ToolButton7.tip", "Aiuto", "Help"},
    {50, "mnuVersione", "Versione", "Version"},
    {51, "frmMetroC", "Metronomo", "Metronome"},
    {52, "lblCloseMetro.tip", "Chiudi il metronomo", "Close the metronome"},
    {53, "lblTs.tip", "Cambia il tempo", "time signature"},
    {54, "", "Raddoppia", "Double", &T::TipX1},
    {55, "", "Torna", "Back", &T::TipX2},
    {56, "cmdSetup.tip", "sequenza", "pattern"},
    {57, "", "Nessun dispositivo audio", "No sound device", &T::msgSenzaSuono},
    {78, "ToolButton5.tip", "strumento", "instrument"},
    {167, "mnuSs", "Scegli...", "Choose..."},
    {380, "", "Contralto", "Alto", &T::TipContralto},
    {381, "", "Tenore", "Tenor", &T::TipTenore},
    {382, "", "Basso", "Bass", &T::TipBasso},
    {384, "", "&Sì", "&Yes", &T::parSi},
    {385, "", "&No", "&No", &T::parNo},
    {386, "", "OK", "OK", &T::parOk},
    {387, "", "Annulla", "Cancel", &T::parAnnulla},
    {388, "", "&Annulla", "&Undo", &T::parAnnullaModifica},
    {389, "", "Ripeti", "Redo", &T::parRipeti},
    {390, "", "Taglia", "Cu&t", &T::parTaglia},
    {391, "", "&Copia", "&Copy", &T::parCopia},
    {392, "", "i&ndirizzo", "&link", &T::parCopiaIndirizzo},
    {393, "", "Incolla", "Paste", &T::parIncolla},
    {394, "", "Elimina", "Delete", &T::parElimina},
    {395, "", "Seleziona tutto", "Select all", &T::parSelezionaTutto},
    {409, "", "Aiuto", "Help", &T::parAiuto},
    {410, "", "‹ Indietro", "‹ Back", &T::parIndietro},
    {411, "", "Avanti ›", "Forward ›", &T::parAvanti},
    {412, "", "Indice", "Contents", &T::parIndice},
    {413, "", "non si trovano", "not found", &T::parAiutoManca},
});

}  // namespace

RigheAttese RigheMain() {
    return righeMain;
}

}  // namespace corvana::prova
