#include "sound/outputs/quiet_libraries.h"

#include <alsa/asoundlib.h>
#include <jack/jack.h>

#include <mutex>

namespace corvana {

namespace {

void TaciAlsa(const char*, int, const char*, int, const char*, ...) {}
void TaciJack(const char*) {}

std::once_flag taciute;

}  // namespace

void TaciLibrerie() {
    std::call_once(taciute, [] {
        snd_lib_error_set_handler(TaciAlsa);
        jack_set_error_function(TaciJack);
        jack_set_info_function(TaciJack);
    });
}

}  // namespace corvana
