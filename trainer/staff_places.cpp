#include "trainer/staff_places.h"

namespace corvana {

namespace {

constexpr int primaRigaFa = 18, primaRigaSol = 46;
constexpr int primaDellaChiaveSol = 40;
/// From a staff's lowest line to its highest one.
constexpr int altezzaRigo = 8;

std::string Contato(const std::string& parola, int quale) {
    return parola + " " + std::to_string(quale);
}

std::string SulRigo(int passo, const TestiLingua& testi) {
    return Contato(passo % 2 == 0 ? testi.LuogoLinea : testi.LuogoSpazio, passo / 2 + 1);
}

/// So many steps beyond the outer line.
std::string Fuori(int passi, const std::string& verso, const TestiLingua& testi) {
    if (passi == 1) return verso;
    return verso + ", " +
           Contato(passi % 2 == 0 ? testi.LuogoTaglio : testi.LuogoOltreTaglio, passi / 2);
}

}  // namespace

std::string LuogoSulRigo(const Posizione& posizione, const TestiLingua& testi) {
    if (testi.LuogoChiaveSol.empty()) return {};
    const bool chiaveSol = posizione.numero >= primaDellaChiaveSol;
    const std::string chiave = (chiaveSol ? testi.LuogoChiaveSol : testi.LuogoChiaveFa) + ", ";
    const int passo = posizione.numero - (chiaveSol ? primaRigaSol : primaRigaFa);
    if (passo < 0) return chiave + Fuori(-passo, testi.LuogoSotto, testi);
    if (passo > altezzaRigo) return chiave + Fuori(passo - altezzaRigo, testi.LuogoSopra, testi);
    return chiave + SulRigo(passo, testi);
}

}  // namespace corvana
