#include "tests/desktop/visit.h"

#include <QMainWindow>

namespace corvana::prova {

void CasaDiMemoria::Prepara(Macchina& macchina) {
    DaiCasa(casa, macchina, QStringLiteral(CORVANA_DATA));
    macchina.percorsoImpostazioni = impostazioni;
    macchina.percorsoBlocco = Blocco();
    macchina.uscite = [this](std::function<double()> istante) {
        auto fatta = std::make_unique<Registratore>(std::move(istante));
        suonato = fatta.get();
        return fatta;
    };
}

Visita::Visita() : PalcoAMano({}, [this](Macchina& macchina) { Prepara(macchina); }) {
    Calma();
}

void Visita::Guarda() {
    if (guarda) guarda(scrivania.Davanti()->Finestra().objectName().toStdString());
}

void Visita::Tutto() {
    Principale();
    Piccole();
    Orecchio();
    Composer();
    Promemoria();
}

Lette Visita::LeggiTutto() {
    Lette lette;
    guarda = [&](const std::string& finestra) {
        for (const auto& [posto, testo] : LeggiFinestra(scrivania))
            lette[finestra][posto].insert(testo);
    };
    Tutto();
    return lette;
}

void Visita::Principale() {
    Guarda();
    Scegli("mnuAutomatico");
    Guarda();
    Scegli("mnuNormale");
    Scegli("mnuMetro");
    Guarda();
    Rigira("lblX12", 2);
    Tocca("lblCloseMetro");
}

void Visita::Sopra(const std::function<void()>& apri, const std::string& finestra,
                   const std::string& sotto) {
    apri();
    Attendi(finestra);
    Guarda();
    TornaA(sotto);
}

void Visita::Piccole() {
    for (const auto& [voce, finestra] : {std::pair{"mnuVersione", "frmAbout"},
                                         {"mnuSs", "frmStrum"},
                                         {"mnuMidiTest", "frmMidiTest"}})
        Sopra([this, v = voce] { Scegli(v); }, finestra, "CorvanaMainF");
    Scegli("mnuMetro");
    Sopra([this] { Tocca("cmdSetup"); }, "frmConfMetro", "CorvanaMainF");
    Tocca("lblCloseMetro");
}

void Visita::ToccaTasto(const std::string& nome) {
    Tocca(nome, QPoint(Di(nome).width() / 2, Di(nome).height() * 9 / 10));
}

void Visita::Rigira(const std::string& nome, int volte) {
    for (int volta = 0; volta < volte; ++volta) {
        Tocca(nome);
        Guarda();
    }
}

void Visita::Prova(const std::string& start, const std::string& aiuto) {
    Tocca(start);
    if (!aiuto.empty()) Tocca(aiuto);
    Guarda();
    if (!aiuto.empty()) Tocca(aiuto);
    Tocca(start);
    Guarda();
}

void Visita::Orecchio() {
    Scegli("mnuRac");
    Attendi("frmInto");
    Guarda();
    Rigira("lblVt", 2);
    ToccaTasto("lb12");
    ToccaTasto("lb36");
    Prova("ComdRacStart", {});
    Scegli("mnuNotA");
    Guarda();
    Rigira("lblMod", 2);
    Rigira("lblSolotb", 2);
    Prova("IntoStart", "lblIntoSh");
    Scegli("mnuRint");
    Rigira("lblFv", 2);
    Rigira("lblModo", 4);
    Prova("CmdIntStart", "lblIntSh");
    Scegli("mnuRicTasto");
    Rigira("lblSceltaTasti", 2);
    Prova("cmdRicTasto", {});
    Scegli("mnuRicTo");
    Prova("cmdT", "lblTsh");
    Sopra([this] { Scegli("mnuSs"); }, "frmStrum", "frmInto");
    TornaA("CorvanaMainF");
}

void Visita::Composer() {
    Scegli("mnuComposer");
    Attendi("frmComposer");
    Guarda();
    Tocca("lblTs");
    Guarda();
    Tocca("lblTs");
    Tocca("cmdInsNota");
    Tocca("lblStep1");
    Guarda();
    Tocca("cmdAddBm");
    Rispondi("uno");
    Guarda();
    Sopra([this] { Tocca("pictCi"); }, "frmStrum", "frmComposer");
    Scegli("mnuApri");
    Guarda();
    Sopra([this] { Scegli("mnuCopyFromA"); }, "frmCopyFromA", "frmComposer");
    scrivania.Davanti()->Finestra().close();
    Calma();
    Decidi(true);
    Attendi("CorvanaMainF");
}

void Visita::Promemoria() {
    Scegli("mnuPromemoria");
    Attendi("frmOptions");
    Guarda();
    for (const char* bottone : {"cmdSel1", "Ton16", "cmdSel2"}) {
        Tocca(bottone);
        Guarda();
    }
    TornaA("CorvanaMainF");
}

}  // namespace corvana::prova
