// The cards beneath the voices, and the palette beside the keyboard.
#include <array>

#include "composer/composer.h"
#include "composer/composer_places.h"

namespace corvana {

namespace {

constexpr std::array postiSchede = {
    Posto{"Shape5", 540, 5730, 1080, 2040, {}, {}, "pannello"},
    Posto{"Label6", 750, 5970, 660, 660, {}, {}, "icona:metronomo"},
    Posto{"lblTs", 660, 6870, 840, 540, "Off", "Metronomo On/Off", "pulsante forte"},
    Posto{"frMetro", 3450, 5730, 2460, 2040, {}, {}, "pannello"},
    Posto{"Pulsazioni", 150, 150, 930, 510, {}, "Numero di pulsazioni"},
    Posto{"DurataPulsazioni", 150, 780, 930, 510, {}, "Durata pulsazioni"},
    Posto{"InizioPuls", 1260, 120, 390, 1230, {}, {}, "consiglio:LblInizioPuls"},
    Posto{"LblInizioPuls", 1740, 480, 600, 480, "1", "Pulsazione d'inizio", "cifra mezzo"},
    Posto{"VolumeMetro", 150, 1500, 1560, 390, {}, {}, "consiglio:lblTs"},
    Posto{"lblDebug", 1740, 1500, 660, 390, {}, {}, "piccolo centro mezzo"},
    Posto{"Shape8", 3450, 5730, 9450, 2040, {}, {}, "ornamento"},
    Posto{"Shape6", 1740, 5730, 1590, 2040, {}, {}, "pannello"},
    Posto{"lblStep0", 1830, 6330, 660, 840, {}, {}, "pulsante icona:indietro"},
    Posto{"lblStep1", 2580, 6330, 660, 840, {}, {}, "pulsante icona:avanti"},
    Posto{"frmModifica",
          6030,
          5730,
          3900,
          2040,
          {},
          "Strumenti per modificare la nota suonata",
          "pannello"},
    Posto{"lblActualNote",
          120,
          210,
          1290,
          690,
          "Nota attiva",
          {},
          "riquadro titolo centro mezzo letto"},
    Posto{"cmbDurata", 1500, 255, 1350, 600},
    Posto{"cmbPer", 2940, 255, 870, 600},
    Posto{"cmbAttributi", 120, 1200, 870, 600},
    Posto{"cmdModifica0", 1110, 1185, 630, 630, {}, "Modifica", "icona:modifica"},
    Posto{"cmdInsertNote", 1800, 1185, 630, 630, {}, "Inserisci nota", "icona:inserisci"},
    Posto{"cmdCancNota", 2490, 1185, 630, 630, {}, "Cancella nota", "icona:cancella"},
    Posto{"cmdNpp", 3180, 1185, 630, 630, {}, "Chiudi PassoPasso/Modifica", "icona:fatto"},
    Posto{"frBookMark", 10050, 5730, 2850, 2040, {}, {}, "pannello"},
    Posto{"lstBookMark", 90, 90, 2670, 1350, {}, {}, "piccolo"},
    Posto{"cmdPlayBm", 90, 1500, 345, 450, {}, "Esegui", "icona:suona"},
    Posto{"cmdModBm", 480, 1500, 345, 450, {}, "Modifica inizio/fine riferimento", "icona:tratto"},
    Posto{"cmdRenameBm",
          870,
          1500,
          345,
          450,
          {},
          "Rinomina riferimento selezionato",
          "icona:rinomina"},
    Posto{"cmdMbUd0", 1260, 1500, 345, 450, {}, "Sposta su", "icona:su"},
    Posto{"cmdMbUd1", 1635, 1500, 345, 450, {}, "Sposta giù", "icona:giu"},
    Posto{"cmdDelBm", 2025, 1500, 345, 450, "Elimina", {}, "icona:togli"},
    Posto{"cmdHideBm", 2415, 1500, 345, 450, "×", {}, "titolo"},
};

constexpr std::array postiAttrezzi = {
    Posto{"Shape7", 13020, 5730, 4500, 3600, {}, {}, "pannello"},
    Posto{"cmdSimbNote0", 13140, 5850, 555, 720, {}, {}, "figura:0"},
    Posto{"cmdSimbNote1", 13755, 5850, 555, 720, {}, {}, "figura:1"},
    Posto{"cmdSimbNote2", 14370, 5850, 555, 720, {}, {}, "figura:2"},
    Posto{"cmdSimbNote3", 14985, 5850, 555, 720, {}, {}, "figura:3"},
    Posto{"cmdSimbNote4", 15600, 5850, 555, 720, {}, {}, "figura:4"},
    Posto{"cmdSimbNote5", 16215, 5850, 555, 720, {}, {}, "figura:5"},
    Posto{"cmdSimbNote6", 16830, 5850, 555, 720, {}, {}, "figura:6"},
    Posto{"cmdAttrNota0", 13140, 6630, 555, 720, {}, {}, "figura:punto"},
    Posto{"cmdAttrNota1", 13755, 6630, 555, 720, {}, "Staccato", "figura:staccato"},
    Posto{"cmdAttrNota2", 14370, 6630, 555, 720, {}, {}, "figura:legatura"},
    Posto{"cmdAttrNota3", 14985, 6630, 555, 720, {}, {}, "figura:terzina"},
    Posto{"cmdAttrNota4", 15600, 6630, 555, 720, {}, "Appoggiato", "figura:appoggiato"},
    Posto{"cmdAttrNota5", 16215, 6630, 555, 720, {}, "Accentato", "figura:accento"},
    Posto{"lblAt", 16830, 6630, 555, 720, " >", {}, "figura:maggiore consiglio:cmdAttrNota5"},
    Posto{"ckConsAtt", 13170, 7440, 4200, 330, {}, {}, "nome:ckConsAttLb"},
    Posto{"ckConsAttLb", 13530, 7440, 3840, 330, "Mantieni l'attributo", {}, "mezzo"},
    Posto{"lblActNote",
          13140,
          7860,
          1140,
          660,
          {},
          {},
          "riquadro nome centro mezzo letto annunciato"},
    Posto{"cmdInsNota", 14370, 7860, 1620, 660, "Nota", {}, "principale"},
    Posto{"cmdInsPausa", 16080, 7860, 1320, 660, "Pausa", {}, "principale"},
    Posto{"Label4", 13140, 8640, 540, 540, "x", {}, "pulsante titolo consiglio:PausaPer"},
    Posto{"PausaPer", 13740, 8640, 750, 540, "1", {}, "centro"},
    Posto{"cmdCanc", 14700, 8640, 1440, 540, "Canc."},
    Posto{"cmdReset", 16800, 8640, 600, 540, {}, "Cancella l'intera sequenza", "icona:cestino"},
    Posto{"Fr2", 13020, 5730, 4500, 3600, {}, {}, "pannello"},
    Posto{"cmbDrive", 120, 105, 2820, 450, {}, {}, "percorso nome:cmdMkdir"},
    Posto{"cmdD", 3030, 105, 1350, 450, " Demo files "},
    Posto{"lblPercorso", 150, 600, 4230, 300, {}, {}, "piccolo mezzo percorso letto annunciato"},
    Posto{"List1", 120, 930, 4260, 2040, {}, {}, "nome:mnuApri"},
    Posto{"cmdEseguiFile", 120, 3060, 900, 450, "Play", {}, "principale"},
    Posto{"cmdRename", 1080, 3060, 480, 450, {}, {}, "icona:rinomina"},
    Posto{"cmdDelete", 1620, 3060, 1080, 450},
    Posto{"cmdMkdir", 2760, 3060, 1080, 450},
    Posto{"cmdChiudi", 3900, 3060, 480, 450, "×", {}, "titolo"},
};

}  // namespace

void DisponiSchede(frmComposer& f) {
    Disponi(f, postiSchede.data(), postiSchede.size());
    Disponi(f, postiAttrezzi.data(), postiAttrezzi.size());
    // It lights as the other signs do; while it is out its ground isn't painted.
    f.inserimento.lblAt.BackColor = f.inserimento.ColoreAcceso;
}

}  // namespace corvana
