// The one note that sounds at a time, and the next question of the intonation drill.
#include <gtest/gtest.h>

#include "tests/sound/sound_rig.h"

namespace corvana::prova {

namespace {

/// The ear trainer, as far as the sound layer asks it.
class DomandaFinta final : public DomandaIntonazione {
public:
    explicit DomandaFinta(BancoSuono& banco) : banco_(banco) { banco.suono.PonDomanda(this); }

    std::int16_t nota = 24;
    bool inVista = false;
    bool conRiferimento = false;
    std::vector<std::string> diario;  ///< with the number of messages sent before

    std::int16_t ScegliIntoNota() override {
        Scrivi("choose");
        return nota;
    }
    bool NomeInVista() const override { return inVista; }
    void MostraNome(std::int16_t intoNota) override { Scrivi("name " + std::to_string(intoNota)); }
    void sw(std::int16_t tasto, bool acceso) override {
        Scrivi((acceso ? "light " : "clear ") + std::to_string(tasto));
    }
    bool ConRiferimento() const override { return conRiferimento; }

private:
    void Scrivi(const std::string& riga) {
        diario.push_back(std::to_string(banco_.uscita.messaggi.size()) + " " + riga);
    }
    BancoSuono& banco_;
};

}  // namespace

TEST(SuonaNota, StopsTheNoteBeforeAndStartsTheNewOne) {
    BancoSuono b;
    b.suono.SuonaNota(24);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(36, 0), Nota(60, 100)}));
    b.suono.SuonaNota(26);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(60, 0), Nota(62, 100)}));
    EXPECT_EQ(b.suono.UltimaNota, 26);
    EXPECT_EQ(b.uscita.NoteAccese(), (std::vector<std::pair<int, int>>{{1, 62}}));
}

TEST(SuonaNota, TheLowCodesSoundAt31And33And35) {
    for (const auto& [codice, midi] : {std::pair{496, 31U}, {498, 33U}, {500, 35U}}) {
        BancoSuono b;
        b.suono.SuonaNota(static_cast<std::int16_t>(codice));
        EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(36, 0), Nota(midi, 100)}));
    }
}

TEST(SuonaNota, ALowNoteEndsWithTwoNoteOffsOfWhichTheSecondCarries) {
    BancoSuono b;
    b.suono.SuonaNota(496);
    b.Messaggi();
    b.suono.SuonaNota(0);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{0x001F90, 0x021490, 0x642490}));
}

TEST(SuonaNota, TheCarriedNoteOffsAreNotes20And22And24AtVelocity2) {
    for (const auto& [codice, nota] : {std::pair{496, 20U}, {498, 22U}, {500, 24U}}) {
        BancoSuono b;
        b.suono.SuonaNota(static_cast<std::int16_t>(codice));
        b.Messaggi();
        b.suono.SuonaNota(-1);
        EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(nota + 11, 0), Nota(nota, 2)}));
    }
}

TEST(SuonaNota, FourHundredIsAnIndexAndAnyMoreALowCode) {
    BancoSuono b;
    b.suono.SuonaNota(400);
    EXPECT_EQ(b.suono.UltimoMessaggio, (100 * 256 + 436) * 256 + 0x90);
    b.suono.SuonaNota(401);
    EXPECT_EQ(b.suono.UltimoMessaggio, (100 * 256 - 64) * 256 + 0x90);
    b.suono.SuonaNota(466);
    EXPECT_EQ(b.suono.UltimoMessaggio, (100 * 256 + 1) * 256 + 0x90);
}

TEST(SuonaNota, TheStopTwiceInARowSendsTheNoteOffTwiceAndDoesNoHarm) {
    BancoSuono b;
    b.suono.SuonaNota(24);
    b.Messaggi();
    b.suono.SuonaNota(-1);
    b.suono.SuonaNota(-1);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(60, 0), Nota(60, 0)}));
    EXPECT_EQ(b.suono.UltimaNota, 24);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(SuonaNota, TheStopBeforeAnyNoteStopsTheNoteOfIndex0) {
    BancoSuono b;
    EXPECT_EQ(b.suono.UltimaNota, 0);
    b.suono.SuonaNota(-1);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(36, 0)});
}

TEST(SuonaNota, WithNoDeviceEachOfItsMessagesShowsTheBox) {
    BancoSuono b;
    b.suono.ChiudiMidi();
    b.suono.SuonaNota(24);
    EXPECT_EQ(b.riquadri.messaggi.size(), 2U);
    EXPECT_EQ(b.suono.UltimaNota, 24);
}

TEST(SuonaNota, WithoutAnEarTrainerAQuestionIsNothing) {
    BancoSuono b;
    b.suono.SuonaNota(-2);
    EXPECT_TRUE(b.Messaggi().empty());
}

TEST(ProssimaDomanda, StopsTheNoteBeforeAndSoundsTheChosenOne) {
    BancoSuono b;
    DomandaFinta domanda(b);
    b.suono.SuonaNota(12);
    b.Messaggi();
    b.suono.SuonaNota(-2);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(48, 0), Nota(60, 100)}));
    EXPECT_EQ(domanda.diario, Avvisi{"2 choose"});
    EXPECT_EQ(b.suono.UltimaNota, 24);
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 0);
}

TEST(IntoAttesa, IsSetByTheFirstNoteOrQuestionAndStaysSet) {
    BancoSuono trainer, domande;
    trainer.suono.SuonaNota(-1);
    EXPECT_FALSE(trainer.suono.IntoAttesa);
    trainer.suono.SuonaNota(0);
    EXPECT_TRUE(trainer.suono.IntoAttesa);
    trainer.suono.SuonaNota(-1);
    EXPECT_TRUE(trainer.suono.IntoAttesa);
    DomandaFinta domanda(domande);
    domande.suono.SuonaNota(-2);
    EXPECT_TRUE(domande.suono.IntoAttesa);
}

TEST(ProssimaDomanda, AnyValueBelowMinus1AsksIt) {
    BancoSuono b;
    DomandaFinta domanda(b);
    b.suono.SuonaNota(-3);
    b.suono.SuonaNota(-32768);
    EXPECT_EQ(domanda.diario.size(), 2U);
}

TEST(ProssimaDomanda, AfterALowNoteOneNoteOffGoesOutOnly) {
    BancoSuono b;
    DomandaFinta domanda(b);
    b.suono.SuonaNota(496);
    b.Messaggi();
    b.suono.SuonaNota(-2);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(20, 2), Nota(60, 100)}));
}

TEST(ProssimaDomanda, WithTheNameInViewTheKeyIsLitAndTheNameShown) {
    BancoSuono b;
    DomandaFinta domanda(b);
    domanda.inVista = true;
    b.suono.SuonaNota(-2);
    EXPECT_EQ(domanda.diario, (Avvisi{"0 choose", "2 light 60", "2 name 24"}));
}

TEST(ProssimaDomanda, WithAReferenceTheNoteEndsAfterNineTenthsOfASecondAndTheKeyIsCleared) {
    BancoSuono b;
    DomandaFinta domanda(b);
    domanda.inVista = domanda.conRiferimento = true;
    b.suono.SuonaNota(-2);
    EXPECT_EQ(b.Messaggi(), (Pacchetti{Nota(36, 0), Nota(60, 100), Nota(60, 0)}));
    EXPECT_DOUBLE_EQ(b.uscita.messaggi.back().istante, 0.9);
    EXPECT_EQ(domanda.diario.back(), "3 clear 60");
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
}

TEST(ProssimaDomanda, WithAReferenceAndTheNameHiddenNoKeyIsTouched) {
    BancoSuono b;
    DomandaFinta domanda(b);
    domanda.conRiferimento = true;
    b.suono.SuonaNota(-2);
    EXPECT_EQ(domanda.diario, Avvisi{"0 choose"});
}

TEST(SuonaNota, MinusOneStopsWhateverStandsThereAlsoWhatNoNoteCanBe) {
    BancoSuono b;
    b.suono.UltimaNota = -3;
    b.suono.SuonaNota(-1);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(33, 0)});
    EXPECT_EQ(b.suono.UltimaNota, -3);
    b.suono.SuonaNota(0);
    EXPECT_EQ(b.Messaggi(), Pacchetti{Nota(36, 100)});
}

}  // namespace corvana::prova
