// Devices and messages.
#include "sound/sound.h"

#include <gtest/gtest.h>

#include "tests/sound/sound_rig.h"

namespace corvana::prova {

TEST(ApriMidi, OpensTheDeviceOfThatId) {
    BancoSuono b;
    EXPECT_EQ(b.uscita.aperture, std::vector<std::int32_t>{-1});
    EXPECT_NE(b.suono.HandleMidi, 0);
    EXPECT_EQ(b.suono.HandleMidi, b.uscita.aperto);
}

TEST(ApriMidi, ClosesTheOpenDeviceFirst) {
    BancoSuono b;
    const HandleDispositivo primo = b.suono.HandleMidi;
    EXPECT_TRUE(b.suono.ApriMidi(3));
    EXPECT_EQ(b.uscita.chiusure, 1);
    EXPECT_EQ(b.uscita.aperture, (std::vector<std::int32_t>{-1, 3}));
    EXPECT_NE(b.suono.HandleMidi, primo);
}

TEST(ApriMidi, AFailureShowsTheBoxReturnsFalseAndNothingIsOpen) {
    BancoSuono b;
    b.uscita.esitoOpen = 4;
    EXPECT_FALSE(b.suono.ApriMidi(3));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Operation:Open\r\nerror text 4"});
    EXPECT_EQ(b.suono.HandleMidi, 0);
}

TEST(ChiudiMidi, WithNothingOpenDoesNothing) {
    BancoSuono b;
    b.suono.ChiudiMidi();
    b.suono.ChiudiMidi();
    EXPECT_EQ(b.uscita.chiusure, 1);
    EXPECT_EQ(b.suono.HandleMidi, 0);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(ChiudiMidi, AFailureShowsTheBoxAndKeepsTheHandle) {
    BancoSuono b;
    const HandleDispositivo handle = b.suono.HandleMidi;
    b.uscita.esitoClose = 5;
    b.suono.ChiudiMidi();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Operation:Close midi error: \r\nerror text 5"});
    EXPECT_EQ(b.suono.HandleMidi, handle);
}

TEST(MessaggioMidi, PacksStatusAndDataFromTheLowestByteUp) {
    BancoSuono b;
    b.suono.NotaOn(1, 60, 100);
    EXPECT_EQ(b.suono.UltimoMessaggio, 0x643C90);
    b.suono.NotaOn(10, 76, 127);
    EXPECT_EQ(b.suono.UltimoMessaggio, 0x7F4C99);
    b.suono.NotaOff(16, 36);
    EXPECT_EQ(b.suono.UltimoMessaggio, 0x00249F);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{0x643C90, 0x7F4C99, 0x00249F}));
    EXPECT_EQ(b.suono.EsitoMidi, 0);
}

TEST(MessaggioMidi, DataAbove255CarriesIntoTheNextByte) {
    BancoSuono b;
    b.suono.NotaOff(1, 532);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(20, 2)});
    b.suono.NotaOn(1, 256, 1);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(0, 2)});
}

TEST(MessaggioMidi, AFailureShowsTheBoxAndTheCallerGoesOn) {
    BancoSuono b;
    b.uscita.esitoShortMsg = 67;
    b.suono.NotaOn(1, 60, 100);
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Operation:ShortMsg\r\nerror text 67"});
    EXPECT_EQ(b.suono.EsitoMidi, 67);
    b.uscita.esitoShortMsg = 0;
    b.suono.NotaOn(1, 60, 100);
    EXPECT_EQ(b.suono.EsitoMidi, 0);
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
}

TEST(MessaggioMidi, WithNoDeviceOpenEachMessageShowsTheBox) {
    BancoSuono b;
    b.suono.ChiudiMidi();
    b.suono.NotaOn(1, 60, 100);
    b.suono.NotaOff(1, 60);
    EXPECT_EQ(b.riquadri.messaggi,
              (Avvisi{"Operation:ShortMsg\r\nerror text 5", "Operation:ShortMsg\r\nerror text 5"}));
}

TEST(CambiaStrumento, PacksTheProgramAndTheChannelIndex) {
    BancoSuono b;
    b.suono.CambiaStrumento(16, 1);
    b.suono.CambiaStrumento(0, 0);
    b.suono.CambiaStrumento(127, 15);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{0x10C1, 0x00C0, 0x7FCF}));
}

TEST(CambiaStrumento, ReportsNothingEvenOnFailure) {
    BancoSuono b;
    b.uscita.esitoShortMsg = 67;
    b.suono.CambiaStrumento(16, 0);
    b.uscita.esitoShortMsg = 0;
    b.suono.ChiudiMidi();
    b.suono.CambiaStrumento(16, 0);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.suono.EsitoMidi, 0);
}

TEST(CambiaStrumento, TakesAnyProgramThatAStoredTextMayHold) {
    BancoSuono b;
    for (const std::int32_t programma : {2147483647, -2147483647, 200, -1})
        b.suono.CambiaStrumento(programma, 3);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{0xFFFFFFC3, 0x000001C3, 0x0000C8C3, 0xFFFFFFC3}));
}

TEST(SuonaOnda, PassesThePathAndTheFlagsOnAndTakesNoTime) {
    BancoSuono b;
    b.suono.SuonaOnda("/note/rok.wav", sndAsincrono);
    b.suono.SuonaOnda("/note/none.wav", sndSenzaPredefinito);
    ASSERT_EQ(b.uscita.onde.size(), 2U);
    EXPECT_EQ(b.uscita.onde[0].percorso, "/note/rok.wav");
    EXPECT_EQ(b.uscita.onde[0].flags, 0x20001U);
    EXPECT_EQ(b.uscita.onde[1].flags, 0x20003U);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 0);
}

TEST(Reset, SilencesTheOpenDevice) {
    BancoSuono b;
    b.suono.NotaOn(1, 60, 100);
    b.suono.Reset();
    EXPECT_EQ(b.uscita.reset.size(), 1U);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    b.suono.ChiudiMidi();
    b.suono.Reset();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

}  // namespace corvana::prova
