// The whole program in one life, one thing after the other as a guide would show it, and what is
// left of it at the next start.
#include <gtest/gtest.h>

#include "tests/desktop/tour.h"

namespace corvana::prova {
namespace {

void Guida(Giro& giro, const std::vector<Tappa>& tappe) {
    for (const Tappa& tappa : tappe) {
        SCOPED_TRACE(tappa.nome);
        ASSERT_NO_THROW(tappa.fai(giro));
    }
}

TEST(UnGiroDelProgramma, EverythingWorksOneAfterTheOther) {
    CasaDiMemoria casa;
    Giro giro(casa);
    Guida(giro, TappeDellaLettura());
    Guida(giro, TappeDellaMelodia());
    Guida(giro, TappeDellOrecchio());
    Guida(giro, TappeDegliAttrezzi());
}

}  // namespace
}  // namespace corvana::prova
