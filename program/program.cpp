#include "program/program.h"

#include "composer/composer.h"
#include "core/startup.h"
#include "eartrainer/into.h"
#include "forms/for_now.h"
#include "metronome/conf_metro.h"
#include "program/composer_voices.h"
#include "utilities/about.h"
#include "utilities/instruments.h"
#include "utilities/midi_test.h"
#include "utilities/options.h"

namespace corvana {

namespace {

constexpr int aiutoMetronomo = 8;
constexpr int aiutoStrumenti = 40;
constexpr int aiutoPromemoria = 50;
constexpr int aiutoComposizione = 60;

}  // namespace

Programma::Programma(const Ambiente& ambiente)
    : principale(ambiente, Apri()),
      metronomo(ambiente, principale, [this] { MostraModale<frmConfMetro>(aiutoMetronomo); }),
      a_(ambiente) {
    a_.finestre.PonAiuto([this](const Form& form) { form.ApriAiuto(a_.globali.FileAiuto); });
}

Secondarie Programma::Apri() {
    Secondarie s;
    s.frmInto = [this] { MostraInto(); };
    s.frmComposer = [this] { MostraComposer(); };
    s.frmMidiTest = [this] { MostraModale<frmMidiTest>(aiutoStrumenti); };
    s.frmOptions = [this] { MostraModale<frmOptions>(aiutoPromemoria); };
    s.frmStrum = [this] { MostraModale<frmStrum>(aiutoStrumenti); };
    s.frmAbout = [this] { MostraModale<frmAbout>(); };
    s.aiuto = [this] { a_.finestre.ChiediAiuto(); };
    s.metronomo = {[this] { metronomo.Carica(); }, [this] { metronomo.mnuMetro_Click(); },
                   [this] { metronomo.Alterna(); }, [this] { metronomo.ConsigliaX12(); }};
    return s;
}

void Programma::MostraInto() {
    const auto consiglio = [this](std::size_t bottone) {
        return [this, bottone] { return principale.barra.ToolButton.at(bottone).ToolTipText(); };
    };
    frmInto finestra(a_, {consiglio(0), consiglio(4), consiglio(6), [&] {
                              frmStrum strumenti(a_, {[&] { finestra.SaveLastIntoSup(); }});
                              strumenti.HelpContextID = aiutoStrumenti;
                              a_.finestre.MostraModale(strumenti);
                          }});
    a_.finestre.MostraModale(finestra);
}

void Programma::MostraComposer() {
    const auto figura = [this](std::size_t bottone) {
        return [this, bottone] { return principale.barra.ToolButton.at(bottone).stile; };
    };
    frmComposer finestra(a_, {[this] { return principale.menu.mnuPiano.Caption(); },
                              [this] { return principale.menu.mnuOrgano.Caption(); },
                              [this] {
                                  if (strumenti_) strumenti_->PlayFinito();
                              },
                              [&] { MostraStrumenti(finestra); }, figura(4), figura(3)});
    finestra.HelpContextID = aiutoComposizione;
    a_.finestre.MostraModale(finestra);
}

void Programma::MostraStrumenti(frmComposer& composer) {
    VociDelComposer voci(composer);
    frmStrum strumenti(a_, {{}, &voci});
    strumenti.HelpContextID = aiutoStrumenti;
    // A play that was stopped as another picker closed may still lie below on this stack.
    const PerOra<frmStrum*> aperto(strumenti_, &strumenti);
    a_.finestre.MostraModale(strumenti);
}

void Programma::DaMainAllaFine(bool altraIstanza) {
    a_.finestre.FinoAllUltima(
        [&] { Main(a_, altraIstanza, [this] { a_.finestre.Mostra(principale); }); });
    // The main window does it, unless it was made to go.
    a_.suono.ChiudiMidi();
}

}  // namespace corvana
