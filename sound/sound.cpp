#include "sound/sound.h"

#include <array>

namespace corvana {

namespace {

constexpr std::int16_t sogliaCodiciBassi = 400;  ///< above it a value is a low code
constexpr std::int16_t scartoCodiciBassi = 465;  ///< low code minus this is the MIDI number
constexpr std::int16_t scartoIndice = 36;        ///< index plus this is the MIDI number
constexpr std::int16_t baseNotaOn = 143;         ///< status of a note on, less the channel from 1
constexpr std::int32_t cambioProgramma = 192;
constexpr std::int16_t canaleNota = 1;
constexpr std::int16_t velocitaNota = 100;
constexpr std::int16_t velocitaSigla = 127;
constexpr double attesaMassima = 10;

constexpr bool CodiceBasso(std::int16_t valore) {
    return valore > sogliaCodiciBassi;
}

constexpr std::int16_t Midi(std::int16_t valore, int scarto) {
    return static_cast<std::int16_t>(valore + scarto);
}

}  // namespace

bool Suono::ApriMidi(std::int32_t dispositivo) {
    ChiudiMidi();
    const int esito = piattaforma_.midiOutOpen(HandleMidi, dispositivo);
    if (esito) ErroreMidi("Open", static_cast<std::int16_t>(esito));
    return esito == midiSenzaErrore;
}

void Suono::ChiudiMidi() {
    if (!HandleMidi) return;
    const int esito = piattaforma_.midiOutClose(HandleMidi);
    if (esito)
        ErroreMidi("Close midi error: ", static_cast<std::int16_t>(esito));
    else
        HandleMidi = 0;
}

void Suono::NotaOn(std::int16_t canale, std::int16_t nota, std::int16_t velocita) {
    MessaggioMidi(Midi(canale, baseNotaOn), nota, velocita);
}

void Suono::NotaOff(std::int16_t canale, std::int16_t nota) {
    MessaggioMidi(Midi(canale, baseNotaOn), nota, 0);
}

void Suono::MessaggioMidi(std::int16_t stato, std::int16_t dato1, std::int16_t dato2) {
    UltimoMessaggio = (std::int32_t{dato2} * 256 + dato1) * 256 + stato;
    const int esito =
        piattaforma_.midiOutShortMsg(HandleMidi, static_cast<std::uint32_t>(UltimoMessaggio));
    EsitoMidi = static_cast<std::int16_t>(esito);
    if (esito) ErroreMidi("ShortMsg", EsitoMidi);
}

void Suono::CambiaStrumento(std::int32_t programma, std::int32_t canaleIndice) {
    const auto messaggio =
        static_cast<std::uint32_t>(std::int64_t{programma} * 256 + cambioProgramma + canaleIndice);
    piattaforma_.midiOutShortMsg(HandleMidi, messaggio);
}

void Suono::ErroreMidi(const std::string& operazione, std::int16_t codice) {
    riquadri_.MsgBox("Operation:" + operazione + "\r\n" +
                     piattaforma_.midiOutGetErrorTextA(codice));
}

void Suono::Attendi(double secondi) {
    if (secondi > 0 && secondi < attesaMassima) pompa_.Attendi(secondi);
}

void Suono::FermaUltima(bool comunque) {
    if (CodiceBasso(UltimaNota)) NotaOff(canaleNota, Midi(UltimaNota, -scartoCodiciBassi));
    // Not an else: a low code's second note off carries into the velocity byte and comes out as a
    // very faint note, which belongs to the sound of the low notes.
    if (comunque || UltimaNota >= 0) NotaOff(canaleNota, Midi(UltimaNota, scartoIndice));
}

void Suono::SuonaNota(std::int16_t valore) {
    if (valore <= -2) return ProssimaDomanda();
    const bool soloFermare = valore == -1;
    FermaUltima(soloFermare);
    if (soloFermare) return;
    const int scarto = CodiceBasso(valore) ? -scartoCodiciBassi : scartoIndice;
    NotaOn(canaleNota, Midi(valore, scarto), velocitaNota);
    IntoAttesa = true;
    UltimaNota = valore;
}

void Suono::ProssimaDomanda() {
    if (!domanda_) return;
    const std::int16_t intoNota = domanda_->ScegliIntoNota();
    if (UltimaNota >= 0) NotaOff(canaleNota, Midi(UltimaNota, scartoIndice));
    NotaOn(canaleNota, Midi(intoNota, scartoIndice), velocitaNota);
    IntoAttesa = true;
    UltimaNota = intoNota;
    if (domanda_->NomeInVista()) {
        domanda_->sw(Midi(intoNota, scartoIndice), true);
        domanda_->MostraNome(intoNota);
    }
    if (!domanda_->ConRiferimento()) return;
    Attendi(0.9);
    NotaOff(canaleNota, Midi(UltimaNota, scartoIndice));
    if (domanda_->NomeInVista()) domanda_->sw(Midi(UltimaNota, scartoIndice), false);
}

void Suono::SuonaSigla(std::int16_t canale) {
    constexpr std::array<std::int16_t, 5> sigla = {71, 72, 69, 64, 69};
    constexpr double durata = 0.35;
    for (const std::int16_t nota : sigla) {
        NotaOn(canale, nota, velocitaSigla);
        Attendi(durata);
        NotaOff(canale, nota);
    }
}

}  // namespace corvana
