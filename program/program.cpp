#include "program/program.h"

#include "core/startup.h"
#include "metronome/conf_metro.h"
#include "utilities/about.h"
#include "utilities/instruments.h"
#include "utilities/midi_test.h"

namespace corvana {

Programma::Programma(const Ambiente& ambiente, std::function<void()> aiuto)
    : principale(ambiente, Apri(std::move(aiuto))),
      metronomo(ambiente, principale, [this] { MostraModale<frmConfMetro>(); }),
      a_(ambiente) {}

Secondarie Programma::Apri(std::function<void()> aiuto) {
    Secondarie s;
    s.frmMidiTest = [this] { MostraModale<frmMidiTest>(); };
    s.frmStrum = [this] { MostraModale<frmStrum>(); };
    s.frmAbout = [this] { MostraModale<frmAbout>(); };
    s.aiuto = std::move(aiuto);
    s.metronomo = {[this] { metronomo.Carica(); }, [this] { metronomo.mnuMetro_Click(); },
                   [this] { metronomo.Alterna(); }, [this] { metronomo.ConsigliaX12(); }};
    return s;
}

void Programma::Esegui(bool altraIstanza) {
    Main(a_, altraIstanza, [this] { a_.finestre.Mostra(principale); });
    a_.finestre.Esegui();
}

}  // namespace corvana
