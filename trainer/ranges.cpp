#include <algorithm>

#include "forms/fault.h"
#include "trainer/corvana_main.h"
#include "trainer/exercises.h"
#include "trainer/state.h"

namespace corvana {

std::optional<int> RigaDaLimiti(int limiteBasso, int limiteAlto) {
    const auto riga =
        std::find_if(righeEsercizio.begin(), righeEsercizio.end(), [=](const auto& r) {
            return r.limiteBasso && r.limiteBasso == limiteBasso && r.limiteAlto == limiteAlto;
        });
    if (riga == righeEsercizio.end()) return std::nullopt;
    return static_cast<int>(riga - righeEsercizio.begin());
}

std::uint8_t PosizioneEstratta(double r, std::uint8_t limiteBasso, std::uint8_t limiteAlto) {
    const auto ampiezza = static_cast<float>(limiteAlto - limiteBasso + 1);
    const float somma = static_cast<float>(r) * ampiezza + static_cast<float>(limiteBasso);
    return static_cast<std::uint8_t>(std::min(static_cast<int>(somma), int{limiteAlto}));
}

void CorvanaMainF::Mostranota() {
    Nascondinote();
    do {
        NotaCorrente = PosizioneEstratta(a_.casuale.Estrai(), LimiteBasso, LimiteAlto);
    } while (!CercaPosizione(NotaCorrente));
    RispostaGiusta.fill(false);
    RispostaGiusta.at(static_cast<std::size_t>(RispostaDi(*CercaPosizione(NotaCorrente)) - 1)) =
        true;
    VisualizzaNota(NotaCorrente);
    AnnunciaNota();
}

void CorvanaMainF::difficolt_Click() {
    const int indice = difficolt.ListIndex;
    if (indice < 0) return;
    const RigaEsercizio& riga = righeEsercizio.at(static_cast<std::size_t>(indice));
    if (riga.limiteBasso) {
        Nascondinote();
        VisualizzaNota(riga.limiteAlto);
        VisualizzaNota(riga.limiteBasso);
        LimiteAlto = riga.limiteAlto;
        LimiteBasso = riga.limiteBasso;
    } else {
        difficolt.Seleziona(0);
    }
    if (CaricamentoLista) {
        CaricamentoLista = false;
        return;
    }
    Start.Enabled = true;
    Start.SetFocus();
}

void CorvanaMainF::Regolo_MouseDown(int /*Button*/, int /*Shift*/, int /*X*/, int Y) {
    if (PrimoClick && SecondoClick) return;
    Start.Enabled = false;
    if (PrimoClick == SecondoClick) Nascondinote();
    const Posizione* posizione = PosizioneDaRegolo(Y);
    if (!posizione) return;
    VisualizzaNota(static_cast<std::uint8_t>(posizione->numero));
    (PrimoClick ? SecondoClick : PrimoClick) = static_cast<std::int16_t>(posizione->numero);
    ImpostaIntervallo();
}

void CorvanaMainF::ImpostaIntervallo() {
    if (PrimoClick == SecondoClick) {
        PrimoClick = SecondoClick = 0;
        Nascondinote();
        return;
    }
    LimiteBasso = static_cast<std::uint8_t>(std::min(PrimoClick, SecondoClick));
    LimiteAlto = static_cast<std::uint8_t>(std::max(PrimoClick, SecondoClick));
    if (PrimoClick == 0 || SecondoClick == 0) return;
    Start.Enabled = true;
    Start.SetFocus();
}

void CorvanaMainF::RipristinaStato() {
    try {
        Riprendi(a_.impostazioni.LeggiValore("CorvanaLastS"));
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
    }
    SelezionaRigaDiPartenza();
}

void CorvanaMainF::Riprendi(const std::string& testo) {
    const auto stato = LeggiStato(testo);
    if (!stato) return;
    LimiteAlto = static_cast<std::uint8_t>(stato->limiteAlto);
    LimiteBasso = static_cast<std::uint8_t>(stato->limiteBasso);
    a_.globali.StrumentoGlobale = stato->strumento;
    Slider1.PonValore(std::clamp(stato->noteAlMinuto, Slider1.Min(), Slider1.Max()));
    if (stato->automatico)
        mnuAutomatico_Click();
    else
        mnuNormale_Click();
}

void CorvanaMainF::SelezionaRigaDiPartenza() {
    if (const auto riga = RigaDaLimiti(LimiteBasso, LimiteAlto)) return difficolt.Seleziona(*riga);
    const bool daRegolo = LimiteBasso >= posizioneMinima && LimiteAlto > posizioneMinima;
    // A text edited by hand may name a range that no note lies in: no draw would ever end.
    if (!daRegolo || !HaPosizioni(LimiteBasso, LimiteAlto)) return difficolt.Seleziona(0);
    VisualizzaNota(LimiteAlto);
    VisualizzaNota(LimiteBasso);
}

}  // namespace corvana
