// A play on a machine that wakes the logic late.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/support/late_machines.h"

namespace corvana::prova {

namespace {

std::vector<Registratore::Voce> Suonata(const Ritardo& ritardo) {
    BancoComposer b;
    b.Voce(soprano, "60;62;64;65;67;69;71;72;", "0.25");
    b.Voce(basso, "48;43;48;36;", "0.5");
    if (ritardo) b.orologio.PonRitardo(ritardo);
    b.Suona();
    return b.uscita.messaggi;
}

}  // namespace

TEST(RiproduzioneTarda, AMelodyPlaysAtTheSameInstants) {
    const auto puntuale = Suonata({});
    ASSERT_GT(puntuale.size(), 24U);
    for (const Ritardo& macchina : MacchineTarde())
        AspettatiUguali(puntuale, Suonata(macchina));
}

}  // namespace corvana::prova
