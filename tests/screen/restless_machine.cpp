#include "tests/screen/restless_machine.h"

#include <stdexcept>

namespace corvana::prova {

namespace {

constexpr std::size_t portePiene = 3;

}  // namespace

MacchinaInquieta::MacchinaInquieta(std::uint32_t seme) : caso_(seme) {
    Ripara();
}

std::vector<std::string> MacchinaInquieta::Ambiente() const {
    return {"SDL_AUDIODRIVER=pulseaudio", "PULSE_SERVER=" + serverSonoro_.Indirizzo()};
}

int MacchinaInquieta::Caso(int quanti) {
    return std::uniform_int_distribution<int>(0, quanti - 1)(caso_);
}

void MacchinaInquieta::Capita() {
    // A server's life has room for some ports.
    switch (Caso(6)) {
        case 0:
        case 1: return CapitaAlSuono();
        case 2: return CapitaAlMidi();
        default: return CapitaAllePorte();
    }
}

void MacchinaInquieta::Ripara() {
    while (suono_ != Stato::Presente)
        CapitaAlSuono();
    while (midi_ != Stato::Presente)
        CapitaAlMidi();
    if (porte_.empty()) NuovaPorta();
}

void MacchinaInquieta::RifaiMidi() {
    if (midi_ != Stato::Assente) UccidiMidi();
    AvviaMidi();
    NuovaPorta();
}

void MacchinaInquieta::CapitaAlSuono() {
    if (suono_ == Stato::Assente) return AvviaSuono();
    if (suono_ == Stato::Sospeso && Caso(2) == 0) {
        Annota("sound server goes on");
        serverSonoro_.Riprendi();
        suono_ = Stato::Presente;
    } else if (suono_ == Stato::Presente && Caso(2) == 0) {
        Annota("sound server stopped");
        serverSonoro_.Sospendi();
        suono_ = Stato::Sospeso;
    } else {
        Annota("sound server killed");
        serverSonoro_.Uccidi();
        suono_ = Stato::Assente;
    }
}

void MacchinaInquieta::AvviaSuono() {
    Annota("sound server started");
    if (!serverSonoro_.Avvia()) throw std::runtime_error("the sound server doesn't start");
    suono_ = Stato::Presente;
}

void MacchinaInquieta::CapitaAlMidi() {
    if (midi_ == Stato::Assente) return AvviaMidi();
    if (midi_ == Stato::Sospeso && Caso(2) == 0) {
        Annota("MIDI server goes on");
        serverMidi_.Riprendi();
        midi_ = Stato::Presente;
    } else if (midi_ == Stato::Presente && Caso(2) == 0) {
        Annota("MIDI server stopped");
        serverMidi_.Sospendi();
        midi_ = Stato::Sospeso;
    } else {
        UccidiMidi();
    }
}

void MacchinaInquieta::UccidiMidi() {
    Annota("MIDI server killed");
    serverMidi_.Uccidi();
    porte_.clear();
    midi_ = Stato::Assente;
}

void MacchinaInquieta::AvviaMidi() {
    Annota("MIDI server started");
    constexpr int volte = 3;
    int tentativi = 0;
    while (!serverMidi_.Avvia())
        if (++tentativi == volte) throw std::runtime_error("the MIDI server doesn't start");
    midi_ = Stato::Presente;
}

void MacchinaInquieta::CapitaAllePorte() {
    if (midi_ == Stato::Assente) return AvviaMidi();
    const bool viene = porte_.size() < portePiene && (porte_.empty() || Caso(2) == 0);
    // A server that is stopped takes no new port.
    if (midi_ == Stato::Presente && viene) return NuovaPorta();
    if (porte_.empty()) return;
    Annota("port gone");
    porte_.erase(porte_.begin() + Caso(Porte()));
}

void MacchinaInquieta::NuovaPorta() {
    Annota("port come");
    porte_.push_back(std::make_unique<PortaRicevente>("strumento" + std::to_string(nome_++)));
}

std::size_t MacchinaInquieta::Messaggi() const {
    std::size_t messaggi = 0;
    for (const auto& porta : porte_)
        messaggi += porta->Arrivati().size();
    return messaggi;
}

}  // namespace corvana::prova
