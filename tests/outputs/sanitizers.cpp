// What the sanitizers are to pass over: the audio libraries aren't built with them, so that the
// thread sanitizer doesn't see how they keep their own data apart, and what hangs with a dead
// server is never freed.
extern "C" {
const char* __tsan_default_suppressions();
const char* __lsan_default_suppressions();

const char* __tsan_default_suppressions() {
    return "called_from_lib:libSDL2\n"
           "called_from_lib:libfluidsynth\n"
           "called_from_lib:libgomp\n"
           "called_from_lib:libpulse.so\n"
           "called_from_lib:libpulsecommon\n";
}

const char* __lsan_default_suppressions() {
    return "leak:libpulse\nleak:libSDL2\nleak:libjack\n";
}
}
