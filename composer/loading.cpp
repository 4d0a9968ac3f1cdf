// Loading a melody. Nothing of what was done before a fault is undone.
#include <limits>

#include "composer/composer.h"
#include "composer/ranges.h"
#include "core/file_faults.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

using Limiti = std::numeric_limits<std::int32_t>;

/// A file edited by hand may hold a fraction where a whole number is meant.
std::int32_t NumeroLetto(const std::string& testo) {
    const std::int64_t numero = ArrotondaAlPari(NumeroReale(testo));
    if (numero < Limiti::min() || numero > Limiti::max())
        throw Guasto(guastoTraboccamento, "Overflow");
    return static_cast<std::int32_t>(numero);
}

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

void frmComposer::CaricaMelodia(const std::string& nome) {
    try {
        cmdReset_Click();
        melodia.inCaricamento = true;
        melodia.nomeMelodia = nome;
        lblNome.Caption = nome;
        lstBookMark.Clear();
        std::string byte;
        Controlla(a_.file.Leggi(Percorso(nome), byte));
        const LetturaMel letta = LeggiMel(byte, a_.globali.SeparatoreDecimale);
        PrendiLettura(letta);
        PrendiStrumenti(letta.strumento.front());
        if (InPlay()) return;
        if (!PrendiSoprano(letta.tempo)) return;
        PrendiAltreVoci();
        cmdPlay_Click();
    } catch (const Guasto& guasto) {
        a_.riquadri.MsgBox(TestoGuasto(guasto));
    }
}

/// In the file's order, so that a value that can't be taken leaves what stands before it.
void frmComposer::PrendiLettura(const LetturaMel& letta) {
    PrendiTesti(melodia.voci[soprano], letta.soprano);
    if (letta.conMetronomo) PrendiMetronomo(letta.strumento);
    lstBookMark.List = letta.riferimenti;
    if (letta.conRiferimenti) frBookMark.Visible = true;
    for (const BloccoMel& blocco : letta.blocchi) {
        VoceMelodia& voce = melodia.voci[blocco.voce];
        voce.strumento = NumeroLetto(blocco.strumento);
        PrendiTesti(voce, blocco.testi);
    }
    if (letta.guasto) throw Guasto(*letta.guasto);
}

/// The settings come back; whether the metronome is on doesn't.
void frmComposer::PrendiMetronomo(const std::vector<std::string>& campi) {
    Pulsazioni.PonTesto(Elemento(campi, 1));
    DurataPulsazioni.PonTesto(Elemento(campi, 2));
    InizioPuls.PonValore(NumeroLetto(Elemento(campi, 3)));
}

void frmComposer::PrendiStrumenti(const std::string& delSoprano) {
    melodia.voci[soprano].strumento = NumeroLetto(delSoprano);
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        const std::int32_t programma = melodia.voci[voce].strumento;
        if (voce == soprano || programma >= 0)
            a_.suono.CambiaStrumento(programma, static_cast<std::int32_t>(voce));
    }
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        MostraStrumento(voce);
}

/// False when its texts don't belong together.
bool frmComposer::PrendiSoprano(const std::string& tempo) {
    VoceMelodia& voce = melodia.voci[soprano];
    AggiornaVoce();
    const std::size_t elementi = voce.noteVoce.size();
    if (voce.durateVoce.size() != elementi || voce.attributiVoce.size() != elementi) {
        a_.riquadri.MsgBox(a_.globali.testi.msgFileDanneggiato);
        return false;
    }
    LblNoteString.Caption = NomiFino(voce, voce.numeroNote);
    Slider1.PonValore(NumeroLetto(tempo));
    lblNt.Caption = std::to_string(voce.numeroNote);
    voce.primaNota = 0;
    voce.ultimaNota = static_cast<std::int16_t>(voce.numeroNote - 1);
    lblNini.Text = "1";
    lblNfine.Text = std::to_string(voce.numeroNote);
    melodia.modoPasso = false;
    return true;
}

void frmComposer::PrendiAltreVoci() {
    for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce) {
        melodia.voceAttiva = nomiVoci[voce];
        AggiornaVoce();
        MostraNoteVoce();
    }
    melodia.voceAttiva = nomiVoci[soprano];
}

}  // namespace corvana
