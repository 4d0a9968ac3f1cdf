// What each panel of the melody window gets of the others.
#include "composer/composer.h"

namespace corvana {

VicinePlay frmComposer::AttornoAlPlay() {
    return {pulsi.battuta,
            [this] { return pulsi.Forza(); },
            [this] { pulsi.ContaPulso(); },
            [this](std::size_t voce) { return mix.perVoce[voce].volume.Value(); },
            [this](int tasto, bool acceso) { tasti.MostraTasto(tasto, acceso); },
            [this] { tasti.SpegniNoteVoci(); },
            [this] { tasti.SpegniTutteLeNote(); },
            [this](bool bloccate) { BloccaModifiche(bloccate); },
            [this](bool abilita) { modifica.cmdCanc.Enabled = abilita; },
            [this](bool abilita) { riferimenti.cmdAddBm.Enabled = abilita; },
            [this](int voce) { mix.VoceAttiva_Click(voce); },
            [this] { modifica.Chiudi(); },
            [this] { return inserimento.cmdInsNota.BackColor(); },
            [this] {
                if (vicine_.finePlayDaPicker) vicine_.finePlayDaPicker();
            }};
}

VicineInserimento frmComposer::AttornoAllInserimento() {
    return {tasti.lb,
            [this](int tasto, bool acceso) { tasti.MostraTasto(tasto, acceso); },
            [this](int tasto) { tasti.tastoCorrente = static_cast<std::int16_t>(tasto); },
            [this] { VoceCambiata(); },
            [this] { incolla.cmdPaste.Enabled = true; },
            FuocoPlay()};
}

VicineModifica frmComposer::AttornoAllaModifica() {
    return {[this] { VoceCambiata(); },
            [this] { voci.TogliNota(); },
            [this]() -> Casella& { return voci.perVoce[stato.melodia.IndiceAttiva()].prima; },
            [this]() -> Casella& { return voci.perVoce[stato.melodia.IndiceAttiva()].ultima; },
            [this] { voci.MostraSopranoIntero(); },
            [this] { riferimenti.lstBookMark.Clear(); },
            [this] { pulsi.Spegni(); },
            [this] { play.chekLoop.Value = false; },
            [this] { inserimento.AzzeraAttributi(); },
            [this] { inserimento.NascondiAccento(); },
            FuocoInsNota(),
            [this](const bool& soloNota) {
                play.SuonaMelodia(stato.passo.IndiceNotaPP, stato.passo.IndiceNotaPP, soloNota);
            }};
}

VicineIncolla frmComposer::AttornoAllIncolla() {
    return {[this] { VoceCambiata(); },
            [this]() -> Casella& { return voci.perVoce[stato.melodia.IndiceAttiva()].prima; },
            [this]() -> Casella& { return voci.perVoce[stato.melodia.IndiceAttiva()].ultima; }};
}

VicineComandi frmComposer::AttornoAiTasti() {
    return {[this](int tasto) { inserimento.lb_MouseDown(tasto); },
            [this](int tasto) { inserimento.lb_MouseUp(tasto); },
            [this](int figura) { inserimento.cmdSimbNote_Click(figura); },
            [this](int attributo) { inserimento.cmdAttrNota_Click(attributo); },
            [this] { inserimento.NascondiAccento(); },
            [this] { inserimento.cmdInsPausa_Click(); },
            FuocoInsNota(),
            [this] { play.cmdPlay_Click(); },
            [this] { play.mnuPlayRitardo_Click(); },
            [this](std::string_view verso, int tasto) { regolo.MuoviCursore(verso, tasto); }};
}

std::function<void()> frmComposer::FuocoPlay() {
    return [this] { play.cmdPlay.SetFocus(); };
}

std::function<void()> frmComposer::FuocoInsNota() {
    return [this] { inserimento.cmdInsNota.SetFocus(); };
}

}  // namespace corvana
