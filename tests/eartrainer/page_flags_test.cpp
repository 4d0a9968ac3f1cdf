#include "eartrainer/page_flags.h"

#include <gtest/gtest.h>

#include <tuple>

namespace corvana::prova {

namespace {

/// Bit 0 is the first flag.
BandiereInto Bandiere(unsigned bit) {
    BandiereInto bandiere{};
    for (std::size_t i = 0; i < bandiere.size(); ++i)
        bandiere.at(i) = (bit >> i & 1U) != 0;
    return bandiere;
}

}  // namespace

TEST(DopoIngresso, SetsItsOwnFlagAndClearsOnlySomeOfTheOthersWhateverStoodBefore) {
    const std::vector<std::tuple<PaginaInto, unsigned, unsigned>> attese = {
        {PaginaInto::Intonazione, 0b00001, 0b00000},
        {PaginaInto::Intervalli, 0b00010, 0b00001},
        {PaginaInto::Accordi, 0b00100, 0b11011},
        {PaginaInto::Tasti, 0b01000, 0b10000},
        {PaginaInto::Tonalita, 0b10000, 0b00000}};
    for (const auto& [pagina, accende, spegne] : attese)
        for (unsigned prima = 0; prima < 32; ++prima)
            EXPECT_EQ(DopoIngresso(Bandiere(prima), pagina), Bandiere((prima & ~spegne) | accende))
                << static_cast<int>(pagina) << " from " << prima;
}

TEST(AiutoDi, EachPageHasItsOwn) {
    EXPECT_EQ(AiutoDi(PaginaInto::Intonazione), 3);
    EXPECT_EQ(AiutoDi(PaginaInto::Intervalli), 5);
    EXPECT_EQ(AiutoDi(PaginaInto::Accordi), 7);
    EXPECT_EQ(AiutoDi(PaginaInto::Tasti), 20);
    EXPECT_EQ(AiutoDi(PaginaInto::Tonalita), 30);
}

}  // namespace corvana::prova
