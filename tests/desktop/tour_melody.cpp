// The melody window as the tour shows it: notes are entered, played, saved, changed, mixed.
#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/desktop/tour.h"

namespace corvana::prova {

namespace {

/// The user's own copies of the melodies that come with the program.
const std::string demo = "/casa/Documenti/Corvana/Melodie/Demo/";
const std::string serata = demo + "Serata/";

void Entra(Giro& g, const TestiVoce& voce) {
    for (const GestoMouse& gesto : GestiDi(voce))
        g.Fai(gesto);
}

void FinestraVuota(Giro& g) {
    g.ApriComposer();
    EXPECT_EQ(g.Bottone("cmdPlay"), "Play");
    EXPECT_EQ(g.Colore("VoceAttiva0"), verde);
    EXPECT_FALSE(g.Vede("lblModificato"));
    for (const char* striscia :
         {"LblNoteString", "LblNoteStringC", "LblNoteStringT", "LblNoteStringB"})
        EXPECT_EQ(g.Dice(striscia), "");
    for (const char* strumento : {"lblInstr0", "lblInstr1", "lblInstr2", "lblInstr3"})
        EXPECT_TRUE(g.Dice(strumento).starts_with("16-")) << g.Dice(strumento);
    EXPECT_EQ(g.Dice("lblActNote"), "Do");
}

void DueVociSuonano(Giro& g) {
    Entra(g, {"60;62;64;65;", "1;1;1;1;", "n;n;n;n;"});
    g.Tocca("VoceAttiva1");
    Entra(g, {"48;50;", "2;2;", "n;n;"});
    EXPECT_EQ(g.Dice("LblNoteString"), "Do;Re;Mi;Fa;");
    EXPECT_EQ(g.Dice("LblNoteStringC"), "Do;Re;");
    g.Tocca("VoceAttiva0");
    g.Ascolta();
    g.Tocca("cmdPlay");
    EXPECT_EQ(g.Note(1), (Interi{60, 62, 64, 65}));
    EXPECT_EQ(g.Note(2), (Interi{48, 50}));
    EXPECT_EQ(g.Istanti(2).at(1), g.Istanti(1).at(2));
    EXPECT_EQ(g.Bottone("cmdPlay"), "Play");
}

void BranoRipetutoERitardato(Giro& g) {
    g.ScriviIn("lblNini", "3");
    g.Ascolta();
    g.Tocca("cmdPlay");
    EXPECT_EQ(g.Note(1), (Interi{64, 65}));
    g.Ascolta();
    g.Tocca("chekLoop");
    g.FermaDopo(30);
    g.Tocca("cmdPlay");
    EXPECT_EQ(g.Bottone("cmdPlay"), "Stop");
    EXPECT_GT(g.Note(1).size(), 8U);
    g.Tocca("cmdPlay");
    g.Prosegui();
    EXPECT_EQ(g.Bottone("cmdPlay"), "Play");
    g.Tocca("chekLoop");
    g.Ascolta();
    const double prima = g.Ora();
    g.Scegli("mnuPlayRitardo");
    EXPECT_GE(g.Istanti(1).at(0), prima + 5);
}

/// A rest, a dotted note, a tie, a triplet, marks.
void NoteDiOgniSpecie(Giro& g) {
    g.Tocca("cmdReset");
    EXPECT_EQ(g.Dice("LblNoteString"), "");
    g.Ascolta();
    g.Tocca("cmdSimbNote1");
    g.ToccaTasto(24);
    g.Tocca("cmdInsNota");
    g.Tocca("cmdSimbNote2");
    g.Tocca("cmdAttrNota2");
    g.Tocca("cmdInsNota");
    EXPECT_EQ(g.Note(1), (Interi{60, 60, 60}));
    g.Tocca("cmdSimbNote3");
    g.Tocca("cmdInsPausa");
    EXPECT_EQ(g.Note(10), Interi{81});
    g.Tocca("cmdAttrNota0");
    g.ToccaDueVolte("lb26", g.NelTasto("lb26"));
    g.Tocca("cmdAttrNota1");
    g.ToccaTasto(28);
    g.Tocca("cmdInsNota");
    g.Tocca("cmdAttrNota3");
    for (const char* tasto : {"lb29", "lb31", "lb33"})
        g.ToccaDueVolte(tasto, g.NelTasto(tasto));
    EXPECT_EQ(g.Dice("LblNoteString"), "Do;P;Re;Mi;Fa;Sol;La;");
    EXPECT_TRUE(g.Vede("lblModificato"));
}

void SalvataERiletta(Giro& g) {
    g.Tocca("ToolButton3");
    g.Tocca("cmdD");
    g.SalvaConNome("giro");
    EXPECT_FALSE(g.Vede("lblModificato"));
    const std::string& byte = g.casa.casa.contenuti.at(demo + "giro.mel");
    const std::string terzo = "0.333333333333333;";
    EXPECT_TRUE(byte.starts_with("60;00;62;64;65;67;69;\r\n3;0.5;0.75;0.5;" + terzo + terzo +
                                 terzo + "\r\nn;p;n;s;a;n;n;\r\n"))
        << byte;
    g.Tocca("cmdReset");
    g.Ascolta();
    g.Apri("giro");
    EXPECT_EQ(g.Note(1), (Interi{60, 62, 64, 65, 67, 69}));
    // The accented one is louder.
    EXPECT_GT(g.Forze(1).at(3), g.Forze(1).at(0));
    EXPECT_EQ(g.Dice("lblNome"), "giro");
    g.SalvaConNome("copia");
    EXPECT_EQ(g.casa.casa.contenuti.at(demo + "copia.mel"), byte);
}

void CartelleEFile(Giro& g) {
    g.Tocca("cmdMkdir");
    g.Rispondi("Serata");
    g.ToccaRigaDueVolte("» Serata");
    EXPECT_EQ(g.Righe(), std::vector<std::string>{"» .."});
    EXPECT_GE(g.Di("cmbDrive").Come<QComboBox>().findText("/media/penna/"), 0);
    g.SalvaConNome("prima");
    g.SalvaConNome("seconda");
    g.ToccaRiga("prima");
    g.Tocca("cmdRename");
    g.Rispondi("terza");
    g.ToccaRiga("seconda");
    g.Tocca("cmdDelete");
    g.Decidi(false);
    EXPECT_EQ(g.Righe(), (std::vector<std::string>{"» ..", "seconda", "terza"}));
    g.Tocca("cmdDelete");
    g.Decidi(true);
    EXPECT_EQ(g.Righe(), (std::vector<std::string>{"» ..", "terza"}));
    EXPECT_TRUE(g.casa.casa.contenuti.contains(serata + "terza.mel"));
    EXPECT_FALSE(g.casa.casa.contenuti.contains(serata + "seconda.mel"));
}

void DomandaAllaChiusura(Giro& g) {
    g.Tocca("cmdChiudi");
    g.Tocca("cmdInsNota");
    g.Tocca("cmdCm");
    g.Decidi(false);
    EXPECT_TRUE(g.Vede("lblModificato"));
    g.Tocca("cmdCm");
    g.Decidi(true);
    g.Attendi("CorvanaMainF");
    EXPECT_NE(g.casa.casa.contenuti.at(CasaDiMemoria::impostazioni).find("Serata"),
              std::string::npos);
    g.ApriComposer();
    EXPECT_EQ(g.Dice("LblNoteString"), "");
    g.Apri("terza");
    g.Tocca("cmdChiudi");
}

/// Changed, put in, taken out; the last one dropped, and all of them.
void PassoPasso(Giro& g) {
    g.Tocca("cmdReset");
    Entra(g, {"60;62;64;", "1;1;1;", "n;n;n;"});
    g.Ascolta();
    g.Tocca("lblStep1");
    EXPECT_EQ(g.Note(), Interi{60});
    EXPECT_EQ(g.Dice("lblActualNote"), "Do");
    EXPECT_EQ(g.Dice("lblNe"), "1");
    g.ToccaTasto(31);
    g.Tocca("cmdModifica0");
    EXPECT_EQ(g.Dice("LblNoteString"), "Sol;Re;Mi;");
    g.Tocca("lblStep1");
    g.ToccaTasto(33);
    g.Tocca("cmdInsertNote");
    EXPECT_EQ(g.Dice("LblNoteString"), "Sol;Re;La;Mi;");
    g.Tocca("lblStep0");
    g.Tocca("lblStep0");
    g.Tocca("cmdCancNota");
    EXPECT_EQ(g.Dice("LblNoteString").size(), std::string("Re;La;Mi;").size());
    g.Tocca("cmdNpp");
    EXPECT_FALSE(g.Vede("frmModifica"));
    const std::string prima = g.Dice("LblNoteString");
    g.Tocca("cmdCanc");
    EXPECT_TRUE(prima.starts_with(g.Dice("LblNoteString")));
    EXPECT_LT(g.Dice("LblNoteString").size(), prima.size());
    g.Tocca("cmdReset");
    EXPECT_EQ(g.Dice("LblNoteString"), "");
}

/// While four voices play, one comes forward, then alone, then all again.
void QuattroVociMescolate(Giro& g) {
    g.Tocca("ToolButton3");
    g.Tocca("cmdD");
    g.Tocca("cmdChiudi");
    g.Apri("Amazing grace");
    g.Tocca("cmdChiudi");
    g.Tocca("VoceAttiva1");
    EXPECT_EQ(g.Colore("VoceAttiva1"), verde);
    g.Ascolta();
    g.ScegliStrumento(40);
    EXPECT_TRUE(g.Dice("lblInstr1").starts_with("40-")) << g.Dice("lblInstr1");
    EXPECT_EQ(g.Strumenti().back(), (std::pair{2, 40}));
    g.FermaDopo(2);
    g.Tocca("cmdPlay");
    g.Ascolta();
    g.Tocca("lblMuteC1");
    g.LasciaPassare(4);
    EXPECT_EQ(g.Dice("lblVolB"), "40");
    EXPECT_LT(g.Forze(1).back(), g.Forze(2).back());
    g.Ascolta();
    g.Tocca("lblMuteC1");
    g.LasciaPassare(4);
    EXPECT_TRUE(g.Forze(1).empty());
    EXPECT_FALSE(g.Forze(2).empty());
    g.Ascolta();
    g.Tocca("lblMuteC1");
    g.LasciaPassare(4);
    EXPECT_EQ(g.Dice("lblVolB"), "100");
    EXPECT_FALSE(g.Forze(1).empty());
    g.Tocca("cmdPlay");
    g.Prosegui();
    g.Scegli("mnuOrgano");
    for (const char* strumento : {"lblInstr0", "lblInstr1", "lblInstr2", "lblInstr3"})
        EXPECT_TRUE(g.Dice(strumento).starts_with("16-")) << g.Dice(strumento);
    g.Scegli("mnuChiudi");
    g.Decidi(true);
    g.Attendi("CorvanaMainF");
}

}  // namespace

std::vector<Tappa> TappeDellaMelodia() {
    return {{"the melody window as it opens", FinestraVuota},
            {"two voices play together", DueVociSuonano},
            {"a part, again and again, and after a while", BranoRipetutoERitardato},
            {"notes of every kind", NoteDiOgniSpecie},
            {"saved and read again", SalvataERiletta},
            {"folders and files", CartelleEFile},
            {"the question at the closing", DomandaAllaChiusura},
            {"note by note", PassoPasso},
            {"four voices mixed", QuattroVociMescolate}};
}

}  // namespace corvana::prova
