#include "composer/composer_layout.h"

#include <array>

#include "composer/play_panel.h"
#include "composer/range_arrows.h"

namespace corvana {

namespace {

/// The places that movements are measured from, in twips, and the texts before a language is
/// applied.
constexpr std::array posti = {
    Posto{"frmComposer", 0, 0, 0, 0, "Composizione melodie e armonie"},
    Posto{"mnuPiano", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuOrgano", 0, 0, 0, 0, "Organo"},
    Posto{"mnuNotLat", 0, 0, 0, 0, "Do,Re,Mi"},
    Posto{"mnuNotAnglo", 0, 0, 0, 0, "C,D,E"},
    Posto{"mnuSs", 0, 0, 0, 0, "Scegli ..."},
    Posto{"mnuPlayRitardo", 0, 0, 0, 0, "Play (ritardo 5 Sec.)"},
    Posto{"Regolo", 75, 945, 360, 3120},
    Posto{"lblCursore", 60, 0, 75, 165},
    Posto{"lblAccidente", 135, 0, 165, 165, "#"},
    Posto{"lblRigaCur", sinistraRigaCur, 0, corsaCursore, 0},
    Posto{"Cursore", sinistraRigaCur, 0, 0, 0},
    Posto{"PausaPer", 0, 0, 0, 0, "1"},
    Posto{"Label4", 0, 0, 0, 0, "x"},
    Posto{"lblAt", 0, 0, 0, 0, " >"},
    Posto{"ckConsAttLb", 0, 0, 0, 0, "Mantieni l'attributo"},
    Posto{"cmdInsNota", 0, 0, 0, 0, "Nota"},
    Posto{"cmdInsPausa", 0, 0, 0, 0, "Pausa"},
    Posto{"cmdAttrNota1", 0, 0, 0, 0, {}, "Staccato"},
    Posto{"cmdAttrNota4", 0, 0, 0, 0, {}, "Appoggiato"},
    Posto{"cmdAttrNota5", 0, 0, 0, 0, {}, "Accentato"},
    Posto{"cmdCanc", 0, 0, 0, 0, "Canc."},
    Posto{"cmdReset", 0, 0, 0, 0, {}, "Cancella l'intera sequenza"},
    Posto{"cmdPaste", 0, 0, 0, 0, "Incolla", "Incolla alla fine da nota inizio a nota fine"},
    Posto{"frmModifica", 0, 0, 0, 0, {}, "Strumenti per modificare la nota suonata"},
    Posto{"lblActualNote", 0, 0, 0, 0, "Nota attiva"},
    Posto{"cmdModifica0", 0, 0, 0, 0, {}, "Modifica"},
    Posto{"cmdInsertNote", 0, 0, 0, 0, {}, "Inserisci nota"},
    Posto{"cmdCancNota", 0, 0, 0, 0, {}, "Cancella nota"},
    Posto{"cmdNpp", 0, 0, 0, 0, {}, "Chiudi PassoPasso/Modifica"},
    Posto{"cmdPlay", 0, 0, 0, 0, "Play"},
    Posto{"cmdEseguiFile", 0, 0, 0, 0, "Play"},
    Posto{"cmdDelBm", 0, 0, 0, 0, "Elimina"},
    Posto{"lblTs", 0, 0, 0, 0, "Off", "Metronomo On/Off"},
    Posto{"VoceAttiva0", 0, 0, 0, 0, "S"},
    Posto{"VoceAttiva1", 0, 0, 0, 0, "C"},
    Posto{"VoceAttiva2", 0, 0, 0, 0, "T"},
    Posto{"VoceAttiva3", 0, 0, 0, 0, "B"},
    Posto{"lblMuteC0", 0, 0, 0, 0, " ^ -- _ "},
    Posto{"lblMuteC1", 0, 0, 0, 0, " ^ -- _ "},
    Posto{"lblMuteC2", 0, 0, 0, 0, " ^ -- _ "},
    Posto{"lblMuteC3", 0, 0, 0, 0, " ^ -- _ "},
    Posto{"Label5", 0, 0, 0, 0, "Trasponi"},
    Posto{"lblIDs0", 0, 0, 0, 0, "-"},
    Posto{"lblIDs1", 0, 0, 0, 0, "+"},
    Posto{"lblSemitoni", 0, 0, 0, 0, "0",
          "Clicca per trasporre la melodia per i semitoni indicati"},
    Posto{"Pulsazioni", 0, 0, 0, 0, {}, "Numero di pulsazioni"},
    Posto{"DurataPulsazioni", 0, 0, 0, 0, {}, "Durata pulsazioni"},
    Posto{"LblInizioPuls", 0, 0, 0, 0, "1", "Pulsazione d'inizio"},
    Posto{"cmdCm", 0, 0, 0, 0, "×"},
    Posto{"pictCi", 0, 0, 0, 0, "Scegli ..."},
    Posto{"lblVolS", 0, 0, 0, 0, "100"},
    Posto{"lblVolC", 0, 0, 0, 0, "100"},
    Posto{"lblVolT", 0, 0, 0, 0, "100"},
    Posto{"lblVolB", 0, 0, 0, 0, "100"},
};

}  // namespace

void DisponiComposer(Form& finestra) {
    Disponi(finestra, posti.data(), posti.size());
    for (int i = 0; i < numeroFrecce; ++i)
        finestra.Trova("lblid" + std::to_string(i))->PonTesto(i % 2 ? ">" : "<");
}

}  // namespace corvana
