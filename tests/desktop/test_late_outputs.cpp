#include <gtest/gtest.h>

#include <future>
#include <stdexcept>

#include "desktop/late_outputs.h"

namespace corvana::prova {
namespace {

/// Outputs that know only whether they were woken.
class UsciteFinte final : public PiattaformaMidi {
public:
    explicit UsciteFinte(int& sveglie) : sveglie_(sveglie) {}
    int midiOutOpen(HandleDispositivo& handle, std::int32_t) override {
        handle = 7;
        return midiSenzaErrore;
    }
    int midiOutClose(HandleDispositivo) override { return midiSenzaErrore; }
    int midiOutReset(HandleDispositivo) override { return midiSenzaErrore; }
    int midiOutShortMsg(HandleDispositivo, std::uint32_t) override { return midiSenzaErrore; }
    std::string midiOutGetErrorTextA(int) override { return {}; }
    int midiOutGetNumDevs() override { return 3; }
    int midiOutGetDevCapsA(std::int32_t, std::string&) override { return midiSenzaErrore; }
    void sndPlaySoundA(const std::string&, unsigned) override {}
    void Sveglia() override { ++sveglie_; }

private:
    int& sveglie_;
};

}  // namespace

TEST(UsciteDifferite, ACallWaitsUntilTheOutputsAreThere) {
    int sveglie = 0;
    std::promise<void> via;
    UsciteDifferite uscite([&] {
        via.get_future().wait();
        return std::make_unique<UsciteFinte>(sveglie);
    });
    auto quante = std::async(std::launch::async, [&] { return uscite.midiOutGetNumDevs(); });
    EXPECT_EQ(quante.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    via.set_value();
    EXPECT_EQ(quante.get(), 3);
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiSenzaErrore);
    EXPECT_EQ(handle, 7);
}

TEST(UsciteDifferite, WakingWaitsForNothingAndIsHandedOnFromTheFirstCall) {
    int sveglie = 0;
    std::promise<void> via;
    UsciteDifferite uscite([&] {
        via.get_future().wait();
        return std::make_unique<UsciteFinte>(sveglie);
    });
    uscite.Sveglia();
    via.set_value();
    uscite.midiOutGetNumDevs();
    EXPECT_EQ(sveglie, 0);
    uscite.Sveglia();
    EXPECT_EQ(sveglie, 1);
}

TEST(UsciteDifferite, OutputsThatCannotBeMadeSaySoAtEachCall) {
    UsciteDifferite uscite(
        []() -> std::unique_ptr<PiattaformaMidi> { throw std::runtime_error("no such library"); });
    for (int volta = 0; volta < 2; ++volta)
        EXPECT_THROW(uscite.midiOutGetNumDevs(), std::runtime_error);
    uscite.Sveglia();
}

}  // namespace corvana::prova
