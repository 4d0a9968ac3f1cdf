// The settings of the pulses that tick along with a melody.
#include "composer/composer.h"
#include "composer/pulses.h"
#include "core/text.h"

namespace corvana {

void frmComposer::PonMetronomoIniziale() {
    Pulsazioni.PonTesto("2");
    DurataPulsazioni.PonTesto("4");
    metroAttivo = false;
}

void frmComposer::lblTs_Click() {
    if (lblTs.Caption() == "Off") {
        PonMetronomo(true, Rgb(0, 255, 0), Rgb(0, 0, 255));
    } else if (lblTs.Caption() == "On") {
        PonMetronomo(false, Rgb(255, 0, 0), Rgb(255, 255, 255));
        lblDebug.Visible = false;
    }
}

void frmComposer::PonMetronomo(bool attivo, Colore fondo, Colore lettere) {
    metroAttivo = attivo;
    lblTs.Caption = attivo ? "On" : "Off";
    lblTs.BackColor = fondo;
    lblTs.ForeColor = lettere;
    frMetro.Visible = attivo;
}

void frmComposer::Pulsazioni_Click() {
    pattern = LetterePulsi(Pulsazioni.Text());
    ultimoPulso = static_cast<std::uint8_t>(pattern.size() - 1);
    InizioPuls.Min = static_cast<int>(pattern.size());
    InizioPuls.PonValore(1);
    LblInizioPuls.Caption = "1";
    pulsoIniziale = 0;
}

void frmComposer::DurataPulsazioni_Click() {
    durataPulso = DurataPulsi(DurataPulsazioni.Text());
}

void frmComposer::InizioPuls_Change() {
    LblInizioPuls.Caption = std::to_string(InizioPuls.Value());
    pulsoIniziale = static_cast<std::uint8_t>(InizioPuls.Value() - 1);
}

}  // namespace corvana
