// A machine whose sound server and MIDI ports come and go by chance, while a program lives on it.
// One thread.
#pragma once

#include <map>
#include <memory>
#include <random>
#include <vector>

#include "tests/outputs/midi_server.h"
#include "tests/outputs/sound_server.h"

namespace corvana::prova {

class MacchinaInquieta {
public:
    explicit MacchinaInquieta(std::uint32_t seme);
    /// What its programs need to know of it.
    std::vector<std::string> Ambiente() const;

    /// One thing happens: a server is killed, stopped, goes on or starts anew, a port comes or
    /// goes.
    void Capita();
    /// Both servers run, and there is a port at least.
    void Ripara();
    /// Another MIDI server, with a port, in place of the one that is there.
    void RifaiMidi();

    /// A number from 0 on, below `quanti`.
    int Caso(int quanti);

    bool SuonoPresente() const { return suono_ == Stato::Presente; }
    bool MidiPresente() const { return midi_ == Stato::Presente; }
    const ServerSonoro& Suono() const { return serverSonoro_; }
    int Porte() const { return static_cast<int>(porte_.size()); }
    /// How many messages have arrived at the ports that are there now.
    std::size_t Messaggi() const;
    /// How often each thing happened so far.
    const std::map<std::string, int>& Accaduto() const { return accaduto_; }

private:
    enum class Stato { Assente, Presente, Sospeso };

    void CapitaAlSuono();
    void CapitaAlMidi();
    void CapitaAllePorte();
    void AvviaSuono();
    void AvviaMidi();
    void UccidiMidi();
    void NuovaPorta();
    void Annota(const std::string& cosa) { ++accaduto_[cosa]; }

    std::mt19937 caso_;
    Stato suono_ = Stato::Assente, midi_ = Stato::Assente;
    ServerSonoro serverSonoro_;
    // A server ends before its ports: the other way round it would wait for their answers.
    std::vector<std::unique_ptr<PortaRicevente>> porte_;
    ServerMidi serverMidi_;
    int nome_ = 0;
    std::map<std::string, int> accaduto_;
};

}  // namespace corvana::prova
