#include "desktop/late_outputs.h"

#include <utility>

namespace corvana {

UsciteDifferite::UsciteDifferite(std::function<std::unique_ptr<PiattaformaMidi>()> crea)
    : promesse_(std::async(std::launch::async, std::move(crea))) {}

PiattaformaMidi& UsciteDifferite::Vere() {
    if (!vere_) vere_ = promesse_.get().get();
    return *vere_;
}

int UsciteDifferite::midiOutOpen(HandleDispositivo& handle, std::int32_t id) {
    return Vere().midiOutOpen(handle, id);
}

int UsciteDifferite::midiOutClose(HandleDispositivo handle) {
    return Vere().midiOutClose(handle);
}

int UsciteDifferite::midiOutReset(HandleDispositivo handle) {
    return Vere().midiOutReset(handle);
}

int UsciteDifferite::midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) {
    return Vere().midiOutShortMsg(handle, messaggio);
}

std::string UsciteDifferite::midiOutGetErrorTextA(int codice) {
    return Vere().midiOutGetErrorTextA(codice);
}

int UsciteDifferite::midiOutGetNumDevs() {
    return Vere().midiOutGetNumDevs();
}

int UsciteDifferite::midiOutGetDevCapsA(std::int32_t id, std::string& nome) {
    return Vere().midiOutGetDevCapsA(id, nome);
}

void UsciteDifferite::sndPlaySoundA(const std::string& percorso, unsigned flags) {
    Vere().sndPlaySoundA(percorso, flags);
}

void UsciteDifferite::Sveglia() {
    if (vere_) vere_->Sveglia();
}

bool UsciteDifferite::Udibile() {
    return Vere().Udibile();
}

}  // namespace corvana
