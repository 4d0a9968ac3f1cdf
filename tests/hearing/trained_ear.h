// An ear that has listened to single notes and knows from then on which ones it hears, one or
// several at a time: it compares loudness at all semitones with what it remembers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

namespace corvana::prova {

class OrecchioEsperto {
public:
    enum class Volume : std::uint8_t {
        Noto,       ///< each note is as loud as it was remembered
        Qualunque,  ///< all are louder or softer alike
    };

    /// Remembers how a note sounds, by some tenths of a second that hold it alone.
    void Impara(int nota, std::span<const float> suono);
    /// What sounds, of these sets of notes that it knows: the place of the most likely one.
    std::size_t Riconosci(std::span<const float> suono,
                          const std::vector<std::vector<int>>& possibili, Volume volume) const;
    /// The one note that sounds, of all that it knows.
    int Nota(std::span<const float> suono) const;

private:
    static constexpr int piuBassa = 36;  ///< MIDI numbers
    static constexpr int piuAlta = 115;
    using Impronta = std::array<double, piuAlta - piuBassa + 1>;

    /// How loud a semitone may be where several notes meet there, which may weaken each other.
    struct Attesa {
        Impronta minima{}, massima{};
    };

    static Impronta Ascolta(std::span<const float> suono);
    Attesa Insieme(const std::vector<int>& note) const;
    /// 0 for what may be.
    static double Distanza(const Impronta& udita, const Attesa& attesa, Volume volume);

    std::map<int, Impronta> note_;
};

}  // namespace corvana::prova
