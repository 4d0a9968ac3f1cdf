#include "eartrainer/into.h"

#include "core/language.h"
#include "eartrainer/into_layout.h"
#include "eartrainer/into_rows.h"

namespace corvana {

namespace {

constexpr std::int32_t pianoforte = 0, organo = 16;
constexpr std::int16_t baseDiPartenza = 48, basePiuAlta = 60, basePiuBassa = 36;
constexpr std::int16_t ottava = 12;
constexpr Colore coloreEsciSopra = Rgb(255, 0, 0);

std::string FraBlanchi(const std::string& testo) {
    return " " + testo + " ";
}

}  // namespace

frmInto::frmInto(const Ambiente& ambiente, VicineInto vicine)
    : Form("frmInto"), a_(ambiente), vicine_(std::move(vicine)) {
    DisponiInto(*this);
    CollegaMenu();
    CollegaTastiera();
    telaio.cmdEsci.Click = [this] { a_.finestre.Scarica(*this); };
    hover_.Evidenzia(telaio.cmdEsci, "cmdesci", [this](bool sopra) {
        telaio.cmdEsci.ForeColor = sopra ? coloreEsciSopra : ColoreEsci;
    });
    hover_.LasciaSu({this});
}

PannelloBarra::Comandi frmInto::ComandiDellaBarra() {
    const auto pagina = [this](void (frmInto::*entra)()) {
        return PannelloBarra::Comando{[this, entra] { (this->*entra)(); }, &menu.Esercizio};
    };
    return {pagina(&frmInto::mnuNotA_Click),        pagina(&frmInto::mnuRint_Click),
            pagina(&frmInto::mnuRicTa_Click),       pagina(&frmInto::mnuRicTo_Click),
            pagina(&frmInto::mnuRicTasto_Click),    pagina(&frmInto::mnuSs_Click),
            {[this] { a_.finestre.ChiediAiuto(); }}};
}

void frmInto::CollegaMenu() {
    menu.mnuNotA.Click = [this] { mnuNotA_Click(); };
    menu.mnuRint.Click = [this] { mnuRint_Click(); };
    menu.mnuRicTa.Click = [this] { mnuRicTa_Click(); };
    menu.mnuRicTasto.Click = [this] { mnuRicTasto_Click(); };
    menu.mnuRicTo.Click = [this] { mnuRicTo_Click(); };
    menu.mnuPiano.Click = [this] { PonStrumento(pianoforte); };
    menu.mnuOrgano.Click = [this] { PonStrumento(organo); };
    menu.mnuSs.Click = [this] { mnuSs_Click(); };
    menu.mnuNotLat.Click = [this] { mnuNotLat_Click(); };
    menu.mnuNotAnglo.Click = [this] { mnuNotAnglo_Click(); };
}

void frmInto::CollegaTastiera() {
    std::int16_t indice = 0;
    for (Etichetta& tasto : telaio.tastiera.lb) {
        tasto.MouseDown = [&tasto](const Evento&) { Accendi(tasto, true); };
        tasto.MouseUp = [&tasto](const Evento&) { Accendi(tasto, false); };
        tasto.Click = [this, i = indice++] { lb_Click(i); };
    }
    telaio.punti.lblPerc.DblClick = telaio.tastiera.Lbdoc.DblClick = [this] { CambiaBase(); };
}

void frmInto::Form_Load() {
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliInto());
    a_.globali.IntoAperto = true;
    HelpContextID = a_.globali.ContestoInto;
    accordi.frmRacc.Visible = false;
    fineCiclo_ = false;
    intonazione.Carica();
    intervalli.Carica();
    accordi.Carica();
    tasti.Carica();
    tonalita.Carica();
    telaio.lblStep.Caption = telaio.Testi().msgPrimoLimite;
    telaio.Stato().StrumentoInto = a_.globali.StrumentoGlobale;
    telaio.tastiera.PonNomi(a_.globali.NomiAnglo);
    telaio.tastiera.figura.NomeLetto = a_.globali.testi.TxtTastiera;
    barra.Dipingi();
    ColoreEsci = telaio.cmdEsci.ForeColor;
    PonConsigli();
    a_.suono.PonDomanda(&intonazione);
}

void frmInto::PonConsigli() {
    const std::array<std::string, 7> consigli = {vicine_.consiglioIntonazione(),
                                                 FraBlanchi(menu.mnuRint.Caption),
                                                 FraBlanchi(menu.mnuRicTa.Caption),
                                                 FraBlanchi(menu.mnuRicTo.Caption),
                                                 FraBlanchi(menu.mnuRicTasto.Caption),
                                                 vicine_.consiglioStrumenti(),
                                                 vicine_.consiglioAiuto()};
    for (std::size_t i = 0; i < consigli.size(); ++i)
        barra.ToolButton.at(i).ToolTipText = consigli.at(i);
}

void frmInto::Form_Activate() {
    menu.SpuntaNomi(a_.globali.NomiAnglo);
    intonazione.IntoFermato = false;
    telaio.punti.NascondiEsito();
    // The flags change as the pages are entered: a page whose flag another one clears before its
    // turn isn't entered, and the last one stays in front.
    const auto fogli = Fogli();
    for (std::size_t i = 0; i < fogli.size(); ++i)
        if (a_.globali.PaginaInto.at(i)) (this->*fogli.at(i).entra)();
    BaseTastiera = baseDiPartenza;
}

void frmInto::CicloResidente() {
    a_.pompa.PompaEventi();
    while (!fineCiclo_) {
        piano_.Esamina(a_.finestre.Tasti(), BaseTastiera, a_.suono, MostraTasto());
        a_.pompa.AttendiEvento(perSempre);
    }
}

PianoDaTastiera::Mostra frmInto::MostraTasto() {
    return [this](std::int16_t nota, bool acceso) { telaio.sw(nota, acceso); };
}

void frmInto::Form_KeyDown(const Evento& tasto) {
    piano_.Premi(tasto.codice, BaseTastiera, a_.suono, MostraTasto());
}

void frmInto::Form_KeyUp(const Evento& tasto) {
    piano_.Lascia(tasto.codice, BaseTastiera, a_.suono, MostraTasto());
}

void frmInto::CambiaBase() {
    BaseTastiera = BaseTastiera == basePiuAlta ? basePiuBassa
                                               : static_cast<std::int16_t>(BaseTastiera + ottava);
}

void frmInto::PonStrumento(std::int32_t programma) {
    telaio.Stato().StrumentoInto = programma;
    a_.suono.CambiaStrumento(programma, 0);
}

void frmInto::mnuSs_Click() {
    if (vicine_.frmStrum) vicine_.frmStrum();
}

void frmInto::mnuNotLat_Click() {
    PonNomi(false);
}

void frmInto::mnuNotAnglo_Click() {
    PonNomi(true);
}

void frmInto::PonNomi(bool anglo) {
    a_.globali.NomiAnglo = anglo;
    menu.SpuntaNomi(anglo);
    tonalita.ScriviNomi(anglo);
    telaio.tastiera.PonNomi(anglo);
}

bool frmInto::PuoChiudersi() const {
    const auto corre = [](const Bottone& start) { return start.Caption() == "Stop"; };
    return telaio.lblStep.Caption() != telaio.Testi().msgScegliRif &&
           !corre(intonazione.IntoStart) && !corre(intervalli.CmdIntStart) &&
           !corre(accordi.ComdRacStart) && !corre(tasti.cmdRicTasto) && !tonalita.ToInCorso;
}

void frmInto::Form_Unload(bool& Cancel) {
    // The end of the program asks nobody.
    if (!PuoChiudersi() && !a_.finestre.InChiusura()) {
        Cancel = true;
        return;
    }
    fineCiclo_ = true;
    a_.globali.IntoAperto = false;
    SaveLastIntoSup();
    a_.suono.PonDomanda(nullptr);
    // Whatever is held or was left on: nobody could stop it any more.
    a_.suono.Reset();
    a_.suono.CambiaStrumento(a_.globali.StrumentoGlobale, 0);
}

void frmInto::SaveLastIntoSup() {
    a_.impostazioni.ScriviValore("IntoLastS", ComponiStatoInto(intonazione.Memorizza()));
}

}  // namespace corvana
