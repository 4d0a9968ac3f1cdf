#include <gtest/gtest.h>

#include <future>

#include "sound/outputs/abandonable_thread.h"

namespace corvana {
namespace {

TEST(FiloAbbandonabile, RunsItsBodyToTheEnd) {
    int fatto = 0;
    {
        FiloAbbandonabile filo([&] { fatto = 1; }, 60);
        EXPECT_TRUE(filo.AspettaFine(60));
    }
    EXPECT_EQ(fatto, 1);
}

TEST(FiloAbbandonabile, WaitsForTheEndWhenDestroyed) {
    int fatto = 0;
    {
        FiloAbbandonabile filo([&] { fatto = 1; }, 60);
    }
    EXPECT_EQ(fatto, 1);
}

TEST(FiloAbbandonabile, LeavesABodyBehindThatDoesNotEnd) {
    std::promise<void> sblocco;
    std::promise<void> fine;
    {
        FiloAbbandonabile filo(
            [attesa = sblocco.get_future().share(), &fine] {
                attesa.wait();
                fine.set_value();
            },
            0.01);
        EXPECT_FALSE(filo.AspettaFine(0));
    }
    sblocco.set_value();
    fine.get_future().wait();
}

TEST(FiloAbbandonabile, LetsGoOfWhatItsBodyHolds) {
    auto tenuto = std::make_shared<int>(1);
    FiloAbbandonabile filo([tenuto] {}, 60);
    EXPECT_TRUE(filo.AspettaFine(60));
    EXPECT_EQ(tenuto.use_count(), 1);
}

}  // namespace
}  // namespace corvana
