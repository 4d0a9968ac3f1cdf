// The melody as it is kept while it isn't saved, and back after the program has ended that way.
#include <algorithm>

#include "composer/composer.h"

namespace corvana {

namespace {

/// Does what can be done: a value that can't be taken leaves the others alone.
template <class Cosa>
void PerQuantoSiPuo(const Cosa& cosa) {
    try {
        cosa();
    } catch (const Guasto&) {}
}

/// Between two runs the system's settings may have changed.
std::string DurateQui(std::string durate, char separatore) {
    std::replace_if(
        durate.begin(), durate.end(), [](char c) { return c == '.' || c == ','; }, separatore);
    return durate;
}

}  // namespace

bool frmComposer::CopiaMelodia(MelodiaTenuta& copia) const {
    Aggiornamento aggiorna;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        const VoceMelodia& v = stato.melodia.voci[voce];
        VoceTenuta& tenuta = copia.voci[voce];
        aggiorna(tenuta.note, v.testoNote);
        aggiorna(tenuta.durate, v.testoDurate);
        aggiorna(tenuta.attributi, v.testoAttributi);
        aggiorna(tenuta.strumento, v.strumento);
    }
    aggiorna(copia.tempo, play.Slider1.Value());
    aggiorna(copia.metroAttivo, pulsi.battuta.metroAttivo);
    aggiorna(copia.pulsazioni, pulsi.Pulsazioni.Text());
    aggiorna(copia.durataPulsazioni, pulsi.DurataPulsazioni.Text());
    aggiorna(copia.inizioPuls, pulsi.InizioPuls.Value());
    aggiorna(copia.nome, stato.melodia.nomeMelodia);
    aggiorna(copia.nomeMostrato, stato.lblNome.Caption());
    aggiorna(copia.cartella, a_.globali.percorsoCorrente);
    aggiorna(copia.riferimenti, riferimenti.lstBookMark.List());
    return aggiorna.Cambiato();
}

/// As after a load, but marked as modified, and nothing plays.
void frmComposer::RiprendiMelodia(const MelodiaTenuta& tenuta) {
    stato.melodia.nomeMelodia = tenuta.nome;
    stato.lblNome.Caption = tenuta.nomeMostrato;
    if (a_.file.EsisteCartella(tenuta.cartella)) a_.globali.percorsoCorrente = tenuta.cartella;
    if (tenuta.metroAttivo != pulsi.battuta.metroAttivo) pulsi.lblTs_Click();
    PerQuantoSiPuo([&] {
        pulsi.Prendi(
            {"", tenuta.pulsazioni, tenuta.durataPulsazioni, std::to_string(tenuta.inizioPuls)});
    });
    for (std::size_t voce = numeroVoci; voce-- > 0;)
        RiprendiVoce(voce, tenuta.voci[voce]);
    // Behind the soprano, whose count would change the first row.
    riferimenti.lstBookMark.List = tenuta.riferimenti;
    riferimenti.frBookMark.Visible = !tenuta.riferimenti.empty();
    mix.MandaStrumenti();
    incolla.cmdPaste.Enabled = true;
    PerQuantoSiPuo([&] { play.PrendiTempo(std::to_string(tenuta.tempo)); });
    stato.lblModificato.Visible = true;
}

/// Leaves the voice active.
void frmComposer::RiprendiVoce(std::size_t voce, const VoceTenuta& tenuta) {
    stato.melodia.voceAttiva = nomiVoci[voce];
    VoceMelodia& v = stato.melodia.voci[voce];
    v.testoNote = tenuta.note;
    v.testoDurate = DurateQui(tenuta.durate, a_.globali.SeparatoreDecimale);
    v.testoAttributi = tenuta.attributi;
    v.strumento = tenuta.strumento;
    PerQuantoSiPuo([this] { VoceCambiata(); });
}

}  // namespace corvana
