// What is summed and searched in a walk over a voice's duration tokens.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "melody/numbers.h"
#include "melody/ticks.h"
#include "tests/melody/fault_number.h"

namespace corvana::prova {

namespace {

using Punto = std::pair<int, Tick>;
Punto PuntoDi(const std::vector<std::string>& durate, long note, Tick tick) {
    const PuntoVoce punto = CercaPunto(durate, note, tick);
    return {punto.posizione, punto.trascorsi};
}

}  // namespace

TEST(TickToken, IsThatOfTheTokenWithEitherSeparator) {
    ContoTuplet conto;
    const std::vector<std::string> durate = {"1", "0,75", "0.75", " 2 ", ""};
    EXPECT_EQ(TickToken(durate, 0, conto), 32);
    EXPECT_EQ(TickToken(durate, 1, conto), 24);
    EXPECT_EQ(TickToken(durate, 2, conto), 24);
    EXPECT_EQ(TickToken(durate, 3, conto), 64);
}

TEST(TickToken, OneThatIsntThereOrIsNoNumberIsAFault) {
    const std::vector<std::string> durate = {"1", "x", "1E+999", ""};
    const auto guasto = [&](long indice) {
        return NumeroDelGuasto([&] {
            ContoTuplet conto;
            TickToken(durate, indice, conto);
        });
    };
    EXPECT_EQ(guasto(0), 0);
    EXPECT_EQ(guasto(1), guastoTipo);
    EXPECT_EQ(guasto(2), guastoTraboccamento);
    EXPECT_EQ(guasto(3), guastoTipo);
    EXPECT_EQ(guasto(4), guastoIndice);
    EXPECT_EQ(guasto(-1), guastoIndice);
}

TEST(SommaTick, GoesUpToTheIndexAndIsNoughtBelowTheFirst) {
    const std::vector<std::string> durate = {
        "1", "0.5", "0.333333333333333", "0.333333333333333", "0.333333333333333", ""};
    const std::vector<Tick> somme = {32, 48, 59, 70, 80};
    for (std::size_t i = 0; i < somme.size(); ++i)
        EXPECT_EQ(SommaTick(durate, static_cast<long>(i)), somme[i]) << i;
    EXPECT_EQ(SommaTick(durate, -1), 0);
    EXPECT_EQ(SommaTick(durate, -100), 0);
    EXPECT_EQ(NumeroDelGuasto([&] { SommaTick(durate, 6); }), guastoTipo);
    EXPECT_EQ(NumeroDelGuasto([&] { SommaTick({"1"}, 1); }), guastoIndice);
}

TEST(SommaTick, OfTheLongestVoicesIsRight) {
    constexpr long note = 32767;
    constexpr Tick limite = 1LL << 46;
    EXPECT_EQ(SommaTick(std::vector<std::string>(note, "4"), note - 1), 4194176);
    EXPECT_EQ(SommaTick(std::vector<std::string>(note, "1E+300"), note - 1), note * limite);
    EXPECT_EQ(SommaTick(std::vector<std::string>(note, "-1E+300"), note - 1), -note * limite);
}

TEST(CercaPunto, IsTheNoteAndWhatOfItHasGoneBy) {
    const std::vector<std::string> durate = {"1", "0.5", "2", ""};
    const auto punto = [&](Tick tick) { return PuntoDi(durate, 3, tick); };
    EXPECT_EQ(punto(0), Punto(0, 0));
    EXPECT_EQ(punto(31), Punto(0, 31));
    EXPECT_EQ(punto(32), Punto(1, 0));
    EXPECT_EQ(punto(47), Punto(1, 15));
    EXPECT_EQ(punto(48), Punto(2, 0));
    EXPECT_EQ(punto(111), Punto(2, 63));
    EXPECT_EQ(punto(112), Punto(3, 0));
    EXPECT_EQ(punto(100000), Punto(3, 0));
}

TEST(CercaPunto, AVoiceWithoutNotesHasEndedAtOnce) {
    EXPECT_EQ(PuntoDi({}, 0, 0), Punto(0, 0));
    EXPECT_EQ(PuntoDi({}, 0, 50), Punto(0, 0));
}

TEST(CercaPunto, TheThirdNoteOfATripletIsTakenCorrected) {
    const std::string terzo = "0,333333333333333";
    const std::vector<std::string> durate = {terzo, terzo, terzo, "1", ""};
    EXPECT_EQ(PuntoDi(durate, 4, 31), Punto(2, 9));
    EXPECT_EQ(PuntoDi(durate, 4, 32), Punto(3, 0));
}

TEST(CercaPunto, ANoteOfNoLengthTakesATickToGoBy) {
    const std::vector<std::string> durate = {"0", "-1", "1", ""};
    EXPECT_EQ(PuntoDi(durate, 3, 0), Punto(0, 0));
    EXPECT_EQ(PuntoDi(durate, 3, 1), Punto(1, 0));
    EXPECT_EQ(PuntoDi(durate, 3, 2), Punto(2, 0));
    EXPECT_EQ(PuntoDi(durate, 3, 34), Punto(3, 0));
}

TEST(CercaPunto, OnlyTheNotesUpToThePointAreConverted) {
    const std::vector<std::string> durate = {"1", "x", ""};
    EXPECT_EQ(PuntoDi(durate, 2, 31), Punto(0, 31));
    EXPECT_EQ(NumeroDelGuasto([&] { PuntoDi(durate, 2, 32); }), guastoTipo);
    EXPECT_EQ(NumeroDelGuasto([&] { PuntoDi({"1"}, 2, 32); }), guastoIndice);
}

TEST(CercaPunto, TheEndOfTheLongestVoiceIsItsLastNote) {
    const std::vector<std::string> durate(32767, "4");
    EXPECT_EQ(PuntoDi(durate, 32767, 4194175), Punto(32766, 127));
    EXPECT_EQ(PuntoDi(durate, 32767, 4194176), Punto(32767, 0));
}

RC_GTEST_PROP(CercaPunto, TheSumBeforeThePointAndWhatHasGoneByAreTheTicks, ()) {
    const auto valori = *rc::gen::container<std::vector<double>>(
        rc::gen::element(4.0, 1.5, 1.0, 1.0 / 3, 2.0 / 3, 1.0 / 6, 0.0625));
    std::vector<std::string> durate;
    for (const double valore : valori)
        durate.push_back(TestoNumero(valore, '.'));
    const auto note = static_cast<long>(durate.size());
    const Tick tick = *rc::gen::inRange<Tick>(0, SommaTick(durate, note - 1) + 1);
    const auto [posizione, trascorsi] = PuntoDi(durate, note, tick);
    RC_ASSERT(SommaTick(durate, posizione - 1) + trascorsi == tick);
    if (posizione < note) RC_ASSERT(SommaTick(durate, posizione) > tick);
}

}  // namespace corvana::prova
