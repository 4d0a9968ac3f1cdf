#include "forms/event_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <limits>
#include <thread>

namespace corvana::prova {

namespace {

Evento Di(Fatto fatto, int controllo, int valore, std::uint32_t finestra = 1) {
    Evento e;
    e.finestra = finestra;
    e.controllo = controllo;
    e.fatto = fatto;
    e.valore = valore;
    return e;
}

/// The values of all that waits, in order.
std::vector<int> Svuota(CodaEventi& coda) {
    std::vector<int> valori;
    while (const auto e = coda.Prendi())
        valori.push_back(e->valore);
    return valori;
}

}  // namespace

TEST(CodaEventi, GivesWhatCameInItsOrder) {
    CodaEventi coda;
    EXPECT_TRUE(coda.Vuota());
    for (int i = 0; i < 5; ++i)
        coda.Aggiungi(Di(Fatto::Click, 1, i));
    EXPECT_FALSE(coda.Vuota());
    EXPECT_EQ(Svuota(coda), (std::vector{0, 1, 2, 3, 4}));
    EXPECT_FALSE(coda.Prendi().has_value());
}

TEST(CodaEventi, OfTheMovesOfOneSliderOnlyTheLastWaits) {
    CodaEventi coda;
    for (int i = 0; i < 100; ++i)
        coda.Aggiungi(Di(Fatto::Scroll, 1, i));
    EXPECT_EQ(Svuota(coda), (std::vector{99}));
}

TEST(CodaEventi, OfTheMovesOfThePointerOnlyTheLastWaitsWhateverItLiesOn) {
    CodaEventi coda;
    coda.Aggiungi(Di(Fatto::MouseMove, 1, 1));
    coda.Aggiungi(Di(Fatto::MouseMove, 2, 2));
    coda.Aggiungi(Di(Fatto::MouseMove, 1, 3));
    EXPECT_EQ(Svuota(coda), (std::vector{3}));
}

TEST(CodaEventi, MovesOfTwoSlidersAreTwoEvents) {
    CodaEventi coda;
    coda.Aggiungi(Di(Fatto::Scroll, 1, 1));
    coda.Aggiungi(Di(Fatto::Scroll, 2, 2));
    EXPECT_EQ(Svuota(coda), (std::vector{1, 2}));
}

TEST(CodaEventi, MovesInTwoWindowsAreTwoEvents) {
    CodaEventi coda;
    coda.Aggiungi(Di(Fatto::MouseMove, 1, 1, 1));
    coda.Aggiungi(Di(Fatto::MouseMove, 1, 2, 2));
    coda.Aggiungi(Di(Fatto::Scroll, 1, 3, 1));
    coda.Aggiungi(Di(Fatto::Scroll, 1, 4, 2));
    EXPECT_EQ(Svuota(coda), (std::vector{1, 2, 3, 4}));
}

TEST(CodaEventi, NoOtherKindIsEverMerged) {
    for (const Fatto fatto :
         {Fatto::Click, Fatto::DblClick, Fatto::MouseDown, Fatto::MouseUp, Fatto::KeyDown,
          Fatto::KeyUp, Fatto::Change, Fatto::Chiudi, Fatto::FuocoPerso}) {
        CodaEventi coda;
        coda.Aggiungi(Di(fatto, 1, 1));
        coda.Aggiungi(Di(fatto, 1, 2));
        EXPECT_EQ(Svuota(coda), (std::vector{1, 2})) << static_cast<int>(fatto);
    }
}

TEST(CodaEventi, AMoveMergesWithNothingOfAnotherKind) {
    CodaEventi coda;
    coda.Aggiungi(Di(Fatto::Change, 1, 1));
    coda.Aggiungi(Di(Fatto::Scroll, 1, 2));
    coda.Aggiungi(Di(Fatto::MouseMove, 1, 3));
    coda.Aggiungi(Di(Fatto::Change, 1, 4));
    EXPECT_EQ(Svuota(coda), (std::vector{1, 2, 3, 4}));
}

TEST(CodaEventi, TheLastMoveStandsWhereItWasMadeBehindWhatCameBeforeIt) {
    CodaEventi coda;
    coda.Aggiungi(Di(Fatto::Scroll, 1, 1));
    coda.Aggiungi(Di(Fatto::Click, 2, 2));
    coda.Aggiungi(Di(Fatto::Scroll, 1, 3));
    EXPECT_EQ(Svuota(coda), (std::vector{2, 3}));
}

TEST(CodaEventi, AWaitForAnEventThatIsThereEndsAtOnce) {
    CodaEventi coda;
    coda.Aggiungi(Di(Fatto::Click, 1, 1));
    EXPECT_TRUE(coda.Aspetta(std::numeric_limits<double>::infinity()));
}

TEST(CodaEventi, AWaitUntilAnInstantThatHasPassedEndsWithoutAnEvent) {
    CodaEventi coda;
    EXPECT_FALSE(coda.Aspetta(0));
}

TEST(CodaEventi, AnEventFromAnotherThreadEndsTheWait) {
    CodaEventi coda;
    auto attesa = std::async(std::launch::async,
                             [&] { return coda.Aspetta(std::numeric_limits<double>::infinity()); });
    coda.Aggiungi(Di(Fatto::Click, 1, 7));
    EXPECT_TRUE(attesa.get());
    EXPECT_EQ(Svuota(coda), (std::vector{7}));
}

TEST(CodaEventi, TheEndOfTheProgramEndsEveryWaitFromThenOn) {
    constexpr double sempre = std::numeric_limits<double>::infinity();
    CodaEventi coda;
    EXPECT_FALSE(coda.FineChiesta());
    auto perEvento = std::async(std::launch::async, [&] { return coda.Aspetta(sempre); });
    coda.ChiediFine();
    EXPECT_FALSE(perEvento.get());
    EXPECT_FALSE(coda.Aspetta(sempre));
    coda.AspettaFine(sempre);
    EXPECT_TRUE(coda.FineChiesta());
}

TEST(CodaEventi, WhoWaitsForTheEndAloneIsntWokenByEvents) {
    CodaEventi coda;
    std::atomic<bool> chiesta = false;
    auto attesa = std::async(std::launch::async, [&] {
        coda.AspettaFine(std::numeric_limits<double>::infinity());
        return chiesta.load();
    });
    for (int i = 0; i < 100; ++i)
        coda.Aggiungi(Di(Fatto::Click, 1, i));
    chiesta = true;
    coda.ChiediFine();
    EXPECT_TRUE(attesa.get());
}

TEST(CodaEventi, AWaitForTheEndIsOverAtItsInstant) {
    CodaEventi coda;
    coda.AspettaFine(0);
    EXPECT_FALSE(coda.FineChiesta());
}

TEST(CodaEventi, NothingIsLostWhenManyThreadsAdd) {
    CodaEventi coda;
    constexpr int ciascuno = 1000;
    std::vector<std::thread> fili;
    for (int f = 0; f < 4; ++f)
        fili.emplace_back([&coda, f] {
            for (int i = 0; i < ciascuno; ++i)
                coda.Aggiungi(Di(Fatto::Click, f, i));
        });
    for (std::thread& filo : fili)
        filo.join();
    std::array<int, 4> prossimo{};
    while (const auto e = coda.Prendi())
        EXPECT_EQ(e->valore, prossimo.at(static_cast<std::size_t>(e->controllo))++);
    EXPECT_EQ(prossimo, (std::array{ciascuno, ciascuno, ciascuno, ciascuno}));
}

}  // namespace corvana::prova
