// Menus and toolbar: what each entry opens or switches.
#include "core/language.h"
#include "core/startup.h"
#include "trainer/corvana_main.h"
#include "trainer/main_rows.h"

namespace corvana {

namespace {

constexpr std::int32_t organo = 16;
constexpr std::int32_t pianoforte = 0;

void Apri(const std::function<void()>& finestra) {
    if (finestra) finestra();
}

}  // namespace

void CorvanaMainF::CollegaMenu() {
    Esci.Click = cmdEsci.Click = cmdEscibg.Click = [this] { Esci_Click(); };
    Intonazione.Click = [this] { ApriInto(3, 0); };
    mnuRint.Click = [this] { ApriInto(5, 1); };
    mnuRac.Click = [this] { ApriInto(7, 2); };
    mnuRicTasto.Click = [this] { ApriInto(std::nullopt, 3); };
    mnuRicTo.Click = [this] { ApriInto(std::nullopt, 4); };
    mnuComposer.Click = [this] { Apri(secondarie_.frmComposer); };
    mnuMetro.Click = [this] { Apri(secondarie_.metronomo.apri); };
    mnuPromemoria.Click = [this] { Apri(secondarie_.frmOptions); };
    mnuMidiTest.Click = [this] { Apri(secondarie_.frmMidiTest); };
    Nominote1.Click = [this] { Nominote1_Click(); };
    Nominote2.Click = [this] { Nominote2_Click(); };
    Suono1.Click = [this] { Suono1_Click(); };
    Suono2.Click = [this] { Suono2_Click(); };
    mnuOrgano.Click = [this] { mnuOrgano_Click(); };
    mnuPiano.Click = [this] { mnuPiano_Click(); };
    mnuSs.Click = [this] { Apri(secondarie_.frmStrum); };
    mnuNormale.Click = [this] { mnuNormale_Click(); };
    mnuAutomatico.Click = [this] { mnuAutomatico_Click(); };
    mnuIt.Click = [this] { mnuIt_Click(); };
    mnuEn.Click = [this] { mnuEn_Click(); };
    mnuAiuto.Click = [this] { Apri(secondarie_.aiuto); };
    mnuVersione.Click = [this] { Apri(secondarie_.frmAbout); };
}

void CorvanaMainF::DisabilitaAssenti() {
    const auto pone = [](const std::function<void()>& finestra, auto&... comandi) {
        if (!finestra) ((comandi.Enabled = false), ...);
    };
    pone(secondarie_.frmInto, Intonazione, mnuRint, mnuRac, mnuRicTo, mnuRicTasto, ToolButton[0]);
    pone(secondarie_.frmComposer, mnuComposer, ToolButton[1]);
    pone(secondarie_.metronomo.apri, mnuMetro, ToolButton[2]);
    pone(secondarie_.frmOptions, mnuPromemoria, ToolButton[3]);
    pone(secondarie_.frmStrum, mnuSs, ToolButton[4]);
    pone(secondarie_.frmMidiTest, mnuMidiTest);
    pone(secondarie_.aiuto, mnuAiuto, ToolButton[6]);
    pone(secondarie_.frmAbout, mnuVersione);
}

void CorvanaMainF::ApriInto(std::optional<std::int32_t> contesto, std::size_t pagina) {
    if (contesto) a_.globali.ContestoInto = *contesto;
    a_.globali.PaginaInto.at(pagina) = true;
    Apri(secondarie_.frmInto);
}

void CorvanaMainF::ToolButton_Click(int numero) {
    const bool ammesso = numero == 1 ? es.Enabled() : Risorse.Enabled();
    if (!ammesso) return;
    // A modal window swallows the pointer: the picture would stay sunk behind it.
    const bool apreModale = numero != 3 && numero != 6;
    if (apreModale) hover_.Lascia();
    EsegueToolButton(numero);
}

void CorvanaMainF::EsegueToolButton(int numero) {
    switch (numero) {
        case 1: return ApriInto(3, 0);
        case 2: return Apri(secondarie_.frmComposer);
        case 3: return Apri(secondarie_.metronomo.alterna);
        case 4: return Apri(secondarie_.frmOptions);
        case 5: return Apri(secondarie_.frmStrum);
        case 6: return mnuNormale.Checked ? mnuAutomatico_Click() : mnuNormale_Click();
        case 7: return Apri(secondarie_.aiuto);
        default: return;
    }
}

void CorvanaMainF::ShToolbar_Click() {
    frToolBar.Visible = !frToolBar.Visible;
}

void CorvanaMainF::mnuOrgano_Click() {
    PonStrumento(organo);
}

void CorvanaMainF::mnuPiano_Click() {
    PonStrumento(pianoforte);
}

void CorvanaMainF::PonStrumento(std::int32_t programma) {
    a_.globali.StrumentoGlobale = programma;
    a_.suono.CambiaStrumento(programma, 0);
}

void CorvanaMainF::mnuIt_Click() {
    CambiaLingua(false);
}

void CorvanaMainF::mnuEn_Click() {
    CambiaLingua(true);
}

void CorvanaMainF::CambiaLingua(bool inglese) {
    PonLingua(a_.globali, inglese);
    a_.impostazioni.ScriviValore("Language", inglese ? "en" : "it");
    PonNomiRisposte(inglese);
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliPrincipali());
    Apri(secondarie_.metronomo.cambiaLingua);
    MostraVelocità();
    frmRisultati.Visible = false;
}

void CorvanaMainF::Esci_Click() {
    a_.finestre.Scarica(*this);
}

}  // namespace corvana
