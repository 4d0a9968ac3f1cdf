#include <array>

#include "tests/language/expected_rows.h"

namespace corvana::prova {

namespace {

constexpr auto righeOptions = std::to_array<RigaAttesa>({
    {83, "frmOptions", "Promemoria", "Reference chart"},
    {84, "cmdOK", "Chiudi", "Close"},
    {85, "cmdSel(0)", "Nomi note", "Note names"},
    {86, "cmdSel(1)", "Tonalità", "Key signatures"},
    {87, "cmdSel(2)", "Intervalli", "Intervals"},
    {88, "Frame1(1)", "relative pause ", "rests "},
    {89, "lblnn(0)", "Semibreve", "Whole note"},
    {90, "lblnn(1)", "Minima", "Half note"},
    {91, "lblnn(2)", "Semiminima", "Quarter note"},
    {92, "lblnn(3)", "Croma", "Eighth note"},
    {93, "lblnn(4)", "Semicroma", "Sixteenth note"},
    {94, "lblnn(5)", "Biscroma", "32nd note"},
    {95, "lblnn(6)", "Semibiscroma", "64th note"},
    {96, "lblModo", "Modo", "Mode"},
    {97, "lblMa", "Maggiore", "Major"},
    {98, "lblMi", "Minore", "Minor"},
    {99, "lblNa(0)", "Note alterate", "Sharps/flats"},
    {100, "lblNa(1)", "Fa", "F"},
    {101, "lblNa(2)", "Fa,Do", "F,C"},
    {102, "lblNa(3)", "Fa,Do,Sol", "F,C,G"},
    {103, "lblNa(4)", "Fa,Do,Sol,Re", "F,C,G,D"},
    {104, "lblNa(5)", "Fa,Do,Sol,Re,La", "F,C,G,D,A"},
    {105, "lblNa(6)", "Fa,Do,Sol,Re,La,Mi", "F,C,G,D,A,E"},
    {106, "lblNa(7)", "Fa,Do,Sol,Re,La,Mi,Si", "F,C,G,D,A,E,B"},
    {107, "lblNa(8)", "Si", "B"},
    {108, "lblNa(9)", "Si,Mi", "B,E"},
    {109, "lblNa(10)", "Si,Mi,La", "B,E,A"},
    {110, "lblNa(11)", "Si,Mi,La,Re", "B,E,A,D"},
    {111, "lblNa(12)", "Si,Mi,La,Re,Sol", "B,E,A,D,G"},
    {112, "lblNa(13)", "Si,Mi,La,Re,Sol,Do", "B,E,A,D,G,C"},
    {113, "lblNa(14)", "Si,Mi,La,Re,Sol,Do,Fa", "B,E,A,D,G,C,F"},
    {114, "Gradi", "Gradi", "Degrees"},
    {115, "Label35(0)", " I      Tonica", " I      Tonic"},
    {116, "Label35(1)", " II     Sopratonica", " II     Supertonic"},
    {117, "Label35(2)", " III    Mediante", " III    Mediant"},
    {118, "Label35(3)", " IV    Sottodominante", " IV    Subdominant"},
    {119, "Label35(4)", " V     Dominante", " V     Dominant"},
    {120, "Label35(5)", " VI    Sopradominante", " VI    Submediant"},
    {121, "Label35(6)", " VII   Sensibile", " VII   Leading tone"},
    {122, "Frame1(2)", "Specchio delle tonalità ", "major and minor keys "},
    {123, "Ton(16).tip", "gradi della scala", "degrees of the scale"},
    {124, "Frame1(3)", "Intervalli ", "Intervals "},
    {125, "lblInter(0)", "Intervallo", "Interval"},
    {126, "lblInter(1)", "2 3 4 5 6 7 M m G E D", "2 3 4 5 6 7 M m P A D"},
    {127, "lblInter(2)", "Rivolto", "Inversion"},
    {128, "lblInter(3)", "7 6 5 4 3 2 m M G D E", "7 6 5 4 3 2 m M P D A"},
    {129, "Label4(0)", "5 Gius", "5 Perf"},
    {130, "Label4(1)", "5 Ecc", "5 Aug"},
    {131, "Label4(2)", "6 Mag", "6 Maj"},
    {132, "Label4(3)", "6 Ecc", "6 Aug"},
    {133, "Label4(4)", "7 Mag", "7 Maj"},
    {134, "Label4(5)", "7 Ecc", "7 Aug"},
    {135, "Label4(6)", "8 Ecc", "8 Aug"},
    {136, "Label4(7)", "8 Gius", "8 Perf"},
    {137, "Label4(8)", "8 Dim", "8 Dim"},
    {138, "Label4(9)", "7 Min", "7 Min"},
    {139, "Label4(10)", "7 Dim", "7 Dim"},
    {140, "Label4(11)", "6 Min", "6 Min"},
    {141, "Label4(12)", "6 Dim", "6 Dim"},
    {142, "Label4(13)", "5 Dim", "5 Dim"},
    {144, "Label4(14)", "4 Gius", "4 Perf"},
    {145, "Label4(15)", "4 Dim", "4 Dim"},
    {146, "Label4(16)", "3 Min", "3 Min"},
    {147, "Label4(17)", "3 Dim", "3 Dim"},
    {148, "Label4(18)", "2 Min", "2 Min"},
    // Number 19, "2 Dim", reads the same in every language and has no row.
    {149, "Label4(20)", "2 Mag", "2 Maj"},
    {150, "Label4(21)", "2 Ecc", "2 Aug"},
    {151, "Label4(22)", "3 Mag", "3 Maj"},
    {152, "Label4(23)", "3 Ecc", "3 Aug"},
    {153, "Label4(24)", "4 Ecc", "4 Aug"},
    {154, "Label34", "melodico", "melodic"},
    {155, "Label32", "Intervalli consonanti", "Consonant intervals"},
    {156, "Label33", "dissonanti", "Dissonant"},
});

}  // namespace

RigheAttese RigheOptions() {
    return righeOptions;
}

}  // namespace corvana::prova
