#include <array>

#include "utilities/utility_rows.h"

namespace corvana {

namespace {

constexpr std::array bersagliOptions = {
    Testo(83, "frmOptions"),
    Testo(84, "cmdOK"),
    Testo(85, "cmdSel0"),
    Testo(86, "cmdSel1"),
    Testo(87, "cmdSel2"),
    Testo(88, "Frame11"),
    Testo(89, "lblnn0"),
    Testo(90, "lblnn1"),
    Testo(91, "lblnn2"),
    Testo(92, "lblnn3"),
    Testo(93, "lblnn4"),
    Testo(94, "lblnn5"),
    Testo(95, "lblnn6"),
    Testo(96, "lblModo"),
    Testo(97, "lblMa"),
    Testo(98, "lblMi"),
    Testo(99, "lblNa0"),
    Testo(100, "lblNa1"),
    Testo(101, "lblNa2"),
    Testo(102, "lblNa3"),
    Testo(103, "lblNa4"),
    Testo(104, "lblNa5"),
    Testo(105, "lblNa6"),
    Testo(106, "lblNa7"),
    Testo(107, "lblNa8"),
    Testo(108, "lblNa9"),
    Testo(109, "lblNa10"),
    Testo(110, "lblNa11"),
    Testo(111, "lblNa12"),
    Testo(112, "lblNa13"),
    Testo(113, "lblNa14"),
    Testo(114, "Gradi"),
    Testo(115, "Label350"),
    Testo(116, "Label351"),
    Testo(117, "Label352"),
    Testo(118, "Label353"),
    Testo(119, "Label354"),
    Testo(120, "Label355"),
    Testo(121, "Label356"),
    Testo(122, "Frame12"),
    Consiglio(123, "Ton16"),
    Testo(124, "Frame13"),
    Testo(125, "lblInter0"),
    Testo(126, "lblInter1"),
    Testo(127, "lblInter2"),
    Testo(128, "lblInter3"),
    // One name of the twenty-five, number 19, reads the same in every language and has no row.
    Testo(129, "Label40"),
    Testo(130, "Label41"),
    Testo(131, "Label42"),
    Testo(132, "Label43"),
    Testo(133, "Label44"),
    Testo(134, "Label45"),
    Testo(135, "Label46"),
    Testo(136, "Label47"),
    Testo(137, "Label48"),
    Testo(138, "Label49"),
    Testo(139, "Label410"),
    Testo(140, "Label411"),
    Testo(141, "Label412"),
    Testo(142, "Label413"),
    Testo(144, "Label414"),
    Testo(145, "Label415"),
    Testo(146, "Label416"),
    Testo(147, "Label417"),
    Testo(148, "Label418"),
    Testo(149, "Label420"),
    Testo(150, "Label421"),
    Testo(151, "Label422"),
    Testo(152, "Label423"),
    Testo(153, "Label424"),
    Testo(154, "Label34"),
    Testo(155, "Label32"),
    Testo(156, "Label33"),
};

}  // namespace

Bersagli BersagliOptions() {
    return bersagliOptions;
}

}  // namespace corvana
