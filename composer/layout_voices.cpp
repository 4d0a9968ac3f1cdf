// The four voices, a row each: name, instrument, note names, range, volume, solo.
#include <array>

#include "composer/composer.h"
#include "composer/composer_places.h"

namespace corvana {

namespace {

constexpr std::array postiVoci = {
    Posto{"Shape1", 540, 1800, 16050, 900, {}, {}, "riga"},
    Posto{"VoceAttiva0", 660, 1920, 1080, 660, "S", {}, "voce"},
    Posto{"lblInstr0", 1890, 1950, 2550, 600, {}, {}, "riquadro centro mezzo"},
    Posto{"LblNoteString", 4560, 1950, 5280, 600, {}, {}, "riquadro titolo centro mezzo letto"},
    Posto{"lblid0", 10020, 2010, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNini", 10455, 2010, 690, 480, {}, {}, "centro"},
    Posto{"lblid1", 11190, 2010, 390, 480, ">", {}, "pulsante"},
    Posto{"lblid2", 11760, 2010, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNfine", 12195, 2010, 690, 480, {}, {}, "centro"},
    Posto{"lblid3", 12930, 2010, 390, 480, ">", {}, "pulsante"},
    Posto{"VolS", 13530, 2010, 1410, 480, {}, {}, "consiglio:lblVolS"},
    Posto{"lblVolS", 15000, 2010, 600, 480, "100", {}, "pulsante"},
    Posto{"lblMuteC0", 15690, 2010, 810, 480, " ^ -- _ ", {}, "pulsante passi consiglio:lblVolS"},
    Posto{"Shape2", 540, 2760, 16050, 900, {}, {}, "riga"},
    Posto{"VoceAttiva1", 660, 2880, 1080, 660, "C", {}, "voce"},
    Posto{"lblInstr1", 1890, 2910, 2550, 600, {}, {}, "riquadro centro mezzo"},
    Posto{"LblNoteStringC", 4560, 2910, 5280, 600, {}, {}, "riquadro titolo centro mezzo letto"},
    Posto{"lblid4", 10020, 2970, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNiniC", 10455, 2970, 690, 480, {}, {}, "centro"},
    Posto{"lblid5", 11190, 2970, 390, 480, ">", {}, "pulsante"},
    Posto{"lblid6", 11760, 2970, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNfineC", 12195, 2970, 690, 480, {}, {}, "centro"},
    Posto{"lblid7", 12930, 2970, 390, 480, ">", {}, "pulsante"},
    Posto{"VolC", 13530, 2970, 1410, 480, {}, {}, "consiglio:lblVolC"},
    Posto{"lblVolC", 15000, 2970, 600, 480, "100", {}, "pulsante"},
    Posto{"lblMuteC1", 15690, 2970, 810, 480, " ^ -- _ ", {}, "pulsante passi consiglio:lblVolC"},
    Posto{"Shape3", 540, 3720, 16050, 900, {}, {}, "riga"},
    Posto{"VoceAttiva2", 660, 3840, 1080, 660, "T", {}, "voce"},
    Posto{"lblInstr2", 1890, 3870, 2550, 600, {}, {}, "riquadro centro mezzo"},
    Posto{"LblNoteStringT", 4560, 3870, 5280, 600, {}, {}, "riquadro titolo centro mezzo letto"},
    Posto{"lblid8", 10020, 3930, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNiniT", 10455, 3930, 690, 480, {}, {}, "centro"},
    Posto{"lblid9", 11190, 3930, 390, 480, ">", {}, "pulsante"},
    Posto{"lblid10", 11760, 3930, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNfineT", 12195, 3930, 690, 480, {}, {}, "centro"},
    Posto{"lblid11", 12930, 3930, 390, 480, ">", {}, "pulsante"},
    Posto{"VolT", 13530, 3930, 1410, 480, {}, {}, "consiglio:lblVolT"},
    Posto{"lblVolT", 15000, 3930, 600, 480, "100", {}, "pulsante"},
    Posto{"lblMuteC2", 15690, 3930, 810, 480, " ^ -- _ ", {}, "pulsante passi consiglio:lblVolT"},
    Posto{"Shape4", 540, 4680, 16050, 900, {}, {}, "riga"},
    Posto{"VoceAttiva3", 660, 4800, 1080, 660, "B", {}, "voce"},
    Posto{"lblInstr3", 1890, 4830, 2550, 600, {}, {}, "riquadro centro mezzo"},
    Posto{"LblNoteStringB", 4560, 4830, 5280, 600, {}, {}, "riquadro titolo centro mezzo letto"},
    Posto{"lblid12", 10020, 4890, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNiniB", 10455, 4890, 690, 480, {}, {}, "centro"},
    Posto{"lblid13", 11190, 4890, 390, 480, ">", {}, "pulsante"},
    Posto{"lblid14", 11760, 4890, 390, 480, "<", {}, "pulsante"},
    Posto{"lblNfineB", 12195, 4890, 690, 480, {}, {}, "centro"},
    Posto{"lblid15", 12930, 4890, 390, 480, ">", {}, "pulsante"},
    Posto{"VolB", 13530, 4890, 1410, 480, {}, {}, "consiglio:lblVolB"},
    Posto{"lblVolB", 15000, 4890, 600, 480, "100", {}, "pulsante"},
    Posto{"lblMuteC3", 15690, 4890, 810, 480, " ^ -- _ ", {}, "pulsante passi consiglio:lblVolB"},
};

}  // namespace

void DisponiVoci(frmComposer& f) {
    Disponi(f, postiVoci.data(), postiVoci.size());
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        f.sfondi.righe.at(voce)->BackColor = coloriVoci.at(voce);
}

}  // namespace corvana
