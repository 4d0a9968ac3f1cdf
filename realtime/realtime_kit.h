// The service of the system bus that gives ordinary users real-time scheduling.
#pragma once

#include <sys/types.h>

namespace corvana {

/// Asks it for the thread `filo` of this process, once the limit on computing that it demands is
/// set. Waits for the answer, as long as the bus lets a call wait. False when there is no such
/// service or it refuses. Any thread.
bool ChiediARealtimeKit(pid_t filo);

}  // namespace corvana
