#include "trainer/main_menu.h"

namespace corvana {

namespace {
constexpr std::int32_t organo = 16;
constexpr std::int32_t pianoforte = 0;
}  // namespace

MenuPrincipale::MenuPrincipale(Form& finestra, const Ambiente& ambiente,
                               const Secondarie& secondarie, StatoEsercizio& stato)
    : finestra_(finestra), a_(ambiente), secondarie_(secondarie), stato_(stato) {
    mnuNormale.Checked = true;
    const auto into = [this](std::optional<std::int32_t> contesto, PaginaInto pagina) {
        return [=, this] { ApriInto(a_.globali, secondarie_, contesto, pagina); };
    };
    Intonazione.Click = into(3, PaginaInto::Intonazione);
    mnuRint.Click = into(5, PaginaInto::Intervalli);
    mnuRac.Click = into(7, PaginaInto::Accordi);
    mnuRicTasto.Click = into(std::nullopt, PaginaInto::Tasti);
    mnuRicTo.Click = into(std::nullopt, PaginaInto::Tonalita);
    mnuComposer.Click = [this] { Apri(secondarie_.frmComposer); };
    mnuMetro.Click = [this] { Apri(secondarie_.metronomo.apri); };
    mnuPromemoria.Click = [this] { Apri(secondarie_.frmOptions); };
    mnuMidiTest.Click = [this] { Apri(secondarie_.frmMidiTest); };
    mnuSs.Click = [this] { Apri(secondarie_.frmStrum); };
    mnuAiuto.Click = [this] { Apri(secondarie_.aiuto); };
    mnuVersione.Click = [this] { Apri(secondarie_.frmAbout); };
    Suono1.Click = [this] { Suono1_Click(); };
    Suono2.Click = [this] { Suono2_Click(); };
    mnuOrgano.Click = [this] { mnuOrgano_Click(); };
    mnuPiano.Click = [this] { mnuPiano_Click(); };
}

void MenuPrincipale::DisabilitaAssenti() {
    const auto pone = [](const std::function<void()>& finestra, auto&... comandi) {
        if (!finestra) ((comandi.Enabled = false), ...);
    };
    pone(secondarie_.frmInto, Intonazione, mnuRint, mnuRac, mnuRicTo, mnuRicTasto);
    pone(secondarie_.frmComposer, mnuComposer);
    pone(secondarie_.metronomo.apri, mnuMetro);
    pone(secondarie_.frmOptions, mnuPromemoria);
    pone(secondarie_.frmStrum, mnuSs);
    pone(secondarie_.frmMidiTest, mnuMidiTest);
    pone(secondarie_.aiuto, mnuAiuto);
    pone(secondarie_.frmAbout, mnuVersione);
}

void MenuPrincipale::Abilita(bool abilita) {
    for (VoceMenu* voce : {&es, &Opzioni, &Risorse, &f1, &Esci})
        voce->Enabled = abilita;
}

void MenuPrincipale::SpuntaModo(bool automatico) {
    mnuNormale.Checked = !automatico;
    mnuAutomatico.Checked = automatico;
}

void MenuPrincipale::SpuntaNomi(bool anglo) {
    Nominote1.Checked = !anglo;
    Nominote2.Checked = anglo;
}

void MenuPrincipale::Suono1_Click() {
    stato_.SuonoNota = false;
    Suono1.Checked = true;
}

void MenuPrincipale::Suono2_Click() {
    stato_.SuonoNota = true;
    Suono1.Checked = false;
}

void MenuPrincipale::mnuOrgano_Click() {
    PonStrumento(organo);
}

void MenuPrincipale::mnuPiano_Click() {
    PonStrumento(pianoforte);
}

void MenuPrincipale::PonStrumento(std::int32_t programma) {
    a_.globali.StrumentoGlobale = programma;
    a_.suono.CambiaStrumento(programma, 0);
}

}  // namespace corvana
