#include <gtest/gtest.h>

#include "sound/outputs/short_message.h"

namespace corvana {
namespace {

TEST(MessaggioCorto, IsTakenApartFromTheLowestByteUp) {
    const auto corto = Decodifica(0x643C90);
    ASSERT_TRUE(corto);
    EXPECT_EQ(corto->Byte(), (std::array<std::uint8_t, 3>{0x90, 60, 100}));
    EXPECT_EQ(corto->lunghezza, 3);
    EXPECT_EQ(corto->Tipo(), tipoNotaOn);
    EXPECT_EQ(corto->Canale(), 0);
}

TEST(MessaggioCorto, DataBeyondAByteCarriesIntoTheNext) {
    const auto corto = Decodifica((0 * 256 + 532) * 256 + 0x90);
    ASSERT_TRUE(corto);
    EXPECT_EQ(corto->dato1, 20);
    EXPECT_EQ(corto->dato2, 2);
}

TEST(MessaggioCorto, KeepsSevenBitsOfData) {
    const auto corto = Decodifica(0xFFFFFF90);
    ASSERT_TRUE(corto);
    EXPECT_EQ(corto->dato1, 127);
    EXPECT_EQ(corto->dato2, 127);
}

TEST(MessaggioCorto, ProgramsAndChannelPressureHaveTwoBytes) {
    for (const std::uint32_t stato : {0xC0U, 0xC3U, 0xD0U, 0xDFU}) {
        const auto corto = Decodifica(0x7F1000 | stato);
        ASSERT_TRUE(corto);
        EXPECT_EQ(corto->lunghezza, 2);
        EXPECT_EQ(corto->dato1, 0x10);
        EXPECT_EQ(corto->dato2, 0);
    }
    EXPECT_EQ(Decodifica(0x10C1)->Canale(), 1);
}

TEST(MessaggioCorto, OnlyStatusBytesOfChannelsPass) {
    for (std::uint32_t stato = 0; stato < 256; ++stato)
        EXPECT_EQ(Decodifica(0x404000 | stato).has_value(), stato >= 0x80 && stato < 0xF0) << stato;
}

TEST(MessaggioCorto, PacksAController) {
    const auto corto = Decodifica(PaccoControllo(15, controlloZittisci));
    ASSERT_TRUE(corto);
    EXPECT_EQ(corto->Byte(), (std::array<std::uint8_t, 3>{0xBF, 120, 0}));
}

}  // namespace
}  // namespace corvana
