#include <gtest/gtest.h>
#include <poll.h>

#include <thread>

#include "desktop/mailbox.h"

namespace corvana {
namespace {

bool Suona(int presa) {
    pollfd attesa{presa, POLLIN, 0};
    return poll(&attesa, 1, 0) == 1;
}

CambiaProprieta Cambio(int controllo) {
    return {1, controllo, &Valori::Value, 0};
}

TEST(Cassetta, CommandsComeOutInTheOrderInWhichTheyWerePut) {
    Cassetta cassetta;
    for (int i = 0; i < 3; ++i)
        cassetta.Metti(Cambio(i));
    const auto comandi = cassetta.Prendi();
    ASSERT_EQ(comandi.size(), 3U);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(std::get<CambiaProprieta>(comandi[static_cast<std::size_t>(i)]).controllo, i);
    EXPECT_TRUE(cassetta.Prendi().empty());
}

TEST(Cassetta, TheBellRingsFromTheFirstCommandUntilAllAreTaken) {
    Cassetta cassetta;
    EXPECT_FALSE(Suona(cassetta.Presa()));
    cassetta.Metti(Cambio(0));
    cassetta.Metti(Cambio(1));
    EXPECT_TRUE(Suona(cassetta.Presa()));
    cassetta.Prendi();
    EXPECT_FALSE(Suona(cassetta.Presa()));
    cassetta.Metti(Cambio(2));
    EXPECT_TRUE(Suona(cassetta.Presa()));
}

TEST(Cassetta, NoCommandIsLostWhileTheOtherThreadTakes) {
    constexpr int quanti = 20'000;
    Cassetta cassetta;
    std::thread mittente([&] {
        for (int i = 0; i < quanti; ++i)
            cassetta.Metti(Cambio(i));
    });
    int presi = 0;
    while (presi < quanti) {
        pollfd attesa{cassetta.Presa(), POLLIN, 0};
        ASSERT_EQ(poll(&attesa, 1, 30'000), 1) << "the bell fell silent at " << presi;
        for (const Comando& comando : cassetta.Prendi())
            ASSERT_EQ(std::get<CambiaProprieta>(comando).controllo, presi++);
    }
    mittente.join();
}

}  // namespace
}  // namespace corvana
