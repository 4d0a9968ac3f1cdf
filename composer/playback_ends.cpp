// How a play begins, what of the melody it goes over, and how it ends.
#include "composer/playback.h"
#include "composer/ranges.h"
#include "melody/tokens.h"

namespace corvana {

/// What a play left sounding that was stopped and still lies below on this stack.
void Esecuzione::SpegniResti() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        if (!v.staSuonando) continue;
        a_.suono.NotaOff(Canale(voce), v.notaCorrente);
        f_.MostraTasto(v.notaCorrente - scartoIndiceNota, false);
        v.staSuonando = false;
    }
    SpegniPulso();
}

void Esecuzione::Comincia() {
    f_.inEsecuzione = true;
    f_.cmdPlay.Caption = "Stop";
    f_.cmdPlay.BackColor = f_.cmdInsNota.BackColor();
    BloccaComandi(true);
    f_.cmdCanc.Enabled = false;
    f_.cmdAddBm.Enabled = false;
    if (!f_.melodia.modoPasso) {
        if (f_.melodia.IndiceAttiva() != soprano && f_.melodia.Attiva().Vuota())
            f_.VoceAttiva_Click(soprano);
        f_.lblNt.Caption = std::to_string(f_.melodia.Attiva().numeroNote);
    }
    msPerTick_ = MsPerTick(f_.melodia.tempo);
}

void Esecuzione::BloccaComandi(bool bloccati) {
    for (Controllo* c :
         {static_cast<Controllo*>(&f_.cmdPaste), static_cast<Controllo*>(&f_.file),
          static_cast<Controllo*>(&f_.cmdInsPausa), static_cast<Controllo*>(&f_.cmdInsNota)})
        c->Enabled = !bloccati;
    for (const auto& voce : f_.perVoce) {
        voce.prima.Locked = bloccati;
        voce.ultima.Locked = bloccati;
    }
}

/// The notes of a voice; 0 for one whose text is empty, whatever its arrays still hold.
long Esecuzione::Note(std::size_t voce) const {
    const VoceMelodia& v = f_.melodia.voci[voce];
    return v.Vuota() ? 0 : NoteIntere(v);
}

void Esecuzione::PreparaVoci() {
    f_.CalcolaTickTotali();
    limiteTick_ = stato_.tickTotali;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        stato_.voci[voce].posizione = 0;
        stato_.voci[voce].ultima = static_cast<std::int16_t>(Note(voce) - 1);
    }
    if (f_.metroAttivo) tickPulso_ = static_cast<Tick>(f_.durataPulso / quartiPerTick);
}

bool Esecuzione::Intera() const {
    const VoceMelodia& v = f_.melodia.voci[soprano];
    return v.Vuota() || f_.melodia.modoPasso ||
           (ultimaNota_ >= v.numeroNote - 1 && primaNota_ <= 0);
}

void Esecuzione::ScegliTratto() {
    stato_.parziale = !Intera();
    if (!stato_.parziale) return;
    stato_.tickFineRange = f_.TickFinoANota(ultimaNota_);
    stato_.tickPrimaInizio = f_.TickFinoANota(static_cast<std::int16_t>(primaNota_ - 1));
    if (primaNota_ == 0)
        limiteTick_ = stato_.tickFineRange - 1;
    else
        PreparaParziale();
}

void Esecuzione::PreparaParziale() {
    limiteTick_ = stato_.tickFineRange - stato_.tickPrimaInizio - 1;
    for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce) {
        inizi_[voce] =
            CercaPunto(f_.melodia.voci[voce].durateVoce, Note(voce), stato_.tickPrimaInizio);
    }
    if (f_.metroAttivo)
        inizioPulso_ =
            PulsoDopo(f_.pulsoIniziale, f_.ultimoPulso, tickPulso_, stato_.tickPrimaInizio);
}

void Esecuzione::Termina() {
    SpegniFuoriTastiera();
    for (StatoVoce& voce : stato_.voci)
        voce.posizione = 0;
    SpegniPulso();
    stato_.pulso.pulsoCorrente = 0;
    stato_.pulso.pulsoDeveSuonare = false;
    f_.cmdPlay.Caption = "Play";
    f_.inEsecuzione = false;
    f_.melodia.inCaricamento = false;
    f_.cmdPlay.BackColor = f_.lblNe.BackColor();
    f_.cmdCanc.Enabled = false;
    f_.PlayFinito();
    BloccaComandi(false);
    if (f_.melodia.IndiceAttiva() == soprano) f_.cmdAddBm.Enabled = true;
    if (f_.melodia.modoPasso) {
        f_.SpegniNoteVoci();
    } else {
        f_.lblNe.Caption = "";
        f_.lblPnn.Caption = "";
        f_.cmdCanc.Enabled = true;
        f_.SpegniTutteLeNote();
    }
    f_.Cursore.Left = f_.lblRigaCur.Left();
}

/// Notes that only a file edited by hand can hold: what ends a play goes over the keys alone.
void Esecuzione::SpegniFuoriTastiera() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        if (v.staSuonando && !SullaTastiera(v.notaCorrente))
            a_.suono.NotaOff(Canale(voce), v.notaCorrente);
        v.staSuonando = false;
    }
}

}  // namespace corvana
