#include "trainer/main_rows.h"

#include <array>

namespace corvana {

namespace {

using T = TestiLingua;

constexpr std::array bersagliPrincipali = {
    Testo(0, "CorvanaMainF"),
    Testo(1, "cmdEsci"),
    Testo(2, "Esci"),
    Testo(3, "es"),
    Testo(4, "mnuCorvana"),
    Testo(5, "mnuRicTasto"),
    Testo(6, "Intonazione"),
    Consiglio(6, "ToolButton1"),
    Testo(7, "mnuRint"),
    Testo(8, "mnuRac"),
    Testo(9, "mnuRicTo"),
    Testo(10, "mnuComposer"),
    Consiglio(10, "ToolButton2"),
    Testo(11, "mnuPromemoria"),
    Consiglio(11, "ToolButton4"),
    // The list's separators have no text of their own in the file.
    Riga(12, "difficolt", 0),
    Riga(13, "difficolt", 1),
    Riga(14, "difficolt", 2),
    Riga(15, "difficolt", 3),
    Riga(16, "difficolt", 5),
    Riga(17, "difficolt", 6),
    Riga(18, "difficolt", 7),
    Riga(19, "difficolt", 8),
    Riga(20, "difficolt", 10),
    Consiglio(21, "difficolt"),
    Testo(22, "Intervallo"),
    Consiglio(23, "Regolo"),
    Consiglio(24, "lblMn"),
    Consiglio(25, "conta"),
    Consiglio(26, "er"),
    Stringa(28, &T::TxtRisposteEsatte),
    Stringa(29, &T::TxtRisposteErrate),
    Stringa(30, &T::TxtRisposteDate),
    Stringa(31, &T::TxtPercentuale),
    Testo(31, "PercEs"),
    Consiglio(31, "PercEs"),
    Stringa(32, &T::TxtTempoImpiegato),
    Stringa(33, &T::TxtNoteMostrate),
    Stringa(34, &T::TxtVelocita),
    Testo(34, "Velocità"),
    Consiglio(34, "Slider1"),
    Testo(35, "lblAuto1"),
    Consiglio(36, "lblAuto2"),
    Testo(37, "Risorse"),
    Testo(38, "mnuMetro"),
    Consiglio(38, "ToolButton3"),
    Testo(39, "Opzioni"),
    Testo(40, "Suono1"),
    Testo(41, "Suono2"),
    Testo(42, "mnuOrgano"),
    Testo(43, "mnuPiano"),
    Testo(44, "mnuNormale"),
    Testo(45, "mnuAutomatico"),
    Consiglio(45, "ToolButton6"),
    Testo(46, "mnuLingua"),
    Testo(47, "mnuIt"),
    Testo(48, "mnuEn"),
    Testo(49, "mnuAiuto"),
    Consiglio(49, "ToolButton7"),
    Testo(50, "mnuVersione"),
    Testo(51, "frmMetroC"),
    Consiglio(52, "lblCloseMetro"),
    Consiglio(53, "lblTs"),
    Stringa(54, &T::TipX1),
    Stringa(55, &T::TipX2),
    Consiglio(56, "cmdSetup"),
    Stringa(57, &T::msgSenzaSuono),
    Consiglio(78, "ToolButton5"),
    Testo(167, "mnuSs"),
    Stringa(380, &T::TipContralto),
    Stringa(381, &T::TipTenore),
    Stringa(382, &T::TipBasso),
    // The desktop's.
    Stringa(384, &T::parSi),
    Stringa(385, &T::parNo),
    Stringa(386, &T::parOk),
    Stringa(387, &T::parAnnulla),
    Stringa(388, &T::parAnnullaModifica),
    Stringa(389, &T::parRipeti),
    Stringa(390, &T::parTaglia),
    Stringa(391, &T::parCopia),
    Stringa(392, &T::parCopiaIndirizzo),
    Stringa(393, &T::parIncolla),
    Stringa(394, &T::parElimina),
    Stringa(395, &T::parSelezionaTutto),
    // For those who don't see the screen.
    Stringa(399, &T::TxtTastiera),
    Stringa(400, &T::TxtPentagramma),
    Stringa(401, &T::LuogoChiaveSol),
    Stringa(402, &T::LuogoChiaveFa),
    Stringa(403, &T::LuogoLinea),
    Stringa(404, &T::LuogoSpazio),
    Stringa(405, &T::LuogoSopra),
    Stringa(406, &T::LuogoSotto),
    Stringa(407, &T::LuogoTaglio),
    Stringa(408, &T::LuogoOltreTaglio),
    // The help window's.
    Stringa(409, &T::parAiuto),
    Stringa(410, &T::parIndietro),
    Stringa(411, &T::parAvanti),
    Stringa(412, &T::parIndice),
    Stringa(413, &T::parAiutoManca),
};

}  // namespace

Bersagli BersagliPrincipali() {
    return bersagliPrincipali;
}

}  // namespace corvana
