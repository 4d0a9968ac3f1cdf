#include "realtime/punctuality.h"

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <future>

#include "tests/realtime/bus.h"

namespace corvana::prova {

namespace {

/// Runs it on a thread of its own, whose scheduling and rights nobody inherits.
template <typename Cosa>
auto InDisparte(Cosa cosa) {
    return std::async(std::launch::async, std::move(cosa)).get();
}

/// Takes from the calling thread what the administrator may do.
void RinunciaAiDiritti() {
    const rlimit nessuno{0, 0};
    setrlimit(RLIMIT_RTPRIO, &nessuno);
    __user_cap_header_struct testata{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct niente[2]{};
    syscall(SYS_capset, &testata, niente);
}

bool Puntuale() {
    return (sched_getscheduler(0) & ~SCHED_RESET_ON_FORK) == SCHED_RR;
}

/// Computes and never waits until it is scheduled as others are.
void CalcolaFinoAllOrdinario() {
    while (Puntuale()) {}
}

}  // namespace

TEST(Puntualita, WhoMayHaveRealTimeSchedulingGetsIt) {
    InDisparte([] {
        PreferisciPuntualita();
        if (!Puntuale()) GTEST_SKIP() << "this user may not";
        EXPECT_NE(sched_getscheduler(0) & SCHED_RESET_ON_FORK, 0);
    });
}

TEST(Puntualita, WhoComputesLongerThanTheLimitGoesBackToOrdinarySchedulingAndLives) {
    InDisparte([] {
        PreferisciPuntualita();
        if (!Puntuale()) GTEST_SKIP() << "this user may not";
        CalcolaFinoAllOrdinario();
    });
}

TEST(Puntualita, TheLimitsSignalPutsBackTheThreadThatGetsItAndNoOther) {
    InDisparte([] {
        PreferisciPuntualita();
        if (!Puntuale()) GTEST_SKIP() << "this user may not";
        InDisparte([] {
            PreferisciPuntualita();
            pthread_kill(pthread_self(), SIGXCPU);
            EXPECT_FALSE(Puntuale());
        });
        EXPECT_TRUE(Puntuale());
    });
}

TEST(Puntualita, WhoMayNotHaveItAsksRealtimeKitForHisThread) {
    const BusPrivato bus;
    RealtimeKitFinto servizio({});
    const auto filo = InDisparte([] {
        RinunciaAiDiritti();
        PreferisciPuntualita();
        return gettid();
    });
    EXPECT_EQ(servizio.Richiesta().filo, static_cast<std::uint64_t>(filo));
}

TEST(Puntualita, TheSoftLimitComesWellBeforeTheOneThatEndsTheProcess) {
    ASSERT_TRUE(LimitaCalcoloPuntuale());
    rlimit limite{};
    getrlimit(RLIMIT_RTTIME, &limite);
    EXPECT_LE(limite.rlim_max, 2 * calcoloPuntuale);
    EXPECT_LE(limite.rlim_cur, limite.rlim_max / 2);
}

}  // namespace corvana::prova
