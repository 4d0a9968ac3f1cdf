// A melody as its file, and back. Nothing of what a load did before a fault is undone.
#include <span>

#include "composer/composer.h"
#include "core/file_faults.h"
#include "melody/mel_writer.h"
#include "melody/numbers.h"

namespace corvana {

namespace {

/// The arrays are split later, if the load comes that far. Until then the voice has no notes to
/// play: those of the melody before don't belong to these texts.
void PrendiTesti(VoceMelodia& voce, std::span<const std::string> testi) {
    voce.noteVoce.clear();
    voce.durateVoce.clear();
    voce.attributiVoce.clear();
    std::string* const dove[] = {&voce.testoNote, &voce.testoDurate, &voce.testoAttributi};
    for (std::size_t i = 0; i < testi.size(); ++i)
        *dove[i] = testi[i];
}

}  // namespace

std::string frmComposer::Byte() const {
    return ScriviMel({stato.melodia.voci, play.Slider1.Value(), pulsi.DaScrivere(),
                      riferimenti.TestoRiferimenti()});
}

void frmComposer::CaricaMelodia(const std::string& nome) {
    try {
        cmdReset_Click();
        stato.melodia.inCaricamento = true;
        stato.melodia.nomeMelodia = nome;
        stato.lblNome.Caption = nome;
        std::string byte;
        Controlla(a_.file.Leggi(archivio.Percorso(nome), byte));
        const LetturaMel letta = LeggiMel(byte, a_.globali.SeparatoreDecimale);
        PrendiLettura(letta);
        mix.MandaStrumenti();
        if (stato.inEsecuzione) return;
        if (!voci.PrendiSoprano()) return a_.riquadri.MsgBox(a_.globali.testi.msgFileDanneggiato);
        play.PrendiTempo(letta.tempo);
        voci.MostraSopranoIntero();
        stato.passo.modoPasso = false;
        voci.PrendiAltreVoci();
        play.cmdPlay_Click();
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
    }
}

/// In the file's order, so that a value that can't be taken leaves what stands before it.
void frmComposer::PrendiLettura(const LetturaMel& letta) {
    Melodia& melodia = stato.melodia;
    PrendiTesti(melodia.voci[soprano], letta.soprano);
    if (letta.conMetronomo) pulsi.Prendi(letta.strumento);
    riferimenti.lstBookMark.List = letta.riferimenti;
    if (letta.conRiferimenti) riferimenti.frBookMark.Visible = true;
    for (const BloccoMel& blocco : letta.blocchi) {
        VoceMelodia& voce = melodia.voci[blocco.voce];
        voce.strumento = NumeroLetto(blocco.strumento);
        PrendiTesti(voce, blocco.testi);
    }
    if (letta.guasto) throw Guasto(*letta.guasto);
    melodia.voci[soprano].strumento = NumeroLetto(letta.strumento.front());
}

}  // namespace corvana
