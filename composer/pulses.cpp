#include "composer/pulses.h"

#include <algorithm>
#include <array>

namespace corvana {

namespace {

constexpr std::array<std::string_view, 9> lettere = {
    "a", "ab", "abb", "abbb", "abbcb", "abbcbb", "abbbcbb", "abbbcbbb", "abbcbbcbb"};

struct Denominatore {
    std::string_view testo;
    double quarti;
};
constexpr std::array<Denominatore, 5> denominatori = {
    {{"1", 4}, {"2", 2}, {"4", 1}, {"8", 0.5}, {"16", 0.25}}};

}  // namespace

std::string_view LetterePulsi(std::string_view pulsazioni) {
    const bool cifra = pulsazioni.size() == 1 && pulsazioni[0] >= '1' && pulsazioni[0] <= '9';
    return cifra ? lettere[static_cast<std::size_t>(pulsazioni[0] - '1')] : lettere[1];
}

double DurataPulsi(std::string_view denominatore) {
    const auto* trovato =
        std::find_if(denominatori.begin(), denominatori.end(),
                     [&](const Denominatore& d) { return d.testo == denominatore; });
    return trovato == denominatori.end() ? 1 : trovato->quarti;
}

}  // namespace corvana
