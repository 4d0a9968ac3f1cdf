#include <gtest/gtest.h>
#include <stdlib.h>

#include "sound/outputs/real_outputs.h"

namespace corvana {
namespace {

/// The outputs on a machine that plays to nobody.
class UsciteSenzaAscolto : public testing::Test {
protected:
    void SetUp() override { setenv("SDL_AUDIODRIVER", "dummy", 1); }
    static double Istante() { return 0; }
};

TEST_F(UsciteSenzaAscolto, OpenTheSynthesiserUnderANameOfItsOwn) {
    UsciteReali uscite(Istante);
    std::string nome;
    EXPECT_EQ(uscite.midiOutGetDevCapsA(dispositivoPredefinito, nome), midiSenzaErrore);
    EXPECT_EQ(nome, "Corvana");
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiSenzaErrore);
    EXPECT_NE(handle, 0);
    EXPECT_EQ(uscite.midiOutShortMsg(handle, 0x643C90), midiSenzaErrore);
    EXPECT_EQ(uscite.midiOutReset(handle), midiSenzaErrore);
    EXPECT_EQ(uscite.midiOutClose(handle), midiSenzaErrore);
}

TEST_F(UsciteSenzaAscolto, RefuseAHandleThatIsNotOpen) {
    UsciteReali uscite(Istante);
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutShortMsg(0, 0x643C90), midiHandleErrato);
    ASSERT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiSenzaErrore);
    ASSERT_EQ(uscite.midiOutClose(handle), midiSenzaErrore);
    EXPECT_EQ(uscite.midiOutShortMsg(handle, 0x643C90), midiHandleErrato);
    EXPECT_EQ(uscite.midiOutReset(handle), midiHandleErrato);
    EXPECT_EQ(uscite.midiOutClose(handle), midiHandleErrato);
}

TEST_F(UsciteSenzaAscolto, ReportAMissingFontAsLackOfMemoryAndGoOn) {
    UsciteReali uscite(Istante, {"/nowhere/at/all.sf2"});
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiMemoria);
    EXPECT_EQ(handle, 0);
    EXPECT_NE(uscite.midiOutGetErrorTextA(midiMemoria).find("sound font"), std::string::npos);
    uscite.sndPlaySoundA("/nowhere/rok.wav", sndAsincrono);
    uscite.sndPlaySoundA(CORVANA_CUES "/rok.wav", sndSenzaPredefinito);
}

TEST_F(UsciteSenzaAscolto, SayThatNobodyHears) {
    UsciteReali uscite(Istante);
    EXPECT_FALSE(uscite.Udibile());
}

TEST_F(UsciteSenzaAscolto, MayEndWhileTheyAreStillStarting) {
    for (int i = 0; i < 5; ++i)
        UsciteReali uscite(Istante);
}

}  // namespace
}  // namespace corvana
