#include <gtest/gtest.h>
#include <poll.h>

#include <csignal>

#include "desktop/signals.h"

namespace corvana {
namespace {

bool Suona(const Segnali& segnali) {
    pollfd attesa{segnali.Campanello().Presa(), POLLIN, 0};
    return poll(&attesa, 1, 0) == 1;
}

TEST(Segnali, InterruptTerminateAndHangUpRingTheBell) {
    const Segnali segnali;
    EXPECT_FALSE(Suona(segnali));
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) {
        std::raise(segnale);
        EXPECT_TRUE(Suona(segnali));
        segnali.Campanello().Svuota();
        EXPECT_FALSE(Suona(segnali));
    }
}

TEST(Segnali, AfterwardsTheyMeanAgainWhatTheyMeant) {
    { const Segnali segnali; }
    struct sigaction azione {};
    sigaction(SIGTERM, nullptr, &azione);
    EXPECT_EQ(azione.sa_handler, SIG_DFL);
}

}  // namespace
}  // namespace corvana
