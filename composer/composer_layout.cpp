// The window as a whole: its menus, its upper edge, the ruler, the play, and the keyboard.
#include "composer/composer_layout.h"

#include <array>

#include "composer/composer.h"
#include "composer/composer_places.h"

namespace corvana {

namespace {

constexpr std::array postiMenu = {
    Posto{"file", 0, 0, 0, 0, "&File"},
    Posto{"mnuApri", 0, 0, 0, 0, "Apri..."},
    Posto{"mnuSalva", 0, 0, 0, 0, "Salva"},
    Posto{"mnuSaveAs", 0, 0, 0, 0, "Salva con nome..."},
    Posto{"mnuSalvaA", 0, 0, 0, 0, "Salva su supporto rimovibile..."},
    Posto{"mnuCopyFromA", 0, 0, 0, 0, "Copia da supporto rimovibile..."},
    Posto{"mnuChiudi", 0, 0, 0, 0, "Chiudi"},
    Posto{"strumento", 0, 0, 0, 0, "&Strumento"},
    Posto{"mnuPiano", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuOrgano", 0, 0, 0, 0, "Organo"},
    Posto{"mnuSs", 0, 0, 0, 0, "Scegli ..."},
    Posto{"mnuOp", 0, 0, 0, 0, "&Opzioni"},
    Posto{"mnuNotLat", 0, 0, 0, 0, "Do,Re,Mi"},
    Posto{"mnuNotAnglo", 0, 0, 0, 0, "C,D,E"},
    Posto{"mnuPlayRitardo", 0, 0, 0, 0, "Play (ritardo 5 Sec.)"},
    Posto{"mnuApriCont", 0, 0, 0, 0, "Apri..."},
    Posto{"mnuSalvaCont", 0, 0, 0, 0, "Salva"},
    Posto{"mnuSaveAsCont", 0, 0, 0, 0, "Salva con nome..."},
    Posto{"mnucSalvaA", 0, 0, 0, 0, "Salva su supporto rimovibile..."},
    Posto{"mnucCopyFromA", 0, 0, 0, 0, "Copia da supporto rimovibile..."},
    Posto{"mnuPianoCont", 0, 0, 0, 0, "Pianoforte"},
    Posto{"mnuOrganoCont", 0, 0, 0, 0, "Organo"},
    Posto{"mnuSsCont", 0, 0, 0, 0, "Scegli ..."},
};

constexpr std::array postiFinestra = {
    Posto{"frmComposer", 0, 0, 17700, 9480, "Composizione melodie e armonie"},
    Posto{"ShToolbar", 180, 150, 120, 540, {}, {}, "tondo nome:file"},
    Posto{"frToolBar", 390, 120, 3150, 600},
    Posto{"ToolButton1", 0, 60, 480, 480, {}, {}, "icona:ritardo"},
    Posto{"ToolButton2", 525, 60, 480, 480, {}, "Scegli ...", "icona:strumenti"},
    Posto{"ToolButton3", 1050, 60, 480, 480, {}, {}, "icona:apri"},
    Posto{"ToolButton4", 1575, 60, 480, 480, {}, {}, "icona:salva"},
    Posto{"ToolButton5", 2100, 60, 480, 480, {}, {}, "icona:salvacome"},
    Posto{"ToolButton6", 2625, 60, 480, 480, {}, "Help", "icona:aiuto"},
    Posto{"lblNome", 3780, 120, 7050, 600, {}, {}, "carta titolo centro mezzo letto annunciato"},
    Posto{"lblModificato", 10950, 180, 480, 480, "*", {}, "icona:modificata"},
    Posto{"pictCi", 13500, 120, 3090, 600, "Scegli ...", "Scegli ...", "scelta forte"},
    Posto{"cmdCm", 16980, 150, 540, 540, "×", {}, "chiudi"},
};

constexpr std::array postiPlay = {
    Posto{"Shape0", 540, 810, 16050, 870, {}, {}, "pannello"},
    Posto{"cmdPlay", 660, 900, 1380, 690, "Play", {}, "principale"},
    Posto{"lblNe", 2190, 900, 825, 300, {}, {}, "riquadro centro mezzo forte letto"},
    Posto{"lblNt", 3135, 900, 825, 300, {}, {}, "riquadro centro mezzo letto"},
    Posto{"Secondo0", 2190, 1230, 180, 180, {}, {}, "tondo"},
    Posto{"Secondo1", 2588, 1230, 180, 180, {}, {}, "tondo"},
    Posto{"Secondo2", 2985, 1230, 180, 180, {}, {}, "tondo"},
    Posto{"Secondo3", 3382, 1230, 180, 180, {}, {}, "tondo"},
    Posto{"Secondo4", 3780, 1230, 180, 180, {}, {}, "tondo"},
    Posto{"lblRigaCur", sinistraRigaCur, 1440, corsaCursore, 150, {}, {}, "corsa"},
    Posto{"Cursore", sinistraRigaCur, 1410, 120, 210, {}, {}, "cursore"},
    Posto{"lblPnn", 4200, 900, 1080, 690, {}, {}, "riquadro nome centro mezzo letto"},
    // The box reaches over its words, so that a click on them ticks it.
    Posto{"chekLoop", 5370, 1080, 1620, 330, {}, {}, "nome:chekLoopLb"},
    Posto{"chekLoopLb", 5730, 1080, 1260, 330, "Ripeti", {}, "mezzo"},
    Posto{"lblIncolla", 7110, 900, 2820, 690, {}, {}, "pulsante riquadro piccolo"},
    Posto{"cmdAddBm", 10020, 975, 1350, 540, "M.R."},
    Posto{"cmdPaste", 11490, 975, 1830, 540, "Incolla",
          "Incolla alla fine da nota inizio a nota fine"},
    Posto{"Label5", 13350, 975, 1380, 540, "Trasponi", {}, "destra mezzo"},
    Posto{"lblIDs0", 14850, 975, 480, 540, "-", {}, "pulsante titolo"},
    Posto{"lblSemitoni", 15390, 975, 540, 540, "0",
          "Clicca per trasporre la melodia per i semitoni indicati", "pulsante titolo"},
    Posto{"lblIDs1", 15990, 975, 480, 540, "+", {}, "pulsante titolo"},
    Posto{"segnoTempo", 16710, 810, 360, 870, {}, {}, "figura:2 nuda"},
    Posto{"Velocità", 17100, 810, 600, 870, {}, {}, "titolo mezzo"},
    Posto{"Slider1", 16830, 1800, 600, 3780, {}, {}, "consiglio:Velocità"},
};

/// The places that movements are measured from.
constexpr std::array postiRegolo = {
    Posto{"Regolo", 75, 945, 360, 3120, {}, {}, "tondo"},
    Posto{"lblCursore", 60, 0, 75, 165},
    Posto{"lblAccidente", 135, 0, 165, 165, "#", {}, "figura:diesis nuda"},
};

constexpr Rettangolo postoTasti{540, 7920, 12360, 1432};
constexpr Colore coloreSecondi = Rgb(242, 184, 75);
/// What waits for a second click.
constexpr Colore coloreAttesa = Rgb(255, 226, 168), inchiostroAttesa = Rgb(43, 40, 36);

}  // namespace

void DisponiComposer(frmComposer& f) {
    Disponi(f, postiMenu.data(), postiMenu.size());
    Disponi(f, postiFinestra.data(), postiFinestra.size());
    Disponi(f, postiPlay.data(), postiPlay.size());
    Disponi(f, postiRegolo.data(), postiRegolo.size());
    DisponiVoci(f);
    DisponiSchede(f);
    f.tasti.tastiera.PonPosto(postoTasti);
    for (Figura& luce : f.play.Secondo)
        luce.BackColor = coloreSecondi;
    f.incolla.lblIncolla.BackColor = coloreAttesa;
    f.incolla.lblIncolla.ForeColor = inchiostroAttesa;
}

}  // namespace corvana
