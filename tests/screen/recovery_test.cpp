// A melody that wasn't saved when the program was ended is there again at its next start.
#include <csignal>

#include "tests/screen/shared_screen.h"

namespace corvana::prova {

namespace {

using NonSalvata = SullaScrivania;
using Immagine = std::vector<std::uint8_t>;

constexpr const char* finestra = "frmComposer";

/// The names of the soprano's notes, as they are painted.
Immagine Nomi(ProgrammaVero& p) {
    return p.schermo.Immagine(p.Dove("LblNoteString", finestra));
}
Immagine Segno(ProgrammaVero& p) {
    return p.schermo.Immagine(p.Dove("lblModificato", finestra));
}

std::filesystem::path Tenuta(const ProgrammaVero& p) {
    return p.Casa() / "state" / "corvana" / "unsaved-melody";
}

/// Enters a rest into an empty melody.
bool Scrivi(ProgrammaVero& p) {
    const Immagine nomi = Nomi(p);
    const Immagine segno = Segno(p);
    p.Clicca("cmdInsPausa", finestra);
    return p.schermo.Aspetta([&] { return Nomi(p) != nomi && Segno(p) != segno; });
}

}  // namespace

TEST_F(NonSalvata, AfterASignalItIsThereAgainAndStaysUntilItIsSaved) {
    for (const int segnale : {SIGTERM, SIGKILL}) {
        ProgrammaVero prima(LoSchermo());
        ASSERT_NE(prima.ApriComposer(), 0U);
        ASSERT_TRUE(Scrivi(prima));
        const Immagine nomi = Nomi(prima);
        const Immagine segno = Segno(prima);
        const auto tenuta = [&] { return std::filesystem::exists(Tenuta(prima)); };
        if (segnale == SIGKILL) {
            // It makes its folder when it first keeps something.
            std::filesystem::create_directories(Tenuta(prima).parent_path());
            ASSERT_TRUE(AspettaInCartella(Tenuta(prima).parent_path(), prima.processo, tenuta));
        }
        EXPECT_EQ(prima.Esce(segnale), segnale == SIGKILL ? -1 : 0);
        ASSERT_TRUE(tenuta()) << segnale;

        ProgrammaVero poi(LoSchermo(), {.casa = prima.Casa()});
        ASSERT_NE(poi.ApriComposer(), 0U);
        EXPECT_TRUE(poi.schermo.Aspetta([&] { return Nomi(poi) == nomi && Segno(poi) == segno; }));
        EXPECT_EQ(poi.Esce(SIGTERM), 0);
        EXPECT_TRUE(tenuta()) << segnale;
    }
}

TEST(NonSalvataSenzaSchermo, ItIsThereAgainAfterTheLossOfTheScreen) {
    auto schermo = std::make_unique<Schermo>();
    ProgrammaVero prima(*schermo);
    ASSERT_NE(prima.ApriComposer(), 0U);
    ASSERT_TRUE(Scrivi(prima));
    schermo->Stacca();
    EXPECT_EQ(prima.Esce(), 0);
    EXPECT_TRUE(std::filesystem::exists(Tenuta(prima)));
}

TEST_F(NonSalvata, AnOrdinaryLifeLeavesNothingInTheStateFolder) {
    ProgrammaVero p(LoSchermo());
    ASSERT_NE(p.ApriComposer(), 0U);
    p.schermo.Chiudi(p.schermo.Cerca(finestra));
    ASSERT_TRUE(p.AspettaChiusa(finestra));
    p.schermo.Chiudi(p.principale);
    EXPECT_EQ(p.Esce(), 0);
    EXPECT_FALSE(std::filesystem::exists(p.Casa() / "state"));
}

}  // namespace corvana::prova
