// Real-time scheduling for the few threads whose lateness a user hears: the logic's and the one
// that renders the sound. Any thread.
#pragma once

#include <sys/types.h>

namespace corvana {

/// Asks the system to end the waits of the calling thread as exactly as it can and to run it ahead
/// of busy programs: directly, and where the user may not have that, by RealtimeKit, on a thread of
/// its own. Returns at once. Failing is harmless and nobody is told.
///
/// A thread that then computes for longer than `calcoloPuntuale` without a wait goes back to
/// ordinary scheduling, for good: it may be one that never ends.
void PreferisciPuntualita();

/// Microseconds; twice as much would end the process, so a thread is put back well before.
constexpr unsigned long calcoloPuntuale = 100'000;

/// Puts that limit on the whole process, with its double as the end, both no larger than `massimo`
/// (microseconds) allows. False when the system refuses.
bool LimitaCalcoloPuntuale(unsigned long massimo = 2 * calcoloPuntuale);

}  // namespace corvana
