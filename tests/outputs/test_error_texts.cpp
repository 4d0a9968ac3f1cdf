#include <gtest/gtest.h>

#include <set>

#include "sound/outputs/error_texts.h"
#include "sound/platform_midi.h"

namespace corvana {
namespace {

TEST(TestiDegliErrori, EveryCodeHasATextOfItsOwnThatFits) {
    std::set<std::string> testi;
    for (const int codice : {midiSenzaErrore, midiDispositivoErrato, midiHandleErrato,
                             midiSenzaDriver, midiMemoria, 99, -3}) {
        const std::string testo = TestoErroreMidi(codice);
        EXPECT_FALSE(testo.empty());
        EXPECT_LE(testo.size(), 127U);
        EXPECT_TRUE(testi.insert(testo).second) << testo;
    }
}

}  // namespace
}  // namespace corvana
