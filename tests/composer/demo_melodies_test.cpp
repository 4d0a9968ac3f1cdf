// The melodies that come with the program.
#include <cmath>

#include "composer/play_panel.h"
#include "core/text.h"
#include "melody/names.h"
#include "melody/numbers.h"
#include "melody/ticks.h"
#include "melody/tokens.h"
#include "tests/composer/composer_rig.h"
#include "tests/composer/demo_files.h"

namespace corvana::prova {

namespace {

/// A window whose list has the melody chosen.
struct BancoDemo : BancoComposer {
    explicit BancoDemo(const std::string& nome) : byte(ByteDemo(nome)) {
        globali.testi.TxtMelodiaIntera = "Tutta la melodia";
        PonFile(nome, byte);
        uscita.messaggi.clear();
    }
    /// Loads it and plays it to its end; returns the seconds that the play took.
    double SuonaTutta() {
        const double inizio = pompa.Adesso();
        finestra.archivio.cmdEseguiFile_Click();
        return pompa.Adesso() - inizio;
    }
    double Secondi(Tick tick) const {
        return static_cast<double>(tick * (MsPerTick(melodia.tempo) + granularitaSleep)) / 1000;
    }
    /// Of a channel, the struck notes in order.
    std::vector<int> Suonate(int canale) const {
        std::vector<int> suonate;
        for (const auto& [nota, velocita] : uscita.ConStato(0x8F + canale))
            if (velocita > 0) suonate.push_back(nota);
        return suonate;
    }

    std::string byte;
};

std::vector<int> NoteScritte(const VoceMelodia& voce) {
    std::vector<int> note;
    for (long i = 0; i < voce.numeroNote; ++i)
        if (const int nota = NumeroNota(Elemento(voce.noteVoce, i))) note.push_back(nota);
    return note;
}

/// A part of a quarter note that isn't a whole number of ticks.
bool DiTerzina(double durata) {
    const double tick = durata * 32;
    return std::fabs(tick - std::round(tick)) > 1e-3;
}

std::vector<double> Durate(const VoceMelodia& voce) {
    std::vector<double> durate;
    for (long i = 0; i < voce.numeroNote; ++i)
        durate.push_back(NumeroReale(Elemento(voce.durateVoce, i)));
    return durate;
}

std::vector<LetturaMel> LeggiTutte() {
    std::vector<LetturaMel> lette;
    for (const std::string& nome : MelodieDemo())
        lette.push_back(LeggiMel(ByteDemo(nome), '.'));
    return lette;
}

class MelodiaDemo : public testing::TestWithParam<std::string> {
protected:
    BancoDemo b{GetParam()};
};

}  // namespace

TEST_P(MelodiaDemo, PlaysEachOfItsNotesAndEndsAfterExactlyItsTicks) {
    const double durata = b.SuonaTutta();
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_GT(b.stato.tickTotali, 0);
    EXPECT_NEAR(durata, b.Secondi(b.stato.tickTotali), 1e-6);
    EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play");
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        EXPECT_EQ(b.Suonate(static_cast<int>(voce) + 1), NoteScritte(b.melodia.voci[voce]));
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST_P(MelodiaDemo, HasVoicesThatEndTogether) {
    b.SuonaTutta();
    for (const VoceMelodia& voce : b.melodia.voci) {
        if (voce.Vuota()) continue;
        EXPECT_EQ(voce.durateVoce.size(), voce.noteVoce.size());
        EXPECT_EQ(voce.attributiVoce.size(), voce.noteVoce.size());
        EXPECT_EQ(SommaTick(voce.durateVoce, voce.numeroNote - 1), b.stato.tickTotali);
    }
}

TEST_P(MelodiaDemo, HasNotesOfTheFiveOctavesAndRestsWithTheRestsAttribute) {
    b.SuonaTutta();
    for (const VoceMelodia& voce : b.melodia.voci)
        for (long i = 0; i < voce.numeroNote; ++i) {
            const std::string& nota = Elemento(voce.noteVoce, i);
            const std::string& attributo = Elemento(voce.attributiVoce, i);
            EXPECT_EQ(nota.size(), 2U) << nota;
            EXPECT_EQ(attributo.size(), 1U) << attributo;
            if (nota == "00") {
                EXPECT_EQ(attributo, "p") << i;
            } else {
                EXPECT_TRUE(SullaTastiera(NumeroNota(nota))) << nota;
                EXPECT_NE(std::string("nsta").find(attributo), std::string::npos) << attributo;
            }
        }
}

TEST_P(MelodiaDemo, SpellsItsDurationsAsTheyAreSpelledWhenNotesAreEntered) {
    b.SuonaTutta();
    for (const VoceMelodia& voce : b.melodia.voci)
        for (long i = 0; i < voce.numeroNote; ++i) {
            const std::string& token = Elemento(voce.durateVoce, i);
            EXPECT_EQ(token, TestoNumero(NumeroReale(token), '.'));
            EXPECT_GT(NumeroReale(token), 0);
        }
}

TEST_P(MelodiaDemo, HasItsTripletsInWholeGroupsThatLastAsLongAsTheyAreWritten) {
    b.SuonaTutta();
    for (const VoceMelodia& voce : b.melodia.voci) {
        const std::vector<double> durate = Durate(voce);
        for (std::size_t i = 0; i < durate.size(); ++i) {
            if (!DiTerzina(durate[i])) continue;
            ASSERT_LT(i + 2, durate.size());
            EXPECT_EQ(durate[i + 1], durate[i]) << i;
            EXPECT_EQ(durate[i + 2], durate[i]) << i;
            const auto nota = static_cast<long>(i);
            EXPECT_EQ(SommaTick(voce.durateVoce, nota + 2) - SommaTick(voce.durateVoce, nota - 1),
                      std::llround(3 * 32 * durate[i]));
            i += 2;
        }
    }
}

TEST_P(MelodiaDemo, HasANameThatAMelodyCanBeGiven) {
    const std::string& nome = GetParam();
    EXPECT_FALSE(NomeRifiutato(nome, rifiutatiMelodia));
    EXPECT_EQ(nome, SenzaBlanchi(nome));
    EXPECT_EQ(nome, UnBytePerCarattere(nome));
}

TEST_P(MelodiaDemo, IsTheSameFileByteForByteWhenItIsSavedAgain) {
    b.SuonaTutta();
    if (LeggiMel(b.byte, '.').conMetronomo) b.finestra.pulsi.lblTs_Click();
    const int prima = b.file.scritture;
    b.finestra.archivio.SalvaMelodia(GetParam());
    EXPECT_EQ(b.file.scritture, prima + 1);
    EXPECT_EQ(b.ContenutoFile(GetParam()), b.byte);
}

TEST_P(MelodiaDemo, EndsEachLineInCarriageReturnAndLineFeed) {
    EXPECT_TRUE(b.byte.ends_with("\r\n"));
    for (std::size_t i = 0; (i = b.byte.find_first_of("\r\n", i)) != std::string::npos; i += 2)
        ASSERT_EQ(b.byte.substr(i, 2), "\r\n") << i;
}

TEST_P(MelodiaDemo, HasBookmarksWithinItsSoprano) {
    b.SuonaTutta();
    const long note = b.melodia.voci[soprano].numeroNote;
    const Righe& righe = b.finestra.riferimenti.lstBookMark.List();
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const std::string testo = UnBytePerCarattere(righe[i]);
        const std::vector<std::string> campi = Dividi(testo, '?');
        ASSERT_EQ(campi.size(), 3U) << righe[i];
        const long prima = NumeroIntero(campi[0], 1, note);
        const long ultima = NumeroIntero(campi[1], prima, note);
        EXPECT_FALSE(SenzaBlanchi(campi[2]).empty());
        if (i > 0) continue;
        EXPECT_EQ(prima, 1);
        EXPECT_EQ(ultima, note);
    }
}

INSTANTIATE_TEST_SUITE_P(Melodie, MelodiaDemo, testing::ValuesIn(MelodieDemo()), NomeDiProva);

TEST(MelodieDemo, AreAtLeastTwelve) {
    EXPECT_GE(MelodieDemo().size(), 12U);
}

TEST(MelodieDemo, HaveOneWithTheMetronomeAndOneWithBookmarksAmongThem) {
    int conMetronomo = 0;
    int conRiferimenti = 0;
    for (const LetturaMel& letta : LeggiTutte()) {
        conMetronomo += letta.conMetronomo ? 1 : 0;
        conRiferimenti += letta.riferimenti.size() > 1 ? 1 : 0;
    }
    EXPECT_GT(conMetronomo, 0);
    EXPECT_GT(conRiferimenti, 0);
}

}  // namespace corvana::prova
