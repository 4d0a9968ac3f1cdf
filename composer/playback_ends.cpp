// How a play begins, what of the melody it goes over, and how it ends.
#include "composer/playback.h"
#include "core/octaves.h"
#include "melody/tokens.h"

namespace corvana {

/// What a play left sounding that was stopped and still lies below on this stack.
void Esecuzione::SpegniResti() {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        StatoVoce& v = stato_.voci[voce];
        if (!v.staSuonando) continue;
        a_.suono.NotaOff(Canale(voce), v.notaCorrente);
        vicine_.mostraTasto(v.notaCorrente - notaPiuBassa, false);
        v.staSuonando = false;
    }
    SpegniPulso();
}

void Esecuzione::Comincia() {
    s_.inEsecuzione = true;
    aPassi_ = s_.passo.modoPasso;
    comandi_.MostraInPlay();
    vicine_.bloccaModifiche(true);
    vicine_.abilitaCanc(false);
    vicine_.abilitaAddBm(false);
    if (!s_.passo.modoPasso) {
        if (melodia_.IndiceAttiva() != soprano && melodia_.Attiva().Vuota())
            vicine_.scegliVoce(soprano);
        s_.lblNt.Caption = std::to_string(melodia_.Attiva().numeroNote);
    }
    msPerTick_ = MsPerTick(melodia_.tempo);
}

/// The notes of a voice; 0 for one whose text is empty, whatever its arrays still hold.
long Esecuzione::Note(std::size_t voce) const {
    const VoceMelodia& v = melodia_.voci[voce];
    return v.Vuota() ? 0 : NoteIntere(v);
}

void Esecuzione::PreparaVoci() {
    comandi_.CalcolaTickTotali();
    limiteTick_ = stato_.tickTotali;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        stato_.voci[voce].posizione = 0;
        stato_.voci[voce].ultima = static_cast<std::int16_t>(Note(voce) - 1);
    }
    if (vicine_.battuta.metroAttivo)
        tickPulso_ = static_cast<Tick>(vicine_.battuta.durataPulso / quartiPerTick);
}

bool Esecuzione::Intera() const {
    const VoceMelodia& v = melodia_.voci[soprano];
    return v.Vuota() || s_.passo.modoPasso ||
           (tratto_.ultimaNota >= v.numeroNote - 1 && tratto_.primaNota <= 0);
}

void Esecuzione::ScegliTratto() {
    stato_.parziale = !Intera();
    if (!stato_.parziale) return;
    stato_.tickFineRange = comandi_.TickFinoANota(tratto_.ultimaNota);
    stato_.tickPrimaInizio =
        comandi_.TickFinoANota(static_cast<std::int16_t>(tratto_.primaNota - 1));
    if (tratto_.primaNota == 0)
        limiteTick_ = stato_.tickFineRange - 1;
    else
        PreparaParziale();
}

void Esecuzione::PreparaParziale() {
    limiteTick_ = stato_.tickFineRange - stato_.tickPrimaInizio - 1;
    for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce) {
        inizi_[voce] =
            CercaPunto(melodia_.voci[voce].durateVoce, Note(voce), stato_.tickPrimaInizio);
    }
    if (vicine_.battuta.metroAttivo)
        inizioPulso_ = PulsoDopo(vicine_.battuta.pulsoIniziale, vicine_.battuta.ultimoPulso,
                                 tickPulso_, stato_.tickPrimaInizio);
}

void Esecuzione::Termina() {
    SpegniFuoriTastiera();
    for (StatoVoce& voce : stato_.voci)
        voce.posizione = 0;
    SpegniPulso();
    stato_.pulso.pulsoCorrente = 0;
    stato_.pulso.pulsoDeveSuonare = false;
    comandi_.FermaMelodia();
    melodia_.inCaricamento = false;
    LasciaIComandi();
    comandi_.Cursore.Left = comandi_.lblRigaCur.Left();
}

void Esecuzione::LasciaIComandi() {
    vicine_.abilitaCanc(false);
    comandi_.PlayFinito();
    vicine_.bloccaModifiche(false);
    if (melodia_.IndiceAttiva() == soprano) vicine_.abilitaAddBm(true);
    if (s_.passo.modoPasso) {
        // A step that followed the Stop at once ended on this stack before the play that it
        // stopped.
        aPassi_ ? vicine_.spegniNoteVoci() : vicine_.spegniTutteLeNote();
    } else {
        s_.lblNe.Caption = "";
        s_.lblPnn.Caption = "";
        vicine_.abilitaCanc(true);
        vicine_.spegniTutteLeNote();
    }
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
