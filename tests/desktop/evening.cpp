#include "tests/desktop/evening.h"

#include <QAction>
#include <filesystem>

namespace corvana::prova {

CasaDellaSera::CasaDellaSera(const std::string& cartella)
    : melodie(cartella + "/melodie/"),
      penna(cartella + "/penna/"),
      nonSalvata(cartella + "/stato/non-salvata") {
    for (const std::string& una : {melodie, penna})
        std::filesystem::create_directories(una);
    for (const char* nome : {"uno", "due", "tre", "quattro", "cinque"})
        dischi.ScriviAtomico(penna + nome + ".mel", std::string("not read, only copied: ") + nome);
    dischi.supporti = {penna};
}

void CasaDellaSera::Prepara(Macchina& macchina) {
    macchina.file = &dischi;
    macchina.percorsoRecupero = nonSalvata;
}

Sera::Sera(const std::string& cartella)
    : CasaDellaSera(cartella), PalcoMelodia(melodie, [this](Macchina& m) { Prepara(m); }) {}

void Sera::FaiCartella() {
    Tocca("ToolButton3");
    Tocca("cmdMkdir");
    Rispondi("Serata");
    ToccaRigaDueVolte("» Serata");
    Tocca("cmdChiudi");
}

void Sera::ScriviMelodia() {
    for (const GestoMouse& gesto : GestiDi({"60;62;64;65;", "1;2;1;4;", "n;s;n;n;"}))
        Fai(gesto);
    ScriviIn("lblNini", "2");
    ScriviIn("lblNfine", "3");
    Tocca("cmdAddBm");
    Rispondi("ritornello");
}

void Sera::SalvaERinomina() {
    SalvaConNome("prima");
    SalvaConNome("seconda");
    ToccaRiga("prima");
    Tocca("cmdRename");
    Rispondi("terza");
}

void Sera::Allunga() {
    ScriviIn("lblNini", "1");
    ScriviIn("lblNfine", "2");
    Tocca("cmdPaste");
    Tocca("lblIncolla");
    Tocca("cmdPaste");
    Tocca("cmdPaste");
    Tocca("ToolButton4");
}

void Sera::Elimina() {
    SalvaConNome("quarta");
    ToccaRiga("quarta");
    Tocca("cmdDelete");
    Decidi(false);
    Tocca("cmdDelete");
    Decidi(true);
}

void Sera::Importa() {
    TrovaVoce(scrivania, QStringLiteral("mnuCopyFromA")).trigger();
    AspettaFinestra(scrivania, QStringLiteral("frmCopyFromA"));
    Calma();
    ToccaRiga("cinque");
    ToccaRiga("due", Qt::ControlModifier);
    ToccaRiga("uno", Qt::ControlModifier);
    Tocca("cmdCopia");
    Tocca("cmdChiudi");
    AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
    Calma();
}

void Sera::ChiudiSenzaSalvare() {
    Tocca("cmdChiudi");
    Tocca("cmdInsNota");
    Tocca("cmdCm");
    Decidi(false);
    Tocca("cmdCm");
    Decidi(true);
    AspettaFinestra(scrivania, QStringLiteral("CorvanaMainF"));
    Calma();
}

void Sera::Intera() {
    FaiCartella();
    ScriviMelodia();
    SalvaERinomina();
    Allunga();
    Elimina();
    Importa();
    ChiudiSenzaSalvare();
    ApriComposer();
    Tocca("ToolButton3");
    ToccaRigaDueVolte("seconda");
}

}  // namespace corvana::prova
