#include "composer/pulses_panel.h"

#include "composer/rows.h"
#include "melody/numbers.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr int forzaPulsi = 120;  // less the volume bar's value
constexpr int pulsiMassimi = 9;
constexpr int pulsiDisegnati = 8;
constexpr Colore coloreAcceso = Rgb(0, 255, 0);
constexpr Colore coloreSpento = Rgb(255, 0, 0);
constexpr Colore lettereAccese = Rgb(0, 0, 255);
constexpr Colore lettereSpente = Rgb(255, 255, 255);

}  // namespace

PannelloPulsi::PannelloPulsi(Form& finestra) : finestra_(finestra) {
    Prepara();
    lblTs.Click = [this] { lblTs_Click(); };
    Label6.DblClick = [this] { Label6_DblClick(); };
    Pulsazioni.Click = [this] { Pulsazioni_Click(); };
    DurataPulsazioni.Click = [this] { DurataPulsazioni_Click(); };
    InizioPuls.Change = [this] { InizioPuls_Change(); };
}

void PannelloPulsi::Prepara() {
    VolumeMetro.Min = forzaPulsi;
    VolumeMetro.Max = 0;
    InizioPuls.Min = pulsiDisegnati;
    InizioPuls.Max = 1;
    InizioPuls.Value = 1;
    LblInizioPuls.Caption = "1";
    Riempi(Pulsazioni, Numeri(pulsiMassimi), 1);
    Riempi(DurataPulsazioni, {"1", "2", "4", "8", "16"}, 2);
    PonMetronomo(false, coloreSpento, lettereSpente);
    lblDebug.Visible = false;
}

void PannelloPulsi::Carica() {
    Pulsazioni.PonTesto("2");
    DurataPulsazioni.PonTesto("4");
    battuta.metroAttivo = false;
}

void PannelloPulsi::lblTs_Click() {
    if (lblTs.Caption() == "Off") {
        PonMetronomo(true, coloreAcceso, lettereAccese);
    } else if (lblTs.Caption() == "On") {
        PonMetronomo(false, coloreSpento, lettereSpente);
        lblDebug.Visible = false;
    }
}

void PannelloPulsi::Spegni() {
    PonMetronomo(false, coloreSpento, lettereSpente);
}

void PannelloPulsi::PonMetronomo(bool attivo, Colore fondo, Colore lettere) {
    battuta.metroAttivo = attivo;
    lblTs.Caption = attivo ? "On" : "Off";
    lblTs.BackColor = fondo;
    lblTs.ForeColor = lettere;
    frMetro.Visible = attivo;
}

void PannelloPulsi::Label6_DblClick() {
    if (frMetro.Visible()) lblDebug.Visible = !lblDebug.Visible();
}

void PannelloPulsi::Pulsazioni_Click() {
    battuta.pattern = LetterePulsi(Pulsazioni.Text());
    battuta.ultimoPulso = static_cast<std::uint8_t>(battuta.pattern.size() - 1);
    InizioPuls.Min = static_cast<int>(battuta.pattern.size());
    InizioPuls.PonValore(1);
    LblInizioPuls.Caption = "1";
    battuta.pulsoIniziale = 0;
}

void PannelloPulsi::DurataPulsazioni_Click() {
    battuta.durataPulso = DurataPulsi(DurataPulsazioni.Text());
}

void PannelloPulsi::InizioPuls_Change() {
    LblInizioPuls.Caption = std::to_string(InizioPuls.Value());
    battuta.pulsoIniziale = static_cast<std::uint8_t>(InizioPuls.Value() - 1);
}

std::int16_t PannelloPulsi::Forza() const {
    return static_cast<std::int16_t>(forzaPulsi - VolumeMetro.Value());
}

void PannelloPulsi::ContaPulso() {
    if (lblDebug.Visible()) lblDebug.Caption = std::to_string(++pulsiContati_);
}

void PannelloPulsi::Prendi(const std::vector<std::string>& campi) {
    Pulsazioni.PonTesto(Elemento(campi, 1));
    DurataPulsazioni.PonTesto(Elemento(campi, 2));
    InizioPuls.PonValore(NumeroLetto(Elemento(campi, 3)));
}

std::optional<MetronomoMel> PannelloPulsi::DaScrivere() const {
    if (!battuta.metroAttivo) return std::nullopt;
    return MetronomoMel{Pulsazioni.Text(), DurataPulsazioni.Text(), InizioPuls.Value()};
}

}  // namespace corvana
