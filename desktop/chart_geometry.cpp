#include "desktop/chart_geometry.h"

#include <array>
#include <cstdlib>

namespace corvana {

namespace {

/// In the treble staff.
constexpr std::array passiDiesis = {8, 5, 9, 6, 3, 7, 4};
constexpr std::array passiBemolli = {4, 7, 3, 6, 2, 5, 1};
/// A note's place in the bass staff lies lower than that of its namesake in the treble staff.
constexpr int passoPiuInBasso = 2;
/// C lies on the first line below the staff.
constexpr int passoDelDo = -2;

}  // namespace

std::vector<int> PassiArmatura(int accidenti, ChiaveRigo chiave) {
    const auto& tutti = accidenti > 0 ? passiDiesis : passiBemolli;
    std::vector<int> passi(tutti.begin(), tutti.begin() + std::abs(accidenti));
    if (chiave == ChiaveRigo::Basso)
        for (int& passo : passi)
            passo -= passoPiuInBasso;
    return passi;
}

int PassoDellaScala(int nota) {
    return passoDelDo + nota;
}

int ParteDellIntero(int valore) {
    return 1 << valore;
}

}  // namespace corvana
