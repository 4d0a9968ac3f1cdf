// What the renderer of a stream needs to stay alive: the mixer and the waves that it may be
// playing.
#pragma once

#include "sound/outputs/mixer.h"
#include "sound/outputs/wave_store.h"

namespace corvana {

struct MotoreSonoro {
    MagazzinoOnde onde;
    Mescolatore mescolatore;
};

}  // namespace corvana
