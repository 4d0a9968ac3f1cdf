// Where the signs of the reference chart stand on a staff, in steps of half a space above its
// lowest line, and how its columns lie. Pure; any thread.
#pragma once

#include <vector>

namespace corvana {

enum class ChiaveRigo { Violino, Basso };

/// Of the accidentals of a key signature, from left to right; `accidenti` are sharps, or flats when
/// it is less than 0, at most seven of either.
std::vector<int> PassiArmatura(int accidenti, ChiaveRigo chiave);

/// Of the notes from C to B about which the chart tells the names, on the treble staff.
int PassoDellaScala(int nota);

/// How many of that note or rest last as long as a whole one; `valore` is 0 for a whole note, 6 for
/// a sixty-fourth.
int ParteDellIntero(int valore);

}  // namespace corvana
