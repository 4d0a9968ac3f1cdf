// What a test hears in rendered or recorded sound: its pitch, its loudness, where notes begin.
#pragma once

#include <span>
#include <vector>

namespace corvana::prova {

constexpr double frequenzaUdito = 48000;

/// Left and right brought to one channel.
std::vector<float> Mono(std::span<const float> stereo);

/// The part from `inizio` on, `durata` long, both in seconds; shorter where the sound ends.
std::span<const float> Parte(std::span<const float> mono, double inizio, double durata);

/// The fundamental in Hz, between 40 and 3000, of a part that holds one note (some 0.1 s of it);
/// 0 when the part has no clear pitch.
double Altezza(std::span<const float> mono);

/// The nearest MIDI number of a frequency, with its fraction; 69 is 440 Hz.
double NotaMidi(double hertz);

/// The root of the mean square.
double Livello(std::span<const float> campioni);
/// The largest magnitude.
double Picco(std::span<const float> campioni);

/// Seconds at which notes are struck: where the sound grows fast. Strokes nearer to each other than
/// 0.1 s count as one.
std::vector<double> Attacchi(std::span<const float> mono);

/// The MIDI numbers of the notes, one at a time, in their order; one that is struck again at once
/// counts once. Silence and moments without a clear pitch are passed over.
std::vector<int> NoteUdite(std::span<const float> mono);

/// Where in `mono` a known sound begins, to some tenths of a millisecond: the place within `raggio`
/// of `intorno`, all in seconds, where `modello` fits best.
double Ritrova(std::span<const float> mono, std::span<const float> modello, double intorno,
               double raggio);

/// Strength of one frequency in a part, as a Goertzel filter hears it.
double Forza(std::span<const float> mono, double hertz);

}  // namespace corvana::prova
