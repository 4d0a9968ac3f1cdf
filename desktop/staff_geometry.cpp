#include "desktop/staff_geometry.h"

namespace corvana {

namespace {

constexpr int primaPosizioneViolino = 40;
constexpr double altezzaPrimaLineaViolino = 1725, altezzaPrimaLineaBasso = 3870;

int PrimaLinea(int posizione) {
    return posizione >= primaPosizioneViolino ? primaLineaViolino : primaLineaBasso;
}

}  // namespace

double AltezzaDi(int posizione) {
    const int prima = PrimaLinea(posizione);
    const double sua =
        prima == primaLineaViolino ? altezzaPrimaLineaViolino : altezzaPrimaLineaBasso;
    return sua - (posizione - prima) * altezzaPosizione;
}

std::vector<int> LineeAggiunte(int posizione) {
    const int prima = PrimaLinea(posizione);
    const int ultima = prima + 2 * (lineePentagramma - 1);
    std::vector<int> linee;
    for (int sotto = prima - 2; sotto >= posizione; sotto -= 2)
        linee.push_back(sotto);
    for (int sopra = ultima + 2; sopra <= posizione; sopra += 2)
        linee.push_back(sopra);
    return linee;
}

}  // namespace corvana
