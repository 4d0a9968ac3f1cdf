#include <gtest/gtest.h>

#include <QRasterWindow>
#include <QTest>
#include <thread>

#include "desktop/first_paint.h"
#include "tests/desktop/screen.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

using std::chrono::milliseconds;

/// Only to end a hang.
constexpr milliseconds sempre(60000);

class FinestraContata final : public QRasterWindow {
public:
    int pitture = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++pitture; }
};

/// Waits on a thread of its own, as the program does.
class Attesa {
public:
    explicit Attesa(const PrimaPittura& prima)
        : fine_(std::async(std::launch::async, [&prima] { prima.Aspetta(sempre); })) {}
    bool Finita() const { return fine_.wait_for(milliseconds(0)) == std::future_status::ready; }

private:
    std::future<void> fine_;
};

}  // namespace

TEST(PrimaPittura, ItComesWhenTheFirstWindowHasBeenPainted) {
    PrimaPittura prima;
    const Attesa attesa(prima);
    FinestraContata finestra, altra;
    prima.Segui(finestra);
    prima.Segui(altra);
    altra.show();
    ASSERT_TRUE(Aspetta([&] { return altra.pitture > 0; }));
    EXPECT_FALSE(attesa.Finita());
    finestra.show();
    EXPECT_TRUE(Aspetta([&] { return attesa.Finita(); }));
    EXPECT_GT(finestra.pitture, 0);
}

TEST(PrimaPittura, NobodyWaitsAnyLongerOnceItIsGivenUp) {
    PrimaPittura prima;
    const Attesa attesa(prima);
    EXPECT_FALSE(attesa.Finita());
    prima.Rinuncia();
    EXPECT_TRUE(Aspetta([&] { return attesa.Finita(); }));
    prima.Rinuncia();
}

TEST(PrimaPittura, WhatIsToBeDoneThenIsDoneOnce) {
    PrimaPittura prima;
    int volte = 0;
    prima.PonPoi([&] { ++volte; });
    FinestraContata finestra;
    prima.Segui(finestra);
    finestra.show();
    EXPECT_TRUE(Aspetta([&] { return volte == 1; }));
    EXPECT_GT(finestra.pitture, 0);
    prima.Avvenuta();
    EXPECT_EQ(volte, 1);
}

TEST(PrimaPittura, ABoxThatComesBeforeAnyWindowCountsToo) {
    Scrivania scrivania;
    const Attesa attesa(scrivania.Dipinta());
    scrivania.Avvia([&] { scrivania.Riquadri().MsgBox("already running"); });
    EXPECT_TRUE(Aspetta([&] { return scrivania.Riquadro() != nullptr; }));
    EXPECT_TRUE(Aspetta([&] { return attesa.Finita(); }));
    scrivania.Termina();
}

TEST(PrimaPittura, OfADesktopItIsThatOfItsFirstWindow) {
    Palco palco;
    const Attesa attesa(palco.scrivania.Dipinta());
    EXPECT_TRUE(Aspetta([&] { return attesa.Finita(); }));
}

TEST(PrimaPittura, TheEndOfADesktopWithoutAWindowIsNotHeldUp) {
    Scrivania scrivania;
    const Attesa attesa(scrivania.Dipinta());
    scrivania.ChiediFine();
    EXPECT_TRUE(Aspetta([&] { return attesa.Finita(); }));
}

}  // namespace corvana::prova
