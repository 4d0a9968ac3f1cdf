// Which keys are down. Virtual-key codes name keys by their place on the keyboard. Logic thread.
#pragma once

#include <bitset>

namespace corvana {

namespace vk {
constexpr int back = 8, tab = 9, invio = 13, maiusc = 16, ctrl = 17, alt = 18, esc = 27;
constexpr int spazio = 32, pagSu = 33, pagGiu = 34, fine = 35, inizio = 36;
constexpr int sinistra = 37, su = 38, destra = 39, giu = 40, ins = 45, canc = 46;
constexpr int tastierino0 = 96;  ///< 96 to 105 are 0 to 9 of the keypad
constexpr int f1 = 112;
constexpr int virgola = 188, punto = 190;
}  // namespace vk

/// The state changes as key events are delivered, so that a poll and the events agree.
class TastiPremuti {
public:
    bool Premuto(int codice) const { return Valido(codice) && giu_[static_cast<unsigned>(codice)]; }
    void Segna(int codice, bool premuto) {
        if (Valido(codice)) giu_[static_cast<unsigned>(codice)] = premuto;
    }
    void LasciaTutti() { giu_.reset(); }

private:
    static bool Valido(int codice) { return codice > 0 && codice < 256; }
    std::bitset<256> giu_;
};

}  // namespace corvana
