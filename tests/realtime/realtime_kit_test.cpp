#include "realtime/realtime_kit.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/realtime/bus.h"

namespace corvana::prova {

TEST(RealtimeKit, IsAskedForTheThreadThatWantsToBeOnTime) {
    const BusPrivato bus;
    RealtimeKitFinto servizio({});
    EXPECT_TRUE(ChiediARealtimeKit(4711));
    const RichiestaPuntuale richiesta = servizio.Richiesta();
    EXPECT_EQ(richiesta.filo, 4711U);
    EXPECT_GE(richiesta.priorita, 1U);
}

TEST(RealtimeKit, TheLimitOnComputingThatItDemandsStandsBeforeItIsAsked) {
    const BusPrivato bus;
    RealtimeKitFinto servizio({.limite = 50'000});
    EXPECT_TRUE(ChiediARealtimeKit(gettid()));
    EXPECT_LE(servizio.Richiesta().limite, 50'000U);
}

TEST(RealtimeKit, ARefusalIsTakenQuietly) {
    const BusPrivato bus;
    RealtimeKitFinto servizio({.concede = false});
    EXPECT_FALSE(ChiediARealtimeKit(gettid()));
}

TEST(RealtimeKit, WithoutTheServiceNothingIsSaid) {
    const BusPrivato bus;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(ChiediARealtimeKit(gettid()));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(RealtimeKit, WithoutABusNothingIsSaid) {
    setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus", 1);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(ChiediARealtimeKit(gettid()));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
}

}  // namespace corvana::prova
