// The melody window as the instrument picker sees it, which chooses the instrument of one of its
// voices and plays the melody meanwhile. Logic thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace corvana {

class VociComposer {
public:
    VociComposer() = default;
    VociComposer(const VociComposer&) = delete;
    VociComposer& operator=(const VociComposer&) = delete;
    virtual ~VociComposer() = default;

    /// Name of the voice that is the active one.
    virtual std::string voceAttiva() const = 0;
    virtual void PonVoceAttiva(const std::string& nome) = 0;
    /// The instrument of a voice, from 0, the soprano. A melody's file may say any number.
    virtual std::int32_t strumento(std::size_t voce) const = 0;
    /// Gives the active voice an instrument.
    virtual void SceltaStrum(std::int32_t programma) = 0;
    /// Makes a voice the active one there.
    virtual void VoceAttiva_Click(int Index) = 0;
    /// The letter that the alto goes by.
    virtual std::string SiglaContralto() const = 0;
    virtual bool SopranoVuoto() const = 0;
    /// Plays the melody and returns when the play has ended; or asks what plays to stop.
    virtual void cmdPlay_Click() = 0;
};

}  // namespace corvana
