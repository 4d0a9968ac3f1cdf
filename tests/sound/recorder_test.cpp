#include "sound/recorder.h"

#include <gtest/gtest.h>

namespace corvana::prova {

namespace {
using Note = std::vector<std::pair<int, int>>;
}

TEST(Registratore, ANoteSoundsFromItsNoteOnToItsNoteOff) {
    Registratore r;
    HandleDispositivo handle = 0;
    ASSERT_EQ(r.midiOutOpen(handle, -1), midiSenzaErrore);
    r.midiOutShortMsg(handle, 0x643C90);
    r.midiOutShortMsg(handle, 0x7F4C99);
    EXPECT_EQ(r.NoteAccese(), (Note{{1, 60}, {10, 76}}));
    r.midiOutShortMsg(handle, 0x003C90);
    EXPECT_EQ(r.NoteAccese(), (Note{{10, 76}}));
    r.midiOutReset(handle);
    EXPECT_TRUE(r.NoteAccese().empty());
}

TEST(Registratore, HearsDataAsADeviceDoesInSevenBits) {
    Registratore r;
    HandleDispositivo handle = 0;
    r.midiOutOpen(handle, -1);
    r.midiOutShortMsg(handle, 0x64BC90);
    EXPECT_EQ(r.NoteAccese(), (Note{{1, 60}}));
    r.midiOutShortMsg(handle, 0x803C90);
    EXPECT_TRUE(r.NoteAccese().empty());
}

TEST(Registratore, RefusesWhatNamesNoOpenDevice) {
    Registratore r;
    HandleDispositivo handle = 0;
    EXPECT_EQ(r.midiOutShortMsg(0, 0x643C90), midiHandleErrato);
    EXPECT_EQ(r.midiOutClose(0), midiHandleErrato);
    r.midiOutOpen(handle, -1);
    EXPECT_EQ(r.midiOutClose(handle), midiSenzaErrore);
    EXPECT_EQ(r.midiOutShortMsg(handle, 0x643C90), midiHandleErrato);
    EXPECT_EQ(r.midiOutReset(handle), midiHandleErrato);
    EXPECT_TRUE(r.messaggi.empty());
}

TEST(Registratore, NamesItsPorts) {
    Registratore r;
    r.nomi = {"one", "two"};
    std::string nome;
    EXPECT_EQ(r.midiOutGetNumDevs(), 2);
    EXPECT_EQ(r.midiOutGetDevCapsA(1, nome), midiSenzaErrore);
    EXPECT_EQ(nome, "two");
    EXPECT_EQ(r.midiOutGetDevCapsA(2, nome), midiDispositivoErrato);
    EXPECT_EQ(r.midiOutGetDevCapsA(-2, nome), midiDispositivoErrato);
    EXPECT_EQ(r.midiOutGetDevCapsA(-1, nome), midiSenzaErrore);
}

}  // namespace corvana::prova
